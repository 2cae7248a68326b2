// SPDX-License-Identifier: Apache-2.0
#include "image/band_image.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

#include "image/page_memory.h"

namespace {

using MV_TYPEDEF::tagRECT;

// A rectangle may have any edges: arithmetic on them wraps instead of being undefined.
std::int64_t product(std::int64_t a, std::int64_t b) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) * static_cast<std::uint64_t>(b));
}

// Bytes of a buffer for the rectangle. An inverted rectangle, or one outside the number range, asks
// for more than any allocator has, never for a small buffer.
std::size_t buffer_size(const tagRECT& rect, std::int64_t bytes_per_pixel) {
  std::int64_t width = 0;
  std::int64_t height = 0;
  std::int64_t pixels = 0;
  std::int64_t size = 0;
  if (__builtin_sub_overflow(rect.right, rect.left, &width) ||
      __builtin_sub_overflow(rect.bottom, rect.top, &height) ||
      __builtin_mul_overflow(width, height, &pixels) ||
      __builtin_mul_overflow(pixels, bytes_per_pixel, &size) || size < 0) {
    return std::numeric_limits<std::size_t>::max();
  }
  return static_cast<std::size_t>(size);
}

// Fills `size` bytes with a pixel: copies what is there already, which doubles it each time.
void repeat_pixel(unsigned char* line, std::size_t size, const void* pixel,
                  std::size_t pixel_size) {
  if (size == 0) {
    return;
  }
  std::memcpy(line, pixel, pixel_size);
  for (std::size_t filled = pixel_size; filled < size; filled *= 2) {
    std::memcpy(line + filled, line, std::min(filled, size - filled));
  }
}

}  // namespace

bool CImageUtility::CreateBandImage(tagMVBandImageParams* image, const tagRECT& rect,
                                    int bitsPerPixel, int direction) {
  const std::int64_t bytes_per_pixel = bitsPerPixel / 8;
  const std::size_t size = buffer_size(rect, bytes_per_pixel);

  const std::int64_t line = product(rect_width(rect), bytes_per_pixel);
  image->lStride = direction < 0 ? product(line, -1) : line;
  image->rcBand = rect;
  image->pBits = new (std::nothrow) unsigned char[size];
  if (image->pBits == nullptr) {
    return false;
  }
  expect_writes(image->pBits, size);
  std::memset(image->pBits, 0xFF, size);
  return true;
}

void CImageUtility::DeleteBandImage(tagMVBandImageParams* image) {
  if (image != nullptr && image->pBits != nullptr) {
    delete[] image->pBits;
    image->pBits = nullptr;
  }
}

bool CImageUtility::CopyBandImage(tagMVBandImageParams* dest, const tagMVBandImageParams* src,
                                  int bitsPerPixel) {
  const std::int64_t bytes_per_pixel = bitsPerPixel / 8;
  tagRECT shared{};
  if (IntersectRect(&shared, &dest->rcBand, &src->rcBand) == 0) {
    return true;
  }

  const unsigned char* from = src->pBits;
  unsigned char* to = dest->pBits;
  // The source's line order counts for both: callers pass two bands of the same order.
  if (src->lStride >= 0) {
    const auto source_height = static_cast<std::int32_t>(src->rcBand.bottom - src->rcBand.top);
    const auto dest_height = static_cast<std::int32_t>(dest->rcBand.bottom - dest->rcBand.top);
    from += src->lStride * (source_height - 1);
    to += dest->lStride * (dest_height - 1);
  }
  from -= src->lStride * (shared.top - src->rcBand.top);
  to -= dest->lStride * (shared.top - dest->rcBand.top);

  const std::int64_t from_column = (shared.left - src->rcBand.left) * bytes_per_pixel;
  const std::int64_t to_column = (shared.left - dest->rcBand.left) * bytes_per_pixel;
  const auto count = static_cast<std::size_t>((shared.right - shared.left) * bytes_per_pixel);
  for (std::int64_t row = shared.top; row < shared.bottom; ++row) {
    std::memcpy(to + to_column, from + from_column, count);
    if (row + 1 < shared.bottom) {
      from -= src->lStride;
      to -= dest->lStride;
    }
  }
  return true;
}

bool CImageUtility::FillBandImage(tagMVBandImageParams* image, int bitsPerPixel, void* pattern) {
  if (image->pBits == nullptr) {
    return false;
  }
  const std::int64_t bytes_per_pixel = bitsPerPixel / 8;
  if (bytes_per_pixel <= 0) {
    return true;  // a pixel without bytes: there is nothing to write
  }
  const std::int64_t height = rect_height(image->rcBand);
  const std::int64_t stride = image->lStride;
  const std::int64_t whole_pixels = (stride < 0 ? -stride : stride) / bytes_per_pixel;
  const auto size = static_cast<std::size_t>(whole_pixels * bytes_per_pixel);
  if (height <= 0) {
    return true;
  }
  unsigned char* line = image->pBits;
  if (stride >= 0) {
    line += stride * (height - 1);
  }
  repeat_pixel(line, size, pattern, static_cast<std::size_t>(bytes_per_pixel));
  for (std::int64_t row = 1; row < height; ++row) {
    std::memcpy(line - stride, line, size);
    line -= stride;
  }
  return true;
}
