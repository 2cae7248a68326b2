// SPDX-License-Identifier: Apache-2.0
//
// From converted pages to sheets: most sizes print one page a sheet, one size joins two pages.
#ifndef TQR7_FILTER_SHEET_ASSEMBLY_H
#define TQR7_FILTER_SHEET_ASSEMBLY_H

#include "image/band_image.h"
#include "job/print_setting.h"

/// Prints the converted page (48 bits a pixel), or parks the first page of a joined sheet in
/// gImageCache. False when printing failed or the sheet cache could not be made.
bool print_page(const tagPRINTSETTING* settings, tagMVBandImageParams* image);

/// Prints the joined sheet that still waits for its second page when the job ends. True when none
/// waits, else print_image's result.
bool print_last_page(const tagPRINTSETTING* settings);

/// Releases the sheet's memory: the cache of a joined sheet and the matte plane.
void release_sheet();

#endif  // TQR7_FILTER_SHEET_ASSEMBLY_H
