// SPDX-License-Identifier: Apache-2.0
#include "protocol/plane_transfer.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>

#include "job/job_state.h"
#include "job/progress.h"

namespace {

// 32,768 image pixels. A multiple of 6, so that a full buffer ends after a whole pixel, though
// seldom after a whole row.
constexpr std::size_t kStagingSize = 0x30000;
constexpr std::size_t kBytesPerImagePixel = 6;
static_assert(kStagingSize % kBytesPerImagePixel == 0);

constexpr int kPercentBeforeTransfer = 50;  // reading the page was the first half
constexpr int kPercentOfTransfer = 50;
constexpr int kPercentSent = 99;

using Staging = std::unique_ptr<unsigned char[]>;

Staging take_staging() {
  return Staging(new (std::nothrow) unsigned char[kStagingSize]);
}

bool write_block(std::FILE* out, const unsigned char* bytes, std::size_t size) {
  const OutputCall call;
  return std::fwrite(bytes, size, 1, out) == 1;
}

struct Lines {
  const unsigned char* top;  // first byte of the top row
  std::int32_t width;        // pixels
  std::int32_t height;       // rows
};

Lines lines_of(const tagMVBandImageParams* band) {
  Lines lines{band->pBits, static_cast<std::int32_t>(rect_width(band->rcBand)),
              static_cast<std::int32_t>(rect_height(band->rcBand))};
  if (band->lStride >= 0 && lines.height > 0) {
    lines.top += band->lStride * (lines.height - 1);
  }
  return lines;
}

// The printer takes the low byte of a sample first, on machines of either byte order.
void stage_pixels(unsigned char* to, const unsigned char* from, std::size_t pixels) {
  if constexpr (std::endian::native == std::endian::little) {
    std::memcpy(to, from, pixels * kBytesPerImagePixel);
    return;
  }
  for (std::size_t i = 0; i < pixels * 3; ++i) {
    std::uint16_t sample = 0;
    std::memcpy(&sample, from + 2 * i, sizeof sample);
    to[2 * i] = static_cast<unsigned char>(sample & 0xFFU);
    to[2 * i + 1] = static_cast<unsigned char>(sample >> 8U);
  }
}

void stage_bytes(unsigned char* to, const unsigned char* from, std::size_t bytes) {
  std::memcpy(to, from, bytes);
}

// Copies the band's rows, from the top, into a buffer, and writes the buffer each time it is full.
// Then `wrote` is called with the row in which that buffer ended, and at last with −1 for the rest.
template <typename Stage, typename Wrote>
bool send_rows(std::FILE* out, const tagMVBandImageParams* band, std::size_t bytes_per_pixel,
               Stage stage, Wrote wrote) {
  const Staging staging = take_staging();
  if (staging == nullptr) {
    return false;
  }
  const Lines lines = lines_of(band);
  const std::size_t capacity = kStagingSize / bytes_per_pixel;  // pixels
  std::size_t filled = 0;
  for (std::int32_t row = 0; row < lines.height; ++row) {
    const unsigned char* from = lines.top - band->lStride * row;
    auto left = lines.width > 0 ? static_cast<std::size_t>(lines.width) : 0;
    while (left > 0) {
      const std::size_t run = left < capacity - filled ? left : capacity - filled;
      stage(staging.get() + filled * bytes_per_pixel, from, run);
      from += run * bytes_per_pixel;
      filled += run;
      left -= run;
      if (filled == capacity) {
        if (!write_block(out, staging.get(), kStagingSize)) {
          return false;
        }
        wrote(row, lines.height);
        filled = 0;
      }
    }
  }
  if (filled > 0) {
    if (!write_block(out, staging.get(), filled * bytes_per_pixel)) {
      return false;
    }
    wrote(-1, lines.height);
  }
  return true;
}

}  // namespace

bool send_image_data(std::FILE* out, const tagMVBandImageParams* image) {
  return send_rows(
      out, image, kBytesPerImagePixel, stage_pixels, [](std::int32_t row, std::int32_t height) {
        const std::int64_t share = std::int64_t{row} * kPercentOfTransfer / height;
        report_progress(row < 0 ? kPercentSent : kPercentBeforeTransfer + static_cast<int>(share));
      });
}

bool send_matte_data(std::FILE* out, const tagMVBandImageParams* matte) {
  return send_rows(out, matte, 1, stage_bytes, [](std::int32_t, std::int32_t) {});
}
