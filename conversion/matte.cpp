// SPDX-License-Identifier: Apache-2.0
#include "conversion/matte.h"

#include <cstring>
#include <new>
#include <numeric>

#include "conversion/matte_tile.h"

namespace {

/// Odd words from the fractions of √2, √3 and the golden ratio: numbers without a pattern of their
/// own, 32 bits each.
constexpr std::uint32_t kRootTwo = 0x6A09E667U;
constexpr std::uint32_t kRootThree = 0xBB67AE85U;
constexpr std::uint32_t kGolden = 0x9E3779B9U;

/// Spreads every bit of `bits` over the whole word: neighbouring numbers give unrelated ones.
std::uint32_t scatter(std::uint32_t bits) {
  bits = (bits ^ (bits >> 16)) * kRootTwo;
  bits = (bits ^ (bits >> 13)) * kRootThree;
  return bits ^ (bits >> 16);
}

/// The noise's own share (16) less its surroundings weighed 1 2 1 / 2 4 2 / 1 2 1: what is left is
/// grain of one or two dots (0.1 to 0.2 mm), with no cloudiness an eye could see from arm's length.
int fine_grain(const unsigned char* above, const unsigned char* here, const unsigned char* below) {
  const int surroundings = above[0] + 2 * above[1] + above[2] + 2 * here[0] + 4 * here[1] +
                           2 * here[2] + below[0] + 2 * below[1] + below[2];
  return 16 * here[1] - surroundings;
}

}  // namespace

bool MatteTexture::reserve(std::size_t width) {
  width_ = width;
  y_ = 0;
  noise_.reset(new (std::nothrow) unsigned char[kRows * (width + 2)]);
  return noise_ != nullptr;
}

void MatteTexture::make_noise(std::size_t number) {
  // A seed a row, not one sum of column and row: a sum comes back at some slanting distance.
  const std::uint32_t seed = scatter(static_cast<std::uint32_t>(number) + kGolden);
  unsigned char* noise = noise_row(number);
  for (std::size_t x = 0; x < width_ + 2; ++x) {
    noise[x] =
        static_cast<unsigned char>(scatter(static_cast<std::uint32_t>(x) * kGolden + seed) >> 24);
  }
}

void MatteTexture::next_row(unsigned char* row) {
  if (y_ == 0) {
    make_noise(0);
    make_noise(1);
  }
  make_noise(y_ + 2);
  const unsigned char* above = noise_row(y_);
  const unsigned char* here = noise_row(y_ + 1);
  const unsigned char* below = noise_row(y_ + 2);
  for (std::size_t x = 0; x < width_; ++x) {
    // The grain is at most 12 × 255 either way: its 32nd part never leaves the range of a byte.
    const int swing = (fine_grain(above + x, here + x, below + x) + 16) >> 5;
    row[x] = static_cast<unsigned char>(kMatteMiddle + swing);
  }
  ++y_;
}

std::uint64_t lay_matte_row(std::size_t y, unsigned char* row, std::size_t width) {
  const unsigned char* piece = kMatteTile[y % kMatteTileSide];
  const std::size_t rest = width % kMatteTileSide;
  for (unsigned char* const last = row + (width - rest); row != last; row += kMatteTileSide) {
    std::memcpy(row, piece, kMatteTileSide);
  }
  std::memcpy(row, piece, rest);
  const std::uint64_t whole = width / kMatteTileSide;
  return whole * kMatteRowSums[y % kMatteTileSide] +
         std::accumulate(piece, piece + rest, std::uint64_t{0});
}
