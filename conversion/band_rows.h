// SPDX-License-Identifier: Apache-2.0
//
// A checked band as rows from top to bottom, in either order of its lines in memory.
#ifndef TQR7_CONVERSION_BAND_ROWS_H
#define TQR7_CONVERSION_BAND_ROWS_H

#include <cstddef>

#include "image/band_image.h"

/// Rows of pixels. The memory belongs to the caller who filled the band record.
struct BandRows {
  unsigned char* topRow;  ///< first pixel of the top row
  std::ptrdiff_t step;    ///< bytes from a row to the row below it
  std::size_t width;      ///< pixels
  std::size_t height;     ///< rows

  unsigned char* row(std::size_t y) const { return topRow + static_cast<std::ptrdiff_t>(y) * step; }
};

/// The rows of a band that check_request() has accepted: nothing is checked again here.
inline BandRows rows_of(const tagMVBandImageParams& band) {
  const auto height = band.rcBand.bottom - band.rcBand.top;
  const auto width = band.rcBand.right - band.rcBand.left;
  const auto topLine = band.lStride < 0 ? 0 : height - 1;
  return {band.pBits + topLine * band.lStride, -band.lStride, static_cast<std::size_t>(width),
          static_cast<std::size_t>(height)};
}

#endif  // TQR7_CONVERSION_BAND_ROWS_H
