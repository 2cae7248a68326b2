// SPDX-License-Identifier: Apache-2.0
//
// One page through the conversion library: what the library gets, and what it says about the page.
#ifndef TQR7_FILTER_PAGE_CONVERSION_H
#define TQR7_FILTER_PAGE_CONVERSION_H

#include "image/band_image.h"
#include "job/print_setting.h"

/// Converts the page buffer into `converted`, a new band (48 bits a pixel, top row first) that the
/// caller deletes, also after a failure. The first page of a sheet resets the sheet's rates and,
/// for a matte finish, makes its matte plane. False when a band cannot be made or the library does
/// not convert the page.
bool convert_page(const tagPRINTSETTING* settings, const char* module_path,
                  tagMVBandImageParams* converted);

#endif  // TQR7_FILTER_PAGE_CONVERSION_H
