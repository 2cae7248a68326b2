// SPDX-License-Identifier: Apache-2.0
#include "photo/page_picture.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>
#include <vector>

#include "language/messages.h"
#include "photo/resampler.h"
#include "photo/to_srgb.h"
#include "photo/tones.h"

namespace photo {
namespace {

using language::_;
using language::filled;

constexpr std::size_t kColours = 3;

PhotoShape upright_shape(const PhotoFacts& facts) {
  PhotoShape shape{facts.width, facts.height, 0, 0};
  if (facts.density.IsKnown()) {
    shape.perInchAcross = facts.density.across;
    shape.perInchDown = facts.density.down;
  }
  if (swaps_sides(facts.orientation)) {
    std::swap(shape.width, shape.height);
    std::swap(shape.perInchAcross, shape.perInchDown);
  }
  return shape;
}

// A JPEG read at half its size takes half the time. The print stays as sharp as long as there are
// still two pixels to a dot.
unsigned choose_reduction(const PictureArea& area, const Picture& result) {
  constexpr unsigned kMost = 8;
  constexpr double kSpare = 2;
  unsigned reduction = 1;
  while (reduction < kMost) {
    const double wanted = kSpare * 2 * reduction;
    if (area.width < wanted * static_cast<double>(result.width) ||
        area.height < wanted * static_cast<double>(result.height)) {
      break;
    }
    reduction *= 2;
  }
  return reduction;
}

PictureArea in_pixels_read(PictureArea area, const PhotoFacts& facts, std::size_t width,
                           std::size_t height) {
  const double across = static_cast<double>(width) / static_cast<double>(facts.width);
  const double down = static_cast<double>(height) / static_cast<double>(facts.height);
  return {area.left * across, area.top * down, area.width * across, area.height * down};
}

// Reads a part of the photo and brings it to its size in dots. It is still turned as in the file.
std::string read_part(PhotoRows& reader, const PhotoFacts& facts, const PictureArea& area,
                      PagePicture& page, Picture& part) {
  std::size_t width = 0;
  std::size_t height = 0;
  if (std::string why = reader.Begin(choose_reduction(area, part), width, height); !why.empty()) {
    return why;
  }
  const ToSrgb colours(facts);
  page.coloursConverted = colours.Converts();
  page.profilePassedOver = colours.ProfilePassedOver();
  std::vector<std::uint8_t> samples(width * bytes_per_pixel(facts.samples));
  const NextRow next = [&](std::uint8_t* rgb) {
    std::string why = reader.Row(samples.data());
    if (why.empty()) {
      colours.Convert(samples.data(), rgb, width);
    }
    return why;
  };
  return resample(width, height, in_pixels_read(area, facts, width, height), next, part);
}

void lay_on(Picture& sheet, const Picture& part, const DotArea& place) {
  for (std::size_t y = 0; y < part.height; ++y) {
    std::memcpy(sheet.At(place.left, place.top + y), part.At(0, y), kColours * part.width);
  }
}

}  // namespace

std::string plan_pages(std::FILE* file, std::size_t pageWidth, std::size_t pageHeight,
                       const JobWishes& wishes, PlannedPhoto& plan) {
  const std::unique_ptr<PhotoRows> reader = find_reader(file);
  if (reader == nullptr) {
    return _("it is neither a JPEG nor a PNG file");
  }
  if (std::string why = reader->Open(plan.facts); !why.empty()) {
    return why;
  }
  plan.shape = upright_shape(plan.facts);
  plan.layout = lay_out(plan.shape, pageWidth, pageHeight, wishes);
  return plan.layout.pages.empty()
             ? filled(_("it would take more than %zu pages"), std::size_t{kPagesMost})
             : std::string();
}

std::string make_page(std::FILE* file, const Layout& layout, std::size_t number,
                      const JobWishes& wishes, PagePicture& page) {
  page = {};
  const std::unique_ptr<PhotoRows> reader = find_reader(file);
  PhotoFacts facts;
  if (reader == nullptr) {
    return "it has changed while it was read";
  }
  if (std::string why = reader->Open(facts); !why.empty()) {
    return why;
  }
  const Placing& placing = layout.pages.at(number);
  const DotArea& to = placing.to;
  const bool swapped = swaps_sides(facts.orientation);
  Picture part(swapped ? to.height : to.width, swapped ? to.width : to.height);
  const PictureArea area = area_in_file(placing.from, facts.width, facts.height, facts.orientation);
  if (std::string why = read_part(*reader, facts, area, page, part); !why.empty()) {
    return why;
  }
  apply_tones(wishes, part);
  Picture upright(layout.pageWidth, layout.pageHeight);
  lay_on(upright, turned(part, facts.orientation), to);
  if (wishes.mirror) {
    mirror(upright);
  }
  page.picture = turned(upright, layout.turn);
  return {};
}

}  // namespace photo
