// SPDX-License-Identifier: Apache-2.0
//
// The image header (ESC Z T), which announces the size and place of the pixels that follow it.
#ifndef TQR7_PROTOCOL_IMAGE_HEADER_H
#define TQR7_PROTOCOL_IMAGE_HEADER_H

#include <cstdio>

#include "image/band_image.h"
#include "job/print_setting.h"

/// Fills bytes 4 … 511 of a 512-byte block: place, image size, matte size and the local time of the
/// call. Bytes 0 … 3 are the caller's.
void create_header_zt(unsigned char* block, const tagPRINTSETTING* settings,
                      tagMVBandImageParams* image);

/// Writes the image header, 512 bytes, with `flag` as its fourth byte.
void wr_esc_ZT(std::FILE* out, const tagPRINTSETTING* settings, tagMVBandImageParams* image,
               unsigned char flag);

#endif  // TQR7_PROTOCOL_IMAGE_HEADER_H
