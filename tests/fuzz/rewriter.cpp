// SPDX-License-Identifier: Apache-2.0
#include "tests/fuzz/rewriter.h"

#include <cstring>
#include <ctime>

#include "job/job_state.h"
#include "protocol/image_header.h"
#include "protocol/job_header.h"
#include "protocol/plane_transfer.h"
#include "protocol/readiness_check.h"
#include "status/status_query.h"
#include "tests/fuzz/fake_printer.h"

namespace {

constexpr std::uint8_t kDoNotWait = 0xFF;
constexpr std::int64_t kImageBytes = 6;  // a pixel
constexpr std::uint64_t kGaps = 4;

std::tm g_local_time{};

void set_wait(tagPRINTSETTING& settings, std::uint8_t wait) {
  settings.byWaitNextImage = wait == kDoNotWait ? 0 : 1;
  settings.byWaitTime = wait;
}

tagPRINTSETTING settings_of(const decoder::JobHeader& header) {
  tagPRINTSETTING settings{};
  settings.nPaperWidth = header.sheetWidth;
  settings.nPaperHeight = header.sheetHeight;
  set_wait(settings, header.waitByte);
  settings.byMarginCutOff = header.marginCutOff;
  settings.byTwoUpMode = header.twoUpMode;
  settings.nTwoUpSplit = header.twoUpSplit;
  settings.byTwoUpOption = header.twoUpOption;
  settings.byPrintFinish = header.finish;
  settings.byPrintMode = header.printMode;
  gRgbRate = header.rgbRate;
  gOpRate = header.opRate;
  return settings;
}

void set_local_time(const decoder::ImageHeader& header) {
  g_local_time.tm_year = header.year - 1900;
  g_local_time.tm_mon = header.month - 1;
  g_local_time.tm_mday = header.day;
  g_local_time.tm_hour = header.hour;
  g_local_time.tm_min = header.minute;
  g_local_time.tm_sec = header.second;
}

}  // namespace

extern "C" std::tm* localtime(const std::time_t* /*moment*/) noexcept {
  return &g_local_time;
}

namespace fuzz {

void Rewriter::Plane::Make(std::int64_t pixels, std::int64_t rows, std::int64_t depth,
                           std::uint64_t seed) {
  const auto gap = static_cast<std::int64_t>(seed / 2 % kGaps);
  width = pixels;
  height = rows;
  stride = pixels * depth + gap;
  // No gap behind the last line: a step beyond it is seen.
  const std::int64_t size = rows > 0 ? stride * rows - gap : 0;
  bytes.assign(static_cast<std::size_t>(size), 0x5A);
  bytes.shrink_to_fit();
  stride = seed % 2 == 0 ? -stride : stride;
}

unsigned char* Rewriter::Plane::Row(std::int64_t row) {
  return bytes.data() + (stride < 0 ? -stride * row : stride * (height - 1 - row));
}

tagMVBandImageParams Rewriter::Plane::Band() {
  return {bytes.data(), stride, {0, 0, width, height}};
}

Rewriter::Rewriter(std::uint64_t seed) : seed_(seed) {}

void Rewriter::OnStatusRequest(std::uint64_t /*offset*/) {
  printer() = {};
  get_printer_state();
}

void Rewriter::OnReadinessQuery(std::uint64_t /*offset*/, const decoder::JobHeader& header) {
  printer() = {};
  settings_ = settings_of(header);
  wr_esc_enable(fpOut, &settings_);
}

void Rewriter::OnJobHeader(std::uint64_t /*offset*/, const decoder::JobHeader& header) {
  settings_ = settings_of(header);
  wr_esc_SP(fpOut, &settings_);
}

void Rewriter::OnImageHeader(std::uint64_t /*offset*/, const decoder::ImageHeader& header) {
  settings_.nImageLeft = header.left;
  settings_.nImageTop = header.top;
  set_local_time(header);
  image_.Make(header.width, header.height, kImageBytes, seed_);
  matte_.Make(header.matteWidth, header.matteHeight, 1, seed_ / 3);
  tagMVBandImageParams image = image_.Band();
  gMatteImage = matte_.Band();
  wr_esc_ZT(fpOut, &settings_, &image, header.flag);
}

void Rewriter::OnImageRow(std::uint32_t row, std::span<const std::uint16_t> samples) {
  std::memcpy(image_.Row(row), samples.data(), samples.size_bytes());
}

void Rewriter::OnMatteRow(std::uint32_t row, std::span<const std::uint8_t> bytes) {
  std::memcpy(matte_.Row(row), bytes.data(), bytes.size());
}

void Rewriter::OnSheetEnd(const decoder::SheetEnd& /*end*/) {
  const tagMVBandImageParams image = image_.Band();
  send_image_data(fpOut, &image);
  if (settings_.byPrintFinish == kFinishMatte) {
    send_matte_data(fpOut, &gMatteImage);
  }
  gMatteImage = {};
}

void Rewriter::OnPrintOut(std::uint64_t /*offset*/, std::uint8_t waitByte) {
  set_wait(settings_, waitByte);
  wr_esc_printout(fpOut, &settings_);
}

}  // namespace fuzz
