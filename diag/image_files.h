// SPDX-License-Identifier: Apache-2.0
//
// Debug files of image data. Not for use in a job: progress goes to standard output.
#ifndef TQR7_DIAG_IMAGE_FILES_H
#define TQR7_DIAG_IMAGE_FILES_H

#include "image/band_image.h"

/// Writes `size` bytes to a file that everyone may read and write. False when an argument is
/// missing, the file cannot be opened or the write falls short.
bool save_memory(const char* path, const void* data, unsigned long size);

/// Writes a band's lines as they lie in memory to a file named by a template (format_string_util).
bool save_image_as_raw(const char* name_template, const tagMVBandImageParams* image);

/// Expands a file-name template into `out` of `size` bytes: %W width, %H height, %B bits per pixel,
/// %C a running number of this process, %T the local time; any other letter after % gives nothing.
/// False when the text does not fit; `out` is terminated within its size all the same (size 0:
/// nothing is written). A null band counts as 0 × 0 pixels.
bool format_string_util(char* out, unsigned long size, const char* name_template,
                        const tagMVBandImageParams* image);

#endif  // TQR7_DIAG_IMAGE_FILES_H
