// SPDX-License-Identifier: Apache-2.0
#include "protocol/job_header.h"

#include <cstring>

#include "job/job_state.h"
#include "protocol/command_block.h"

namespace {

// Byte offsets in the block, in the printer's order.
constexpr std::size_t kOffsetFixed5 = 5;
constexpr std::size_t kOffsetPaperWidth = 6;
constexpr std::size_t kOffsetPaperHeight = 8;
constexpr std::size_t kOffsetWait = 10;
constexpr std::size_t kOffsetMarginCutOff = 14;
constexpr std::size_t kOffsetTwoUpMode = 15;
constexpr std::size_t kOffsetTwoUpSplit = 16;
constexpr std::size_t kOffsetTwoUpOption = 18;
constexpr std::size_t kOffsetPrintFinish = 48;
constexpr std::size_t kOffsetPrintMode = 49;
constexpr std::size_t kOffsetFixed50 = 50;
constexpr std::size_t kOffsetFixed58 = 58;
constexpr std::size_t kOffsetFixed80 = 80;
constexpr std::size_t kOffsetRgbRate = 81;
constexpr std::size_t kOffsetOpRate = 82;

constexpr unsigned char kDoNotWait = 0xFF;
constexpr std::size_t kOffsetPrintoutWait = 5;

// How long the printer waits for a next image.
unsigned char wait_byte(const tagPRINTSETTING* settings) {
  return (settings->byWaitNextImage & 1U) != 0 ? settings->byWaitTime : kDoNotWait;
}

}  // namespace

void create_header_sp(unsigned char* block, const tagPRINTSETTING* settings) {
  std::memset(block + kCommandCodeSize, 0, kCommandBlockSize - kCommandCodeSize);
  block[kOffsetFixed5] = 0x33;
  put_big_endian_16(block, kOffsetPaperWidth, static_cast<std::uint32_t>(settings->nPaperWidth));
  put_big_endian_16(block, kOffsetPaperHeight, static_cast<std::uint32_t>(settings->nPaperHeight));
  block[kOffsetWait] = wait_byte(settings);
  block[kOffsetMarginCutOff] = settings->byMarginCutOff & 1U;
  block[kOffsetTwoUpMode] = settings->byTwoUpMode;
  put_big_endian_16(block, kOffsetTwoUpSplit, settings->nTwoUpSplit);
  block[kOffsetTwoUpOption] = settings->byTwoUpOption;
  block[kOffsetPrintFinish] = settings->byPrintFinish;
  block[kOffsetPrintMode] = settings->byPrintMode;
  block[kOffsetFixed50] = 0x01;
  block[kOffsetFixed58] = 0x02;
  block[kOffsetFixed80] = 0x01;
  block[kOffsetRgbRate] = gRgbRate;
  block[kOffsetOpRate] = gOpRate;
}

void wr_esc_SP(std::FILE* out, const tagPRINTSETTING* settings) {
  unsigned char block[kCommandBlockSize] = {0x1B, 'S', 'P', '0'};
  create_header_sp(block, settings);
  write_command(out, block, sizeof block);
}

void wr_esc_printout(std::FILE* out, const tagPRINTSETTING* settings) {
  unsigned char command[] = {0x1B, 'B', 'Q', '1', 0x00, 0x00};
  command[kOffsetPrintoutWait] = wait_byte(settings);
  write_command(out, command, sizeof command);
}
