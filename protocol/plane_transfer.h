// SPDX-License-Identifier: Apache-2.0
//
// The pixels of a sheet as the printer reads them: the image, 6 bytes a pixel, and the matte plane,
// one byte a pixel; top row first, left to right, without padding.
#ifndef TQR7_PROTOCOL_PLANE_TRANSFER_H
#define TQR7_PROTOCOL_PLANE_TRANSFER_H

#include <cstdio>

#include "image/band_image.h"

/// Writes a 48-bit band, each sample low byte first, and reports progress from 50 to 99 per cent.
/// False at the first write that fails, or without memory. Does not flush.
bool send_image_data(std::FILE* out, const tagMVBandImageParams* image);

/// Writes an 8-bit band without progress lines. False at the first write that fails, or without
/// memory. Does not flush.
bool send_matte_data(std::FILE* out, const tagMVBandImageParams* matte);

#endif  // TQR7_PROTOCOL_PLANE_TRANSFER_H
