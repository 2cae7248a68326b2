// SPDX-License-Identifier: Apache-2.0
#include "tools/sheet_preview.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace tools {
namespace {

using Colour = std::array<std::uint8_t, 3>;

constexpr Colour kGround = {0xB0, 0xB0, 0xB0};
constexpr Colour kPaper = {0xFF, 0xFF, 0xFF};
constexpr Colour kLine = {0x40, 0x40, 0x40};
constexpr double kDimmed = 0.3;  ///< what is left of a photo's colour outside the sheet
constexpr double kMargin = 0.03;

// In dots, from the sheet's top left corner, or in pixels of the preview.
template <typename Place>
struct Box {
  Place left, top, right, bottom;

  bool Has(Place x, Place y) const { return x >= left && x < right && y >= top && y < bottom; }
};
using Dots = Box<double>;
using Pixels = Box<std::size_t>;

Dots sheet_dots(const NamedPaper& size) {
  const tagPAPERINFO& paper = *size.paper;
  return {0, 0, static_cast<double>(is_half_sheet(size) ? paper.nImageWidth : paper.nPaperWidth),
          static_cast<double>(is_half_sheet(size) ? paper.nImageHeight : paper.nPaperHeight)};
}

Dots printed_dots(const tagPAPERINFO& paper, const photo::DotArea& printed) {
  const double left = static_cast<double>(paper.nImageLeft) + static_cast<double>(printed.left);
  const double top = static_cast<double>(paper.nImageTop) + static_cast<double>(printed.top);
  return {left, top, left + static_cast<double>(printed.width),
          top + static_cast<double>(printed.height)};
}

// The whole photo, with what is cut off.
Dots whole_dots(const PhotoJob& job, const Dots& printed) {
  const photo::PhotoShape& shape = job.plan.shape;
  const auto lying = [&](const photo::PictureArea& area) {
    return on_sheet(area, shape.width, shape.height, job);
  };
  const photo::PictureArea used = lying(job.plan.layout.pages.front().from);
  const photo::PictureArea all =
      lying({0, 0, static_cast<double>(shape.width), static_cast<double>(shape.height)});
  const double across = (printed.right - printed.left) / used.width;
  const double down = (printed.bottom - printed.top) / used.height;
  const double left = printed.left - used.left * across;
  const double top = printed.top - used.top * down;
  return {left, top, left + all.width * across, top + all.height * down};
}

// Converts dots of the sheet to pixels of the preview.
struct Frame {
  double left, top, dotsPerPixel;
  std::size_t width, height;

  std::size_t Across(double dots) const { return Place(dots - left, width); }
  std::size_t Down(double dots) const { return Place(dots - top, height); }

  // At least a pixel.
  Pixels In(const Dots& box) const {
    const std::size_t x = Across(box.left);
    const std::size_t y = Down(box.top);
    return {x, y, std::max(x + 1, Across(box.right)), std::max(y + 1, Down(box.bottom))};
  }

 private:
  std::size_t Place(double dots, std::size_t length) const {
    return std::min(length - 1, static_cast<std::size_t>(dots / dotsPerPixel));
  }
};

Frame frame_around(const Dots& sheet, const Dots& whole) {
  const double left = std::min(sheet.left, whole.left);
  const double top = std::min(sheet.top, whole.top);
  const double width = std::max(sheet.right, whole.right) - left;
  const double height = std::max(sheet.bottom, whole.bottom) - top;
  const double margin = kMargin * std::max(width, height);
  const double dots = (std::max(width, height) + 2 * margin) / kPreviewLongest;
  const auto pixels = [dots, margin](double length) {
    return static_cast<std::size_t>(std::lround((length + 2 * margin) / dots));
  };
  return {left - margin, top - margin, dots, pixels(width), pixels(height)};
}

// Makes a page that the whole photo covers, as large as the photo is in the preview.
std::string make_whole(std::FILE* file, const PhotoJob& job, const Pixels& place,
                       photo::PagePicture& photo) {
  const photo::PhotoShape& shape = job.plan.shape;
  photo::Layout layout = job.plan.layout;
  layout.pageWidth = place.right - place.left;
  layout.pageHeight = place.bottom - place.top;
  if (photo::swaps_sides(layout.turn)) {
    std::swap(layout.pageWidth, layout.pageHeight);
  }
  layout.pages = {{{0, 0, static_cast<double>(shape.width), static_cast<double>(shape.height)},
                   {0, 0, layout.pageWidth, layout.pageHeight}}};
  return photo::make_page(file, layout, 0, job.wishes, photo);
}

Colour dimmed(const std::uint8_t* rgb) {
  Colour colour{};
  for (std::size_t i = 0; i < colour.size(); ++i) {
    colour.at(i) =
        static_cast<std::uint8_t>(std::lround(kDimmed * rgb[i] + (1 - kDimmed) * kGround.at(i)));
  }
  return colour;
}

struct View {
  Pixels sheet;
  Pixels printed;
  Pixels whole;
};

Colour colour_at(const View& view, const photo::Picture& photo, std::size_t x, std::size_t y) {
  const std::uint8_t* const dot =
      view.whole.Has(x, y) ? photo.At(x - view.whole.left, y - view.whole.top) : nullptr;
  if (!view.sheet.Has(x, y)) {
    return dot != nullptr ? dimmed(dot) : kGround;
  }
  return dot != nullptr && view.printed.Has(x, y) ? Colour{dot[0], dot[1], dot[2]} : kPaper;
}

// A line of one pixel; both ends are on it.
void draw_line(photo::Picture& preview, const Pixels& line) {
  for (std::size_t y = line.top; y <= line.bottom; ++y) {
    for (std::size_t x = line.left; x <= line.right; ++x) {
      std::copy(kLine.begin(), kLine.end(), preview.At(x, y));
    }
  }
}

}  // namespace

std::string draw_preview(std::FILE* file, const PhotoJob& job, const PhotoCheck& check,
                         photo::Picture& preview) {
  const Dots sheet = sheet_dots(job.size);
  const Dots printed = printed_dots(*job.size.paper, check.printed);
  const Dots whole = whole_dots(job, printed);
  const Frame frame = frame_around(sheet, whole);
  const View view{frame.In(sheet), frame.In(printed), frame.In(whole)};
  photo::PagePicture photo;
  if (std::string why = make_whole(file, job, view.whole, photo); !why.empty()) {
    return why;
  }
  preview = photo::Picture(frame.width, frame.height);
  for (std::size_t y = 0; y < frame.height; ++y) {
    for (std::size_t x = 0; x < frame.width; ++x) {
      const Colour colour = colour_at(view, photo.picture, x, y);
      std::copy(colour.begin(), colour.end(), preview.At(x, y));
    }
  }
  const auto& [left, top, right, bottom] = view.sheet;
  draw_line(preview, {left, top, right, top});
  draw_line(preview, {left, bottom, right, bottom});
  draw_line(preview, {left, top, left, bottom});
  draw_line(preview, {right, top, right, bottom});
  if (has_two_on_one_page(job.size)) {
    const std::size_t split = frame.Down(static_cast<double>(job.size.paper->nTwoUpSplit));
    draw_line(preview, {left, split, right, split});
  }
  return {};
}

}  // namespace tools
