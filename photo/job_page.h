// SPDX-License-Identifier: Apache-2.0
//
// The page that a job's options choose, as the printer's filter will take it, and the CUPS raster
// stream that finished pages are written to.
#ifndef TQR7_PHOTO_JOB_PAGE_H
#define TQR7_PHOTO_JOB_PAGE_H

#include <cups/raster.h>

#include <cstddef>
#include <cstdint>
#include <memory>

#include "photo/job_wishes.h"

namespace photo {

struct JobPage {
  std::size_t width = 0;   ///< dots of the image area
  std::size_t height = 0;  ///< the same
  bool borderless = false;
  double left = 0;  ///< points from the sheet's left edge to the left edge of the image area
  double top = 0;   ///< points from the sheet's lower edge to the upper edge of the image area
  cups_page_header2_t header{};  ///< of a raster page of this size
};

/// Reads the page from the PPD file that the environment names. Returns false when there is none.
bool read_job_page(const char* optionText, const JobOptions& options, JobPage& page);

struct CloseRaster {
  void operator()(cups_raster_t* raster) const { cupsRasterClose(raster); }
};
using Raster = std::unique_ptr<cups_raster_t, CloseRaster>;

/// Begins a stream on the standard output, uncompressed like those of the system's own filters.
/// Returns null when there is no memory for it.
Raster open_output();

/// Writes one page of header.cupsHeight rows of header.cupsBytesPerLine bytes. Returns false when
/// the next program takes no more.
bool write_page(cups_raster_t* raster, const cups_page_header2_t& header, const std::uint8_t* rows);

}  // namespace photo

#endif  // TQR7_PHOTO_JOB_PAGE_H
