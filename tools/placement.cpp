// SPDX-License-Identifier: Apache-2.0
#include "tools/placement.h"

#include <utility>

namespace tools {
namespace {

constexpr float kDotsPerInch = 300.0F;
constexpr float kPointsPerInch = 72.0F;

struct Extent {
  float width;
  float height;
};

// A PPD says lengths in points, and whoever reads it keeps them in single precision.
float points(std::int64_t dots) {
  return static_cast<float>(static_cast<double>(dots) * 72.0 / 300.0);
}

// What two equal borders leave of a length: the PPD has the far edge, less one border, and whoever
// reads it takes the near edge away.
float between_borders(std::int64_t dots, std::int64_t border) {
  const float farEdge = points(dots + 2 * border) - points(border);
  return farEdge - points(border);
}

Extent page_in_points(const tagPAPERINFO& paper) {
  return {between_borders(paper.nImageWidth, paper.nImageLeft),
          between_borders(paper.nImageHeight, paper.nImageTop)};
}

// The largest extent of the shape of `pixels` inside `room`.
Extent fit_into(const Extent& room, const PixelArea& pixels, float aspect) {
  const auto across = static_cast<float>(pixels.width);
  const auto down = static_cast<float>(pixels.height);
  Extent size{room.width, room.width * down / across / aspect};
  if (size.height > room.height) {
    size = {room.height * across * aspect / down, room.height};
  }
  return size;
}

// The middle of the picture in the page's shape. For a picture that lies across the page the page
// is turned first, and its width loses what it has beyond whole points.
PixelArea crop_to_page(std::uint32_t width, std::uint32_t height, Extent page) {
  const bool across =
      (page.width > page.height && width < height) || (page.width < page.height && width > height);
  if (across) {
    page = {page.height, static_cast<float>(static_cast<int>(page.width))};
  }
  const auto wholeWidth = static_cast<float>(width);
  const auto wholeHeight = static_cast<float>(height);
  Extent kept{wholeWidth, wholeWidth * page.height / page.width};
  if (kept.height > wholeHeight) {
    kept = {wholeHeight * page.width / page.height, wholeHeight};
  }
  return {static_cast<std::uint32_t>((wholeWidth - kept.width) / 2),
          static_cast<std::uint32_t>((wholeHeight - kept.height) / 2),
          static_cast<std::uint32_t>(kept.width), static_cast<std::uint32_t>(kept.height)};
}

std::uint32_t whole_dots(float inches) {
  return static_cast<std::uint32_t>(kDotsPerInch * inches);
}

}  // namespace

double Placement::DotsPerPixelAcross() const {
  return static_cast<double>(turned ? height : width) / used.width;
}

double Placement::DotsPerPixelDown() const {
  return static_cast<double>(turned ? width : height) / used.height;
}

Placement place_picture(std::uint32_t width, std::uint32_t height, const PrintSize& size,
                        PrintScaling scaling, float aspect) {
  const Extent page = page_in_points(*size.paper);
  const PixelArea used = scaling == PrintScaling::Fill ? crop_to_page(width, height, page)
                                                       : PixelArea{0, 0, width, height};
  if (used.width == 0 || used.height == 0) {
    return {used, false, 0, 0};
  }
  const Extent inches{page.width / kPointsPerInch, page.height / kPointsPerInch};
  const Extent upright = fit_into(inches, used, aspect);
  const Extent turned = fit_into({inches.height, inches.width}, used, aspect);
  if (upright.width * upright.height < turned.width * turned.height) {
    return {used, true, whole_dots(turned.height), whole_dots(turned.width)};
  }
  return {used, false, whole_dots(upright.width), whole_dots(upright.height)};
}

}  // namespace tools
