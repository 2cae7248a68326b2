// SPDX-License-Identifier: Apache-2.0
#include "bench/plain_unsharp_mask.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace bench {

namespace {

constexpr std::size_t kReach = 2;
constexpr std::size_t kChannels = 3;
constexpr std::size_t kMargin = kReach * kChannels;

const unsigned char* row_bytes(const Picture& picture, std::ptrdiff_t y) {
  const auto last = static_cast<std::ptrdiff_t>(picture.height) - 1;
  return picture.row(static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(y, 0, last)));
}

/// The column sums of five rows, ×16, with the outermost pixels repeated at both ends.
void blur_down(const Picture& picture, std::size_t y, std::vector<std::int16_t>& sums) {
  const auto row = static_cast<std::ptrdiff_t>(y);
  const std::array<const unsigned char*, 5> rows = {
      row_bytes(picture, row - 2), row_bytes(picture, row - 1), row_bytes(picture, row),
      row_bytes(picture, row + 1), row_bytes(picture, row + 2)};
  const std::size_t count = picture.width * kChannels;
  std::int16_t* const inner = sums.data() + kMargin;
  for (std::size_t i = 0; i < count; ++i) {
    inner[i] = static_cast<std::int16_t>(rows[0][i] + rows[4][i] + 4 * (rows[1][i] + rows[3][i]) +
                                         6 * rows[2][i]);
  }
  for (std::size_t i = 0; i < kMargin; ++i) {
    sums[kMargin - 1 - i] = inner[kChannels - 1 - i % kChannels];
    inner[count + i] = inner[count - kChannels + i % kChannels];
  }
}

void sharpen_row(const unsigned char* row, const std::vector<std::int16_t>& sums, std::size_t count,
                 unsigned char* result) {
  for (std::size_t i = 0; i < count; ++i) {
    const std::int16_t* around = sums.data() + i;
    const int blurred = around[0] + around[12] + 4 * (around[3] + around[9]) + 6 * around[6];
    const int value = row[i] + ((256 * row[i] - blurred) * 5 + 1024) / 2048;
    result[i] = static_cast<unsigned char>(std::clamp(value, 0, 255));
  }
}

}  // namespace

void plain_unsharp_mask(const Picture& picture, Picture& sharpened) {
  sharpened.width = picture.width;
  sharpened.height = picture.height;
  sharpened.pixels.resize(picture.pixels.size());
  const std::size_t count = picture.width * kChannels;
  std::vector<std::int16_t> sums(count + 2 * kMargin);
  for (std::size_t y = 0; y < picture.height; ++y) {
    blur_down(picture, y, sums);
    sharpen_row(picture.row(y), sums, count, sharpened.row(y));
  }
}

}  // namespace bench
