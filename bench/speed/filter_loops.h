// SPDX-License-Identifier: Apache-2.0
//
// What the filter does with each byte of a page outside the conversion, beside the C library's
// fastest way to move as many.
#ifndef TQR7_BENCH_SPEED_FILTER_LOOPS_H
#define TQR7_BENCH_SPEED_FILTER_LOOPS_H

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "bench/picture.h"
#include "bench/speed/kernel_race.h"
#include "image/band_image.h"

namespace bench {

/// A loop of the filter and its floor.
struct FilterLoop {
  std::string name;
  std::string floorName;
  Moved moved;
  std::function<void()> work;
  std::function<void()> floor;
};

/// The filter's loops on a page of the picture's size.
class FilterLoops {
 public:
  /// `page` has to outlive this. Throws std::runtime_error when there is no /dev/null, and
  /// std::bad_alloc without memory.
  explicit FilterLoops(const Picture& page);
  ~FilterLoops();
  FilterLoops(const FilterLoops&) = delete;
  FilterLoops& operator=(const FilterLoops&) = delete;

  std::vector<FilterLoop> all();
  std::size_t pixels() const { return page_.pixels.size(); }

 private:
  FilterLoop line_copy();
  FilterLoop white_band();
  FilterLoop white_sheet();
  FilterLoop sheet_copy();
  FilterLoop image_transfer();
  FilterLoop matte_transfer();

  const Picture& page_;
  std::size_t imageBytes_;
  tagMVBandImageParams image_{};
  tagMVBandImageParams sheet_{};
  tagMVBandImageParams matte_{};
  std::vector<unsigned char> pageBuffer_;
  std::FILE* nowhere_;
};

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_FILTER_LOOPS_H
