// SPDX-License-Identifier: Apache-2.0
//
// A band image: a block of pixels in one buffer, with its place and its line order. The filter
// and the conversion library pass this record to each other.
#ifndef TQR7_IMAGE_BAND_IMAGE_H
#define TQR7_IMAGE_BAND_IMAGE_H

#include <cstddef>
#include <cstdint>

#include "image/rect.h"

/// A band of pixels. The record does not contain its depth: the caller of each operation passes the
/// bits per pixel that the band was made with. A copy of the record points to the same pixels.
struct tagMVBandImageParams {
  unsigned char* pBits;        ///< first byte of the buffer; null for a band without pixels
  std::int64_t lStride;        ///< bytes from line to line; negative: top row first in memory
  MV_TYPEDEF::tagRECT rcBand;  ///< place and size in pixels
};

// The conversion library may be the printer maker's own: this layout is its binary interface.
static_assert(sizeof(tagMVBandImageParams) == 48 && alignof(tagMVBandImageParams) == 8);
static_assert(offsetof(tagMVBandImageParams, pBits) == 0);
static_assert(offsetof(tagMVBandImageParams, lStride) == 8);
static_assert(offsetof(tagMVBandImageParams, rcBand) == 16);
static_assert(offsetof(tagMVBandImageParams, rcBand.top) == 24);
static_assert(offsetof(tagMVBandImageParams, rcBand.right) == 32);
static_assert(offsetof(tagMVBandImageParams, rcBand.bottom) == 40);

inline constexpr int kImageDepth = 48;  ///< bits a pixel of a converted page: three 16-bit channels
inline constexpr int kMatteDepth = 8;   ///< bits a pixel of a matte plane

/// The operations on band images. In both line orders the row below begins −lStride bytes after the
/// row above it.
class CImageUtility {
 public:
  /// Allocates a buffer for `rect`, with every byte 0xFF. A negative `direction` puts the top row
  /// first in memory, any other the bottom row. False without memory; stride and rectangle are set
  /// even then. Does not release a buffer that the record already has.
  static bool CreateBandImage(tagMVBandImageParams* image, const MV_TYPEDEF::tagRECT& rect,
                              int bitsPerPixel, int direction);

  /// Releases the band's buffer; does nothing for a null record or a band without one.
  static void DeleteBandImage(tagMVBandImageParams* image);

  /// Copies the pixels of the area that both rectangles cover, to the same coordinates. Both bands
  /// must have buffers, of the same line order. Always true.
  static bool CopyBandImage(tagMVBandImageParams* dest, const tagMVBandImageParams* src,
                            int bitsPerPixel);

  /// Repeats one pixel (`pattern`, bitsPerPixel / 8 bytes) over every line, as far as whole pixels
  /// fit into the stride. False when the band has no buffer.
  static bool FillBandImage(tagMVBandImageParams* image, int bitsPerPixel, void* pattern);
};

#endif  // TQR7_IMAGE_BAND_IMAGE_H
