// SPDX-License-Identifier: Apache-2.0
#include "conversion/sharpening.h"

#include <algorithm>
#include <array>

#include "conversion/photo_kernels.h"

namespace {

constexpr int kHighestLevel = 6;

/// Two passes of five lines each reach two lines further: four in all.
constexpr std::size_t kPassReach = kSharpeningReach / 2;

/// The five lines around y, from a ring. Outside the page its outermost line is repeated.
std::array<const std::uint16_t*, 5> lines_around(const LineMemory& ring, std::size_t y,
                                                 std::size_t height) {
  std::array<const std::uint16_t*, 5> lines{};
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::size_t wanted = y + i < kPassReach ? 0 : y + i - kPassReach;
    lines[i] = ring.line(std::min(wanted, height - 1) % lines.size());
  }
  return lines;
}

}  // namespace

int sharpening_strength(int level) {
  return std::clamp(level, 0, kHighestLevel) + 1;
}

bool Sharpener::reserve(std::size_t width) {
  width_ = width;
  taken_ = 0;
  blurred_ = 0;
  return along_.reserve(kRing, width) && across_.reserve(kRing, width) &&
         scratch_.reserve(2, width);
}

void Sharpener::take(const BandRows& page, std::size_t y) {
  luma_line(page.row(y), width_, scratch_.line(0));
  blur_along(scratch_.line(0), width_, scratch_.line(1));
  blur_along(scratch_.line(1), width_, along_.line(y % kRing));
}

void Sharpener::blur_once(std::size_t y, std::size_t height) {
  blur_across(lines_around(along_, y, height), width_, across_.line(y % kRing));
}

const std::uint16_t* Sharpener::blur_twice(std::size_t y, std::size_t height) {
  blur_across(lines_around(across_, y, height), width_, scratch_.line(0));
  return scratch_.line(0);
}

void Sharpener::sharpen(const BandRows& page, std::size_t y, int strength, const LinePlanes& fine) {
  const std::size_t last = page.height - 1;
  for (; blurred_ <= std::min(y + kPassReach, last); ++blurred_) {
    for (; taken_ <= std::min(blurred_ + kPassReach, last); ++taken_) {
      take(page, taken_);
    }
    blur_once(blurred_, page.height);
  }
  sharpen_line(page.row(y), blur_twice(y, page.height), width_, strength, fine);
}
