// SPDX-License-Identifier: Apache-2.0
#include "tests/filter/expected_log.h"

#include <cstdio>
#include <sstream>

#include "tests/reason_keywords.h"

namespace filter_test {
namespace {

constexpr int kBufferedPixels = 32768;  // 196,608 bytes of 6 to a pixel
constexpr int kBytesPerDumpLine = 16;

std::string Progress(int page, int percent) {
  return "INFO: Printing page " + std::to_string(page) + ", " + std::to_string(percent) +
         "% complete...\n";
}

std::string State(const std::string& text) {
  return "DEBUG: =======> printer_state=" + text + "\n";
}

}  // namespace

std::string Dump(const std::string& label, const std::string& bytes) {
  std::string text = "DEBUG: " + label + " size=" + std::to_string(bytes.size());
  char number[24];
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (i % kBytesPerDumpLine == 0) {
      std::snprintf(number, sizeof number, " %04zx:", i);
      text += "\nDEBUG: " + label + number;
    }
    std::snprintf(number, sizeof number, " %02x", static_cast<unsigned char>(bytes[i]));
    text += number;
  }
  return text + "\n";
}

std::string StatusExchange(const std::string& reply) {
  return "DEBUG: [CMD] size=8\n"
         "DEBUG: [CMD] 0000: 1b 47 44 30 00 00 01 16\n" +
         kDrained + Dump("[STS]", reply);
}

std::string FailedStatusExchange(int result) {
  return "DEBUG: [CMD] size=8\n"
         "DEBUG: [CMD] 0000: 1b 47 44 30 00 00 01 16\n" +
         kDrained + "DEBUG: cupsBackChannelRead() failed. ret=" + std::to_string(result) + "\n";
}

std::string GoodState() {
  return State("GOOD") + Withdrawals();
}

std::string KnownError(const std::string& number, const std::string& keyword) {
  return State(number) + "STATE: +" + keyword + "\n" + "DEBUG: " + keyword + " " + number + "\n" +
         Withdrawals(keyword);
}

std::string UnknownError(const std::string& state) {
  return State(state) +
         "STATE: +com.corvantiel-error0004\n"
         "DEBUG: com.corvantiel-error0004 " +
         state +
         "\n"
         "DEBUG: error_number part mismatch processing \n" +
         Withdrawals("com.corvantiel-error0004");
}

std::string GoodStart() {
  return kBanner + kTwoWays + StatusExchange() + GoodState() + kCleaned;
}

std::string PageRead(int page, const std::string& progress, unsigned copies) {
  std::string text = "PAGE: " + std::to_string(page) + " " + std::to_string(copies) + "\n";
  std::istringstream percentages(progress);
  for (int percent = 0; percentages >> percent;) {
    text += Progress(page, percent);
  }
  return text + Progress(page, 50);
}

std::string ReadingProgress(int lines) {
  std::string text;
  for (int line = 0; line < lines; line += 128) {
    text += std::to_string(line * 50 / lines) + " ";
  }
  return text;
}

std::string Conversion(int rgb, int rgb_total, int op, int op_total) {
  return Conversion(kDefaultParams, rgb, rgb_total, op, op_total);
}

std::string Conversion(const std::string& params, int rgb, int rgb_total, int op, int op_total) {
  return "DEBUG: Params=" + params +
         "\n"
         "DEBUG: MVChangeImage()=0\n"
         "DEBUG: RgbRate=" +
         std::to_string(rgb) + " final=" + std::to_string(rgb_total) +
         "\n"
         "DEBUG: OpRate=" +
         std::to_string(op) + " final=" + std::to_string(op_total) + "\n";
}

std::string ReadinessQuestion(const Settings& settings) {
  return "DEBUG: buf cmd{0x1B, 'G', 'D', '3'}\n"
         "DEBUG: buf wr_esc_enable() START\n" +
         Dump("[CMD]", ReadinessQuery(settings)) + kDrained;
}

std::string ReadinessExchange(const Settings& settings, const std::string& reply) {
  return ReadinessQuestion(settings) + Dump("[STS]CMD_GET_ENABLE", reply) +
         "DEBUG: buf wr_esc_enable() END\n";
}

std::string ReadySheet(const Settings& settings) {
  return StatusExchange() + GoodState() + kCleaned + kExamine +
         ReadinessExchange(settings, kReady) + "DEBUG: CMD_GET_ENABLE[00 + 00]\n";
}

std::string Transfer(int page, int width, int height) {
  std::string text;
  const int pixels = width * height;
  for (int sent = kBufferedPixels; sent <= pixels; sent += kBufferedPixels) {
    const int row_of_last_pixel = (sent - 1) / width;
    text += Progress(page, 50 + row_of_last_pixel * 50 / height);
  }
  return pixels % kBufferedPixels == 0 ? text : text + Progress(page, 99);
}

std::string SheetDone(int page) {
  return Progress(page, 100) + "[sleep 5]\n";
}

std::string SheetLog(const Settings& settings, int page, int width, int height) {
  return ReadySheet(settings) + Transfer(page, width, height) + SheetDone(page);
}

std::string WholePage(const Settings& settings, int page) {
  const Paper& paper = *settings.paper;
  return PageRead(page, ReadingProgress(paper.page_height)) + Conversion(33, 33, 44, 44) +
         SheetLog(settings, page, paper.page_width, paper.page_height);
}

}  // namespace filter_test
