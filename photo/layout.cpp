// SPDX-License-Identifier: Apache-2.0
#include "photo/layout.h"

#include <algorithm>
#include <cmath>

namespace photo {
namespace {

constexpr double kDotsPerInch = 300;
constexpr double kUsualDensity = 200;  ///< what CUPS assumes for a picture without a density

struct Size {
  double width;
  double height;
};

Size in_square_pixels(const PhotoShape& photo) {
  return {static_cast<double>(photo.width) * pixel_aspect(photo),
          static_cast<double>(photo.height)};
}

Size scaled(const Size& size, double factor) {
  return {size.width * factor, size.height * factor};
}

Size fitted(const PhotoShape& photo, const Size& page) {
  const Size size = in_square_pixels(photo);
  return scaled(size, std::min(page.width / size.width, page.height / size.height));
}

Size filling(const PhotoShape& photo, const Size& page) {
  const Size size = in_square_pixels(photo);
  return scaled(size, std::max(page.width / size.width, page.height / size.height));
}

// The size by the density that the job says, or else by the photo's own.
Size natural(const PhotoShape& photo, const JobWishes& wishes) {
  const bool own = photo.perInchAcross > 0 && photo.perInchDown > 0;
  double across = own ? photo.perInchAcross : kUsualDensity;
  double down = own ? photo.perInchDown : kUsualDensity;
  if (wishes.perInchAcross > 0) {
    across = wishes.perInchAcross;
    down = wishes.perInchDown;
  }
  return {static_cast<double>(photo.width) * kDotsPerInch / across,
          static_cast<double>(photo.height) * kDotsPerInch / down};
}

// The size of the whole photo in dots; it may be larger than the page.
Size whole_size(const PhotoShape& photo, const Size& page, const JobWishes& wishes) {
  constexpr double kPercent = 100;
  switch (wishes.scaling) {
    case Scaling::Fill:
      return filling(photo, page);
    case Scaling::Natural:
      return natural(photo, wishes);
    case Scaling::Spread:
      return scaled(wishes.ofFitted ? fitted(photo, page) : natural(photo, wishes),
                    wishes.percent / kPercent);
    default: {
      const Size fit = fitted(photo, page);
      const bool nearly = fit.width >= page.width * (1 - kNearlyThePage) &&
                          fit.height >= page.height * (1 - kNearlyThePage);
      return nearly ? filling(photo, page) : fit;
    }
  }
}

// How much of the page the photo would cover when it is laid out like this.
double shown(const PhotoShape& photo, const Size& page, const JobWishes& wishes) {
  if (wishes.scaling == Scaling::Natural || wishes.scaling == Scaling::Spread) {
    const Size size = whole_size(photo, page, wishes);
    return std::min(size.width, page.width) * std::min(size.height, page.height);
  }
  const Size size = fitted(photo, page);
  return size.width * size.height;
}

int choose_turn(const PhotoShape& photo, const Size& page, const JobWishes& wishes) {
  constexpr int kLandscape = 4;
  constexpr int kReverseLandscape = 5;
  constexpr int kReversePortrait = 6;
  constexpr double kClearly = 1.0001;
  switch (wishes.orientation) {
    case 0: {
      const double turned = shown(photo, {page.height, page.width}, wishes);
      return turned > kClearly * shown(photo, page, wishes) ? 8 : 1;
    }
    case kLandscape:
      return 8;
    case kReverseLandscape:
      return 6;
    case kReversePortrait:
      return 3;
    default:
      return 1;
  }
}

// One direction of a placing: which pixels are printed, and on which dots.
struct Stretch {
  double from;
  double length;
  std::size_t to;
  std::size_t toLength;
};

std::size_t whole(double dots, std::size_t most) {
  return std::clamp<std::size_t>(static_cast<std::size_t>(std::lround(dots)), 1, most);
}

// The share of the free or cut length that is left or above: 0, a half or 1.
double share_before(int position) {
  constexpr double kHalf = 0.5;
  return kHalf * (1 + position);
}

// Places `pixels` of the photo from `begin` on, which are `dots` long on paper, on a page that is
// `room` dots long.
Stretch place(double begin, double pixels, double dots, std::size_t room, int position) {
  const double before = share_before(position);
  const auto roomDots = static_cast<double>(room);
  if (dots >= roomDots) {
    const double kept = pixels * roomDots / dots;
    return {begin + (pixels - kept) * before, kept, 0, room};
  }
  const std::size_t length = whole(dots, room);
  return {begin, pixels, static_cast<std::size_t>(static_cast<double>(room - length) * before),
          length};
}

// How many pages side by side a length in dots takes. Less than a dot more is not worth another
// sheet.
std::size_t pages_for(double dots, std::size_t room) {
  const double pages = std::ceil((dots - 1) / static_cast<double>(room));
  return static_cast<std::size_t>(std::clamp(pages, 1.0, static_cast<double>(kPagesMost + 1)));
}

}  // namespace

double pixel_aspect(const PhotoShape& photo) {
  constexpr double kMost = 2;
  if (photo.perInchAcross <= 0 || photo.perInchDown <= 0) {
    return 1;
  }
  const double aspect = photo.perInchDown / photo.perInchAcross;
  return aspect > kMost || aspect < 1 / kMost ? 1 : aspect;
}

Layout lay_out(const PhotoShape& photo, std::size_t pageWidth, std::size_t pageHeight,
               const JobWishes& wishes) {
  Layout layout{pageWidth, pageHeight, 1, {}};
  Size page{static_cast<double>(pageWidth), static_cast<double>(pageHeight)};
  layout.turn = choose_turn(photo, page, wishes);
  if (layout.turn == 8 || layout.turn == 6) {
    std::swap(layout.pageWidth, layout.pageHeight);
    std::swap(page.width, page.height);
  }
  const Size size = whole_size(photo, page, wishes);
  const bool spread = wishes.scaling == Scaling::Spread;
  const std::size_t across = spread ? pages_for(size.width, layout.pageWidth) : 1;
  const std::size_t down = spread ? pages_for(size.height, layout.pageHeight) : 1;
  if (across * down > kPagesMost) {
    return layout;
  }
  const double pixelsAcross = static_cast<double>(photo.width) / static_cast<double>(across);
  const double pixelsDown = static_cast<double>(photo.height) / static_cast<double>(down);
  for (std::size_t i = 0; i < across * down; ++i) {
    const std::size_t column = i / down;
    const Stretch x =
        place(pixelsAcross * static_cast<double>(column), pixelsAcross,
              size.width / static_cast<double>(across), layout.pageWidth, wishes.position.across);
    const Stretch y =
        place(pixelsDown * static_cast<double>(i % down), pixelsDown,
              size.height / static_cast<double>(down), layout.pageHeight, wishes.position.down);
    layout.pages.push_back(
        {{x.from, y.from, x.length, y.length}, {x.to, y.to, x.toLength, y.toLength}});
  }
  return layout;
}

}  // namespace photo
