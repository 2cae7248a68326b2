// SPDX-License-Identifier: Apache-2.0
//
// A picture in memory as a page has it: rows of R, G, B bytes from the top, without padding.
#ifndef TQR7_BENCH_PICTURE_H
#define TQR7_BENCH_PICTURE_H

#include <cstddef>
#include <span>
#include <vector>

#include "bench/colour_space.h"

namespace bench {

struct Picture {
  std::size_t width = 0;
  std::size_t height = 0;
  std::vector<Rgb8> pixels;  ///< width × height, three bytes each

  const unsigned char* row(std::size_t y) const {
    return reinterpret_cast<const unsigned char*>(pixels.data()) + 3 * width * y;
  }
  unsigned char* row(std::size_t y) {
    return reinterpret_cast<unsigned char*>(pixels.data()) + 3 * width * y;
  }
};

static_assert(sizeof(Rgb8) == 3, "pixels lie in memory as a page's bytes do");

/// A picture whose pixel at (x, y) is paint(x, y).
template <typename Paint>
Picture painted(std::size_t width, std::size_t height, Paint paint) {
  Picture picture{width, height, {}};
  picture.pixels.reserve(width * height);
  for (std::size_t y = 0; y < height; ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      picture.pixels.push_back(paint(x, y));
    }
  }
  return picture;
}

/// Colours side by side as one row.
inline Picture row_of(std::span<const Rgb8> colours) {
  return {colours.size(), 1, {colours.begin(), colours.end()}};
}

}  // namespace bench

#endif  // TQR7_BENCH_PICTURE_H
