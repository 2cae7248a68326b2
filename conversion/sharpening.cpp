// SPDX-License-Identifier: Apache-2.0
#include "conversion/sharpening.h"

#include <algorithm>
#include <new>

namespace {

constexpr int kHighestLevel = 6;
constexpr int kAmountStep = 10;

/// The blurred sum weighs 16 along the line times 16 across, the amount is in 1/64.
constexpr std::int32_t kBlurWeight = 256;
constexpr int kResultShift = 14;

/// Luma of a pixel in the engine's range: 0.30 R + 0.59 G + 0.11 B in 1/256, rounded. One
/// difference for all three channels, so that edges get no coloured fringe.
std::int32_t luminance_of(const EngineSample* pixel) {
  return (77 * pixel[0] + 150 * pixel[1] + 29 * pixel[2] + 128) >> 8;
}

/// Binomial weights 1 4 6 4 1: close to a Gaussian of one pixel, and exact in integers, so that a
/// flat field differs from its blur by nothing at all.
std::int32_t weigh(std::int32_t a, std::int32_t b, std::int32_t c, std::int32_t d, std::int32_t e) {
  return a + e + 4 * (b + d) + 6 * c;
}

EngineSample add_within_range(EngineSample sample, std::int32_t difference) {
  return static_cast<EngineSample>(
      std::clamp(sample + difference, std::int32_t{0}, std::int32_t{kEngineWhite}));
}

}  // namespace

int sharpening_amount(int level) {
  return kAmountStep * (std::clamp(level, 0, kHighestLevel) + 1);
}

bool Sharpener::reserve(std::size_t width) {
  width_ = width;
  samples_.reset(new (std::nothrow) EngineSample[kLines * 3 * width]);
  blurredLines_.reset(new (std::nothrow) std::int32_t[kLines * width]);
  luminance_.reset(new (std::nothrow) std::int32_t[width + 2 * kSharpeningReach]);
  return samples_ && blurredLines_ && luminance_;
}

void Sharpener::take_line(std::size_t y) {
  const EngineSample* samples = line(y);
  std::int32_t* inner = &luminance_[kSharpeningReach];
  for (std::size_t x = 0; x < width_; ++x) {
    inner[x] = luminance_of(samples + 3 * x);
  }
  std::fill_n(luminance_.get(), kSharpeningReach, inner[0]);
  std::fill_n(inner + width_, kSharpeningReach, inner[width_ - 1]);

  std::int32_t* blurred = &blurredLines_[slot(y) * width_];
  const std::int32_t* around = luminance_.get();
  for (std::size_t x = 0; x < width_; ++x) {
    blurred[x] = weigh(around[x], around[x + 1], around[x + 2], around[x + 3], around[x + 4]);
  }
}

std::array<const std::int32_t*, Sharpener::kLines> Sharpener::lines_around(
    std::size_t y, std::size_t height) const {
  std::array<const std::int32_t*, kLines> lines{};
  for (std::size_t i = 0; i < kLines; ++i) {
    const std::size_t wanted = y + i < kSharpeningReach ? 0 : y + i - kSharpeningReach;
    lines[i] = &blurredLines_[slot(std::min(wanted, height - 1)) * width_];
  }
  return lines;
}

void Sharpener::sharpen_line(std::size_t y, std::size_t height, int amount,
                             EngineSample* result) const {
  const auto rows = lines_around(y, height);
  const EngineSample* samples = &samples_[slot(y) * 3 * width_];
  for (std::size_t x = 0; x < width_; ++x) {
    const EngineSample* pixel = samples + 3 * x;
    const std::int32_t blurred = weigh(rows[0][x], rows[1][x], rows[2][x], rows[3][x], rows[4][x]);
    const std::int32_t detail = kBlurWeight * luminance_of(pixel) - blurred;
    const std::int32_t difference = (detail * amount + (1 << (kResultShift - 1))) >> kResultShift;
    result[3 * x] = add_within_range(pixel[0], difference);
    result[3 * x + 1] = add_within_range(pixel[1], difference);
    result[3 * x + 2] = add_within_range(pixel[2], difference);
  }
}
