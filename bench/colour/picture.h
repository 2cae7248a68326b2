// SPDX-License-Identifier: Apache-2.0
//
// A picture in memory as a page has it: rows of R, G, B bytes from the top, without padding.
#ifndef TQR7_BENCH_COLOUR_PICTURE_H
#define TQR7_BENCH_COLOUR_PICTURE_H

#include <array>
#include <cstddef>
#include <vector>

namespace bench {

/// 8-bit sRGB.
using Rgb8 = std::array<unsigned char, 3>;

struct Picture {
  std::size_t width = 0;
  std::size_t height = 0;
  std::vector<Rgb8> pixels;  ///< width × height

  unsigned char* bytes() { return reinterpret_cast<unsigned char*>(pixels.data()); }
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

}  // namespace bench

#endif  // TQR7_BENCH_COLOUR_PICTURE_H
