// SPDX-License-Identifier: Apache-2.0
//
// Instructions for one page: of the filter beside the library that only widens, of the floor that
// moves the same bytes, and of our conversion.
#ifndef TQR7_BENCH_SPEED_PAGE_INSTRUCTIONS_H
#define TQR7_BENCH_SPEED_PAGE_INSTRUCTIONS_H

#include <cstdint>
#include <string>

#include "bench/speed/raster_pages.h"

namespace bench {

struct PageInstructions {
  std::uint64_t first = 0;    ///< what a job of one page takes beyond a job of none
  std::uint64_t further = 0;  ///< what a job of two pages takes beyond a job of one
};

/// A page of 1852 × 1232 pixels, raw.
PageInstructions floor_page(Content content);
PageInstructions filter_page(Content content);

/// The best loops of the conversion that valgrind's processor runs.
struct CountedTarget {
  std::int64_t number = 0;
  std::string name = {};
};
CountedTarget counted_target();

/// A pixel of a further page through the conversion alone: all settings off, or colours, sharpening
/// and a matte plane on.
double conversion_pixel(bool on);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_PAGE_INSTRUCTIONS_H
