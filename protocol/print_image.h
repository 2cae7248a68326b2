// SPDX-License-Identifier: Apache-2.0
//
// One sheet from end to end: the checks, the headers, the pixels, the pause.
#ifndef TQR7_PROTOCOL_PRINT_IMAGE_H
#define TQR7_PROTOCOL_PRINT_IMAGE_H

#include "image/band_image.h"
#include "job/print_setting.h"

/// Prints one 48-bit band as a sheet (with gMatteImage for a matte finish). False when the printer
/// is not good or does not take the sheet; nothing of the image is sent in that case.
bool print_image(const tagPRINTSETTING* settings, tagMVBandImageParams* image);

#endif  // TQR7_PROTOCOL_PRINT_IMAGE_H
