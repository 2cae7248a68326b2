// SPDX-License-Identifier: Apache-2.0
//
// Raster streams as the scheduler's own filters write them, made with libcups.
#ifndef TQR7_TESTS_FILTER_RASTER_MAKER_H
#define TQR7_TESTS_FILTER_RASTER_MAKER_H

#include <cups/raster.h>

#include <string>
#include <vector>

namespace filter_test {

/// Pixels of a page, 24-bit RGB, top row first.
struct Pixels {
  int width = 0;
  int height = 0;
  std::string rgb;

  /// A pattern in which no two neighbours, rows or pages (`number`) look alike.
  static Pixels Pattern(int width, int height, int number = 1);
  static Pixels White(int width, int height);

  /// This page laid on white of another size, both top left; what does not fit is cut.
  Pixels On(int other_width, int other_height) const;
};

struct RasterPage {
  cups_page_header2_t header = {};
  std::string lines;  ///< may be fewer than the header promises

  explicit RasterPage(const Pixels& pixels, unsigned copies = 1);
  /// Another depth: `bytes_per_line` bytes a line.
  RasterPage(unsigned width, unsigned height, unsigned bits_per_pixel, unsigned bytes_per_line,
             std::string page_lines);
};

/// The pages in one stream. `mode`: CUPS_RASTER_WRITE or CUPS_RASTER_WRITE_COMPRESSED.
std::string RasterStream(const std::vector<RasterPage>& pages,
                         cups_mode_t mode = CUPS_RASTER_WRITE);

/// One page whose header libcups would not write, and just the lines that it has.
std::string UncheckedStream(const RasterPage& page);

/// One page in the first version of the format: the short header, no compression.
std::string FirstVersionStream(const Pixels& pixels);

}  // namespace filter_test

#endif  // TQR7_TESTS_FILTER_RASTER_MAKER_H
