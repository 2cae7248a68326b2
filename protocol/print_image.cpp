// SPDX-License-Identifier: Apache-2.0
#include "protocol/print_image.h"

#include <unistd.h>

#include <cstdio>
#include <exception>
#include <string>

#include "job/job_state.h"
#include "job/progress.h"
#include "protocol/image_header.h"
#include "protocol/job_header.h"
#include "protocol/plane_transfer.h"
#include "protocol/readiness_check.h"
#include "status/printer_check.h"

namespace {

constexpr unsigned char kImageFlag = 0x01;
constexpr int kPercentPrinted = 100;
constexpr unsigned int kPauseAfterRefusal = 1;  // seconds
constexpr unsigned int kPauseAfterImage = 5;

bool printer_takes_sheet(const tagPRINTSETTING* settings) {
  try {
    const std::string refusal = ExaminePage(settings);
    if (refusal.empty()) {
      return true;
    }
    std::fprintf(stderr, "DEBUG: %s\n", refusal.c_str());
  } catch (const std::exception&) {  // no memory for the text
    std::fprintf(stderr, "DEBUG: ExaminePage() Error\n");
  }
  sleep(kPauseAfterRefusal);
  return false;
}

// A write that fails is not noticed here: the next exchange with the printer notices it.
void send_sheet(const tagPRINTSETTING* settings, tagMVBandImageParams* image) {
  wr_esc_SP(fpOut, settings);
  wr_esc_ZT(fpOut, settings, image, kImageFlag);
  send_image_data(fpOut, image);
  if (settings->byPrintFinish == kFinishMatte) {
    send_matte_data(fpOut, &gMatteImage);
  }
}

}  // namespace

bool print_image(const tagPRINTSETTING* settings, tagMVBandImageParams* image) {
  if (!printer_is_good() || !printer_takes_sheet(settings)) {
    return false;
  }
  send_sheet(settings, image);
  report_progress(kPercentPrinted);
  // The pause comes before the flush: the tail of the image must reach the printer after it.
  sleep(kPauseAfterImage);
  const OutputCall call;
  static_cast<void>(std::fflush(fpOut));
  return true;
}
