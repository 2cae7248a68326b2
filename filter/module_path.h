// SPDX-License-Identifier: Apache-2.0
//
// Where the filter and its companion files are installed, according to the PPD.
#ifndef TQR7_FILTER_MODULE_PATH_H
#define TQR7_FILTER_MODULE_PATH_H

#include <cups/ppd.h>

/// Writes the directory of the PPD's CUPS raster filter, with its trailing "/", into `buffer` of
/// `size` bytes. False, with the buffer as it was, when no cupsFilter line takes CUPS raster, the
/// first that does names no directory, the directory does not fit, or the PPD is null.
bool get_filter_path(const ppd_file_s* ppd, char* buffer, int size);

#endif  // TQR7_FILTER_MODULE_PATH_H
