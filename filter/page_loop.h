// SPDX-License-Identifier: Apache-2.0
//
// The page loop: every page of the raster stream, from its header to its place on a sheet.
#ifndef TQR7_FILTER_PAGE_LOOP_H
#define TQR7_FILTER_PAGE_LOOP_H

#include <cups/ppd.h>
#include <cups/raster.h>

#include "job/print_setting.h"

/// Prints all pages of the stream and a half sheet that still waits at its end, and sends the
/// print-out command. `module_path` is the conversion library's directory. False when a page fails,
/// which ends the job there, or when libcups has no memory for a page: the pages before it print.
bool print_pages(cups_raster_t* raster, ppd_file_t* ppd, const tagPRINTSETTING& settings,
                 const char* module_path);

#endif  // TQR7_FILTER_PAGE_LOOP_H
