// SPDX-License-Identifier: Apache-2.0
#include "tools/placement.h"

#include <algorithm>
#include <cmath>

namespace tools {
namespace {

// Whole pixels, of which at least one is printed.
PixelArea whole_pixels(const photo::PhotoArea& area) {
  const auto whole = [](double place) { return static_cast<std::uint32_t>(std::lround(place)); };
  const std::uint32_t left = whole(area.left);
  const std::uint32_t top = whole(area.top);
  return {left, top, std::max(1U, whole(area.left + area.width) - left),
          std::max(1U, whole(area.top + area.height) - top)};
}

}  // namespace

double Placement::DotsPerPixelAcross() const {
  return static_cast<double>(turned ? height : width) / used.width;
}

double Placement::DotsPerPixelDown() const {
  return static_cast<double>(turned ? width : height) / used.height;
}

Placement place_picture(const photo::PhotoShape& shape, const PrintSize& size,
                        PrintScaling scaling) {
  photo::JobWishes wishes;
  wishes.scaling = scaling == PrintScaling::Fill ? photo::Scaling::Fill : photo::Scaling::Fit;
  const photo::Layout layout =
      photo::lay_out(shape, static_cast<std::size_t>(size.paper->nImageWidth),
                     static_cast<std::size_t>(size.paper->nImageHeight), wishes);
  const auto dots = [](std::size_t count) { return static_cast<std::uint32_t>(count); };
  const photo::Placing& placing = layout.pages.front();
  const photo::DotArea& to = placing.to;
  const PixelArea used = whole_pixels(placing.from);
  if (layout.turn == 1) {
    return {used, false, dots(to.left), dots(to.top), dots(to.width), dots(to.height)};
  }
  return {used,
          true,
          dots(to.top),
          dots(layout.pageWidth - to.left - to.width),
          dots(to.height),
          dots(to.width)};
}

}  // namespace tools
