// SPDX-License-Identifier: Apache-2.0
//
// Bytes and raster page headers, written out to standard error.
#ifndef TQR7_DIAG_DUMP_H
#define TQR7_DIAG_DUMP_H

#include <cups/raster.h>

/// Writes `size` bytes in hexadecimal, 16 a line, each line a "DEBUG: " line under the label.
void dump_mem(const char* label, const void* data, int size);

/// Writes a raster page header, a line a field.
void dump(const cups_page_header_t* header);

#endif  // TQR7_DIAG_DUMP_H
