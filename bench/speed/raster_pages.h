// SPDX-License-Identifier: Apache-2.0
//
// Raster streams of any number of pages, written by libcups itself: what a filter is measured on.
#ifndef TQR7_BENCH_SPEED_RASTER_PAGES_H
#define TQR7_BENCH_SPEED_RASTER_PAGES_H

#include <cstddef>
#include <cstdint>

#include "bench/picture.h"

namespace bench {

/// What a page shows: a photo with a camera's grain, nothing, or bytes at random.
enum class Content { Photo, White, Noise };

/// The colours of a raster page: a byte each of red, green and blue; one bit a pixel; or four
/// planes of one bit behind each other in each line. The bits come from an ordered 4 × 4 screen.
enum class RasterColours { Rgb, Black, KcmyPlanes };

/// How a stream is written: line by line as it is, which is what the filters of a chain pass to
/// each other, or in libcups' run lengths.
enum class RasterForm { Raw, Compressed };

/// What a PPD asks for besides, which the header of a page hands to the filter.
struct RasterStyle {
  RasterForm form = RasterForm::Raw;
  RasterColours colours = RasterColours::Rgb;
  unsigned compression = 0;  ///< in the printer's language
  unsigned row_count = 0;    ///< jets
  unsigned row_feed = 0;
  unsigned row_step = 0;
};

/// A page of so many pixels. The seed is that of the noise alone.
Picture page_picture(Content content, std::size_t width, std::size_t height, std::uint32_t seed);

/// Writes a stream of `pages` times the same page to the descriptor, each with the header that a
/// page of 300 dots an inch has. False when libcups cannot write it.
bool write_raster(int descriptor, const Picture& page, int pages, const RasterStyle& style);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_RASTER_PAGES_H
