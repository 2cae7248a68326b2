// SPDX-License-Identifier: Apache-2.0
//
// The page loop: every page of the raster stream, from its header to its place on a sheet.
#ifndef TQR7_FILTER_PAGE_LOOP_H
#define TQR7_FILTER_PAGE_LOOP_H

#include <cups/ppd.h>
#include <cups/raster.h>

#include "job/print_setting.h"

/// Prints all pages of the stream, the half sheet that may wait at its end, and ends the job on the
/// printer. `module_path` is the conversion library's directory. False when a page fails, which
/// ends the job there, or libcups has no memory for one: the pages end before it.
bool print_pages(cups_raster_t* raster, ppd_file_t* ppd, const tagPRINTSETTING& settings,
                 const char* module_path);

#endif  // TQR7_FILTER_PAGE_LOOP_H
