// SPDX-License-Identifier: Apache-2.0
//
// Finished pages as a CUPS raster stream on the standard output.
#ifndef TQR7_PHOTO_PAGE_OUTPUT_H
#define TQR7_PHOTO_PAGE_OUTPUT_H

#include <cups/raster.h>

#include <cstddef>
#include <cstdint>
#include <memory>

namespace photo {

struct CloseRaster {
  void operator()(cups_raster_t* raster) const { cupsRasterClose(raster); }
};
using Raster = std::unique_ptr<cups_raster_t, CloseRaster>;

/// Begins a stream, uncompressed as the system's own filters write it; null when it cannot.
Raster open_output();

/// Writes one page of header.cupsHeight rows of header.cupsBytesPerLine bytes. False when the next
/// program takes no more.
bool write_page(cups_raster_t* raster, const cups_page_header2_t& header, const std::uint8_t* rows);

}  // namespace photo

#endif  // TQR7_PHOTO_PAGE_OUTPUT_H
