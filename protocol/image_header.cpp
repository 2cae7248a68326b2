// SPDX-License-Identifier: Apache-2.0
#include "protocol/image_header.h"

#include <algorithm>
#include <cstring>
#include <ctime>

#include "job/job_state.h"
#include "protocol/command_block.h"

namespace {

// Byte offsets in the block, in the printer's order.
constexpr std::size_t kOffsetFixed5 = 5;
constexpr std::size_t kOffsetImageLeft = 6;
constexpr std::size_t kOffsetImageTop = 8;
constexpr std::size_t kOffsetImageWidth = 10;
constexpr std::size_t kOffsetImageHeight = 12;
constexpr std::size_t kOffsetMatteWidth = 20;
constexpr std::size_t kOffsetMatteHeight = 22;
constexpr std::size_t kOffsetYear = 32;
constexpr std::size_t kOffsetMonth = 34;
constexpr std::size_t kOffsetDay = 35;
constexpr std::size_t kOffsetHour = 36;
constexpr std::size_t kOffsetMinute = 37;
constexpr std::size_t kOffsetSecond = 38;

constexpr int kLastSecond = 59;  // the printer knows no leap seconds

// Stores the width and the height of a band as two neighbouring numbers.
void put_size(unsigned char* block, std::size_t offset, const tagMVBandImageParams& band) {
  put_big_endian_16(block, offset, static_cast<std::uint32_t>(rect_width(band.rcBand)));
  put_big_endian_16(block, offset + 2, static_cast<std::uint32_t>(rect_height(band.rcBand)));
}

// Stores the local time. The fields stay zero if the clock cannot be read.
void put_time(unsigned char* block) {
  const std::time_t now = std::time(nullptr);
  const std::tm* local = std::localtime(&now);
  if (local == nullptr) {
    return;
  }
  put_big_endian_16(block, kOffsetYear, static_cast<std::uint32_t>(local->tm_year) + 1900U);
  block[kOffsetMonth] = static_cast<unsigned char>(local->tm_mon + 1);
  block[kOffsetDay] = static_cast<unsigned char>(local->tm_mday);
  block[kOffsetHour] = static_cast<unsigned char>(local->tm_hour);
  block[kOffsetMinute] = static_cast<unsigned char>(local->tm_min);
  block[kOffsetSecond] = static_cast<unsigned char>(std::min(local->tm_sec, kLastSecond));
}

}  // namespace

void create_header_zt(unsigned char* block, const tagPRINTSETTING* settings,
                      tagMVBandImageParams* image) {
  std::memset(block + kCommandCodeSize, 0, kCommandBlockSize - kCommandCodeSize);
  block[kOffsetFixed5] = 0x09;
  put_big_endian_16(block, kOffsetImageLeft, static_cast<std::uint32_t>(settings->nImageLeft));
  put_big_endian_16(block, kOffsetImageTop, static_cast<std::uint32_t>(settings->nImageTop));
  static_assert(kOffsetImageHeight == kOffsetImageWidth + 2);
  put_size(block, kOffsetImageWidth, *image);
  if (settings->byPrintFinish == kFinishMatte) {
    static_assert(kOffsetMatteHeight == kOffsetMatteWidth + 2);
    put_size(block, kOffsetMatteWidth, gMatteImage);
  }
  put_time(block);
}

void wr_esc_ZT(std::FILE* out, const tagPRINTSETTING* settings, tagMVBandImageParams* image,
               unsigned char flag) {
  unsigned char block[kCommandBlockSize] = {0x1B, 'Z', 'T', flag};
  create_header_zt(block, settings, image);
  write_command(out, block, sizeof block);
}
