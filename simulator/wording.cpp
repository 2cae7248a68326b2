// SPDX-License-Identifier: Apache-2.0
#include "simulator/wording.h"

#include <array>
#include <cstdio>
#include <system_error>

namespace simulator {
namespace {

constexpr std::uint8_t kModeAuto = 0;
constexpr std::uint8_t kModeFast = 5;
constexpr std::uint8_t kNoWait = 0xFF;

std::string finish_words(std::uint8_t finish) {
  if (finish == decoder::kFinishGloss) {
    return "gloss";
  }
  return finish == decoder::kFinishMatte ? "matte" : "finish " + std::to_string(finish);
}

std::string mode_words(std::uint8_t mode) {
  if (mode == kModeAuto) {
    return "auto";
  }
  return mode == kModeFast ? "fast" : std::to_string(mode);
}

std::string wait_words(std::uint8_t wait) {
  return wait == kNoWait ? "no wait" : "wait " + std::to_string(wait);
}

std::string size_words(unsigned width, unsigned height) {
  return std::to_string(width) + " x " + std::to_string(height);
}

std::string image_words(const decoder::ImageHeader& header) {
  return "image " + size_words(header.width, header.height) + " at " + std::to_string(header.left) +
         ", " + std::to_string(header.top);
}

std::string time_words(const decoder::ImageHeader& header) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%04u-%02u-%02u %02u:%02u:%02u", unsigned{header.year},
                unsigned{header.month}, unsigned{header.day}, unsigned{header.hour},
                unsigned{header.minute}, unsigned{header.second});
  return text.data();
}

std::string two_up_words(const decoder::JobHeader& header) {
  if (header.twoUpMode == 0 && header.twoUpSplit == 0 && header.twoUpOption == 0) {
    return "one print";
  }
  return "two prints, split at line " + std::to_string(header.twoUpSplit);
}

}  // namespace

std::string sheet_words(const decoder::JobHeader& header) {
  return size_words(header.sheetWidth, header.sheetHeight) + ", " + finish_words(header.finish);
}

std::string job_header_words(const decoder::JobHeader& header) {
  return sheet_words(header) + ", mode " + mode_words(header.printMode) + ", " +
         two_up_words(header) + ", margin cut-off " + std::to_string(header.marginCutOff) + ", " +
         wait_words(header.waitByte) + ", RGB rate " + std::to_string(header.rgbRate) +
         ", OP rate " + std::to_string(header.opRate);
}

std::string image_header_words(const decoder::ImageHeader& header) {
  return image_words(header) + ", matte plane " +
         size_words(header.matteWidth, header.matteHeight) + ", " + time_words(header);
}

std::string printed_sheet_words(const decoder::Sheet& sheet) {
  return sheet_words(sheet.job) + ", " + image_words(sheet.image) + ", " + two_up_words(sheet.job) +
         ", mode " + mode_words(sheet.job.printMode) + ", " + time_words(sheet.image);
}

std::string counted(std::uint64_t count, const char* noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string error_words(int errorNumber) {
  return std::generic_category().message(errorNumber);
}

}  // namespace simulator
