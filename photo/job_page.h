// SPDX-License-Identifier: Apache-2.0
//
// The page that a job's options choose: its dots, as the printer's filter will take them, and the
// header of its raster.
#ifndef TQR7_PHOTO_JOB_PAGE_H
#define TQR7_PHOTO_JOB_PAGE_H

#include <cups/cups.h>
#include <cups/ppd.h>
#include <cups/raster.h>

#include <cstddef>
#include <memory>

#include "photo/job_wishes.h"

namespace photo {

struct ClosePpd {
  void operator()(ppd_file_t* ppd) const { ppdClose(ppd); }
};

struct JobPage {
  std::size_t width = 0;   ///< dots of the image area
  std::size_t height = 0;  ///< the same
  bool borderless = false;
  double left = 0;               ///< points from the sheet's left edge to the image area's
  double top = 0;                ///< points from the sheet's lower edge to the image area's upper
  cups_page_header2_t header{};  ///< of a raster page of just that size
};

/// The page of the PPD that the environment names. False when there is none.
bool read_job_page(const char* optionText, const JobOptions& options, JobPage& page);

}  // namespace photo

#endif  // TQR7_PHOTO_JOB_PAGE_H
