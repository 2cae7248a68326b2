// SPDX-License-Identifier: Apache-2.0
//
// CUPS raster streams in memory, for tests of the programs that write and read them.
#ifndef TQR7_TESTS_UNIT_RASTER_BYTES_H
#define TQR7_TESTS_UNIT_RASTER_BYTES_H

#include <cups/raster.h>
#include <gmock/gmock.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

using Rgb = std::array<int, 3>;

inline constexpr Rgb kWhite = {255, 255, 255};

struct RasterPage {
  cups_page_header2_t header;
  std::uint32_t width;
  std::uint32_t height;
  std::vector<std::uint8_t> rgb;

  Rgb At(std::size_t x, std::size_t y) const {
    const std::uint8_t* const dot = &rgb.at(3 * (y * width + x));
    return {dot[0], dot[1], dot[2]};
  }
};

/// All pages of a stream of 24 bits a dot.
std::vector<RasterPage> pages_of(const std::string& stream);

/// A stream of these pages, uncompressed.
std::string stream_of(const std::vector<RasterPage>& pages);

/// A page of one colour.
RasterPage flat_page(std::uint32_t width, std::uint32_t height, const Rgb& colour);

/// A PNG of 2 x 2 pixels of one colour, 255 of `cover` being all there.
std::string transparent_png(std::uint8_t red, std::uint8_t green, std::uint8_t blue,
                            std::uint8_t cover);

MATCHER_P(Near, wanted, "") {
  for (std::size_t i = 0; i < 3; ++i) {
    if (std::abs(arg[i] - wanted[i]) > 1) {
      return false;
    }
  }
  return true;
}

#endif  // TQR7_TESTS_UNIT_RASTER_BYTES_H
