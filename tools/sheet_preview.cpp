// SPDX-License-Identifier: Apache-2.0
#include "tools/sheet_preview.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace tools {
namespace {

using Colour = std::array<double, 3>;

constexpr Colour kGround = {0xB0, 0xB0, 0xB0};
constexpr Colour kPaper = {0xFF, 0xFF, 0xFF};
constexpr Colour kLine = {0x40, 0x40, 0x40};
constexpr double kDimmed = 0.3;  ///< what is left of a photo's colour outside the sheet
constexpr double kMargin = 0.03;
constexpr int kSamples = 3;  ///< across and down, for each pixel of the preview

// In dots of the sheet, from its top left corner.
struct Box {
  double left, top, right, bottom;

  bool Has(double x, double y) const { return x >= left && x < right && y >= top && y < bottom; }
};

Box sheet_box(const PrintSize& size) {
  const tagPAPERINFO& paper = *size.paper;
  return {0, 0, static_cast<double>(size.HalfSheet() ? paper.nImageWidth : paper.nPaperWidth),
          static_cast<double>(size.HalfSheet() ? paper.nImageHeight : paper.nPaperHeight)};
}

// Finds the photo's pixel at a place of the sheet; outside what is printed, too.
class LaidPhoto {
 public:
  LaidPhoto(const Picture& photo, const PrintSize& size, const Placement& placement)
      : photo_(photo),
        placement_(placement),
        left_(static_cast<double>(size.paper->nImageLeft) + placement.left),
        top_(static_cast<double>(size.paper->nImageTop) + placement.top) {}

  // The part that is printed.
  Box Printed() const { return {left_, top_, left_ + placement_.width, top_ + placement_.height}; }

  // All of it.
  Box Whole() const {
    const PixelArea& used = placement_.used;
    const double across = placement_.DotsPerPixelAcross();
    const double down = placement_.DotsPerPixelDown();
    const auto width = static_cast<double>(photo_.width) * across;
    const auto height = static_cast<double>(photo_.height) * down;
    if (!placement_.turned) {
      const double left = left_ - used.left * across;
      const double top = top_ - used.top * down;
      return {left, top, left + width, top + height};
    }
    const double left = left_ - used.top * down;
    const double bottom = top_ + placement_.height + used.left * across;
    return {left, bottom - width, left + height, bottom};
  }

  Colour At(double x, double y) const {
    const PixelArea& used = placement_.used;
    const double right = (placement_.turned ? top_ + placement_.height - y : x - left_) /
                         placement_.DotsPerPixelAcross();
    const double down = (placement_.turned ? x - left_ : y - top_) / placement_.DotsPerPixelDown();
    const unsigned char* const rgb =
        photo_.At(Inside(used.left + right, photo_.width), Inside(used.top + down, photo_.height));
    return {double(rgb[0]), double(rgb[1]), double(rgb[2])};
  }

 private:
  static std::size_t Inside(double place, std::size_t length) {
    return static_cast<std::size_t>(
        std::clamp(std::floor(place), 0.0, static_cast<double>(length - 1)));
  }

  const Picture& photo_;
  const Placement& placement_;
  double left_;
  double top_;
};

struct View {
  Box sheet;
  Box printed;
  Box whole;
};

Colour colour_at(const LaidPhoto& photo, const View& view, double x, double y) {
  if (view.sheet.Has(x, y)) {
    return view.printed.Has(x, y) ? photo.At(x, y) : kPaper;
  }
  if (!view.whole.Has(x, y)) {
    return kGround;
  }
  Colour colour = photo.At(x, y);
  for (std::size_t i = 0; i < colour.size(); ++i) {
    colour.at(i) = kDimmed * colour.at(i) + (1 - kDimmed) * kGround.at(i);
  }
  return colour;
}

// From pixels of the preview to dots of the sheet.
struct Frame {
  double left, top, dotsPerPixel;
  std::size_t width, height;
};

Frame frame_for(const View& view) {
  const double left = std::min(view.sheet.left, view.whole.left);
  const double top = std::min(view.sheet.top, view.whole.top);
  const double width = std::max(view.sheet.right, view.whole.right) - left;
  const double height = std::max(view.sheet.bottom, view.whole.bottom) - top;
  const double margin = kMargin * std::max(width, height);
  const double longest = std::max(width, height) + 2 * margin;
  const double dots = longest / kPreviewLongest;
  const auto pixels = [dots, margin](double length) {
    return static_cast<std::size_t>(std::lround((length + 2 * margin) / dots));
  };
  return {left - margin, top - margin, dots, pixels(width), pixels(height)};
}

void draw_pixel(unsigned char* rgb, const LaidPhoto& photo, const View& view, double x, double y,
                double dots) {
  Colour sum{};
  for (int sample = 0; sample < kSamples * kSamples; ++sample) {
    const int column = sample % kSamples;
    const int row = sample / kSamples;
    const double right = (column + 0.5) / kSamples;
    const double down = (row + 0.5) / kSamples;
    const Colour colour = colour_at(photo, view, x + right * dots, y + down * dots);
    for (std::size_t i = 0; i < sum.size(); ++i) {
      sum.at(i) += colour.at(i);
    }
  }
  for (std::size_t i = 0; i < sum.size(); ++i) {
    rgb[i] = static_cast<unsigned char>(std::lround(sum.at(i) / (kSamples * kSamples)));
  }
}

// A line of one pixel, from one place of the sheet to another.
void draw_line(Picture& preview, const Frame& frame, const Box& line) {
  const auto place = [&frame](double dots, double begin, std::size_t length) {
    return std::min(length - 1, static_cast<std::size_t>((dots - begin) / frame.dotsPerPixel));
  };
  const std::size_t right = place(line.right, frame.left, preview.width);
  const std::size_t bottom = place(line.bottom, frame.top, preview.height);
  for (std::size_t y = place(line.top, frame.top, preview.height); y <= bottom; ++y) {
    for (std::size_t x = place(line.left, frame.left, preview.width); x <= right; ++x) {
      std::copy(kLine.begin(), kLine.end(), preview.At(x, y));
    }
  }
}

}  // namespace

Picture draw_preview(const Picture& photo, const PrintSize& size, const Placement& placement) {
  const LaidPhoto laid(photo, size, placement);
  const View view{sheet_box(size), laid.Printed(), laid.Whole()};
  const Frame frame = frame_for(view);
  Picture preview(frame.width, frame.height);
  for (std::size_t y = 0; y < frame.height; ++y) {
    for (std::size_t x = 0; x < frame.width; ++x) {
      draw_pixel(preview.At(x, y), laid, view,
                 frame.left + static_cast<double>(x) * frame.dotsPerPixel,
                 frame.top + static_cast<double>(y) * frame.dotsPerPixel, frame.dotsPerPixel);
    }
  }
  const Box& sheet = view.sheet;
  draw_line(preview, frame, {sheet.left, sheet.top, sheet.right, sheet.top});
  draw_line(preview, frame, {sheet.left, sheet.bottom, sheet.right, sheet.bottom});
  draw_line(preview, frame, {sheet.left, sheet.top, sheet.left, sheet.bottom});
  draw_line(preview, frame, {sheet.right, sheet.top, sheet.right, sheet.bottom});
  if (size.TwoOnOnePage()) {
    const double split = size.paper->nTwoUpSplit;
    draw_line(preview, frame, {sheet.left, split, sheet.right, split});
  }
  return preview;
}

}  // namespace tools
