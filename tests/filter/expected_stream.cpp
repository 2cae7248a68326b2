// SPDX-License-Identifier: Apache-2.0
#include "tests/filter/expected_stream.h"

#include <algorithm>
#include <string_view>

namespace filter_test {
namespace {

constexpr std::size_t kBlockSize = 512;

std::string Block(std::string_view code) {
  std::string block(kBlockSize, '\0');
  std::copy(code.begin(), code.end(), block.begin());
  return block;
}

void Put(std::string* block, std::size_t offset, const Bytes4& bytes) {
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    (*block)[offset + i] = static_cast<char>(bytes[i]);
  }
}

void Put(std::string* block, std::size_t offset, int byte) {
  (*block)[offset] = static_cast<char>(byte);
}

std::string SettingsBlock(std::string_view code, const Settings& settings) {
  std::string block = Block(code);
  Put(&block, 5, 0x33);
  Put(&block, 6, settings.paper->sheet);
  Put(&block, 10, settings.wait);
  Put(&block, 14, settings.margin_cut_off);
  Put(&block, 15, settings.paper->two_up);
  Put(&block, 48, settings.finish);
  Put(&block, 49, settings.mode);
  Put(&block, 50, 0x01);
  Put(&block, 58, 0x02);
  Put(&block, 80, 0x01);
  Put(&block, 81, settings.rgb_rate);
  Put(&block, 82, settings.op_rate);
  return block;
}

}  // namespace

Settings Settings::WithRates(unsigned char rgb, unsigned char op) const {
  Settings result = *this;
  result.rgb_rate = rgb;
  result.op_rate = op;
  return result;
}

std::string StatusRequest() {
  return {"\x1B\x47\x44\x30\x00\x00\x01\x16", 8};
}

std::string ReadinessQuery(const Settings& settings) {
  return SettingsBlock("\x1B\x47\x44\x33", settings);
}

std::string JobHeader(const Settings& settings) {
  return SettingsBlock("\x1B\x53\x50\x30", settings);
}

std::string ImageHeader(const Settings& settings, int second) {
  std::string block = Block("\x1B\x5A\x54\x01");
  Put(&block, 5, 0x09);
  Put(&block, 6, settings.paper->place);
  Put(&block, 10, settings.paper->image);
  if (settings.matte()) {
    Put(&block, 20, settings.paper->matte);
  }
  Put(&block, 32, 0x07);  // 2026
  Put(&block, 33, 0xEA);
  Put(&block, 34, 3);
  Put(&block, 35, 4);
  Put(&block, 36, 5);
  Put(&block, 37, 6);
  Put(&block, 38, second);
  return block;
}

std::string ImageData(const Pixels& page) {
  std::string data(page.rgb.size() * 2, '\0');
  char* place = data.data();
  unsigned channel = 0;
  for (const char byte : page.rgb) {
    const unsigned sample = static_cast<unsigned char>(byte) * 64U + channel;
    *place++ = static_cast<char>(sample % 256);
    *place++ = static_cast<char>(sample / 256);
    channel = channel == 2 ? 0 : channel + 1;
  }
  return data;
}

std::string BlankData(int width, int height) {
  std::string data;
  for (int pixel = 0; pixel < width * height; ++pixel) {
    data += "\xFF\x3F\xFF\x3F\xFF\x3F";
  }
  return data;
}

std::string MatteData(const Paper& paper, int call) {
  std::string data(
      static_cast<std::size_t>(paper.matte_width) * static_cast<std::size_t>(paper.matte_height),
      '\0');
  char* place = data.data();
  for (int y = 0; y < paper.matte_height; ++y) {
    for (int x = 0; x < paper.matte_width; ++x) {
      *place++ = static_cast<char>(5 * x + 3 * y + 16 * call);
    }
  }
  return data;
}

std::string PrintOut(unsigned char wait) {
  std::string command("\x1B\x42\x51\x31\x00\x00", 6);
  Put(&command, 5, wait);
  return command;
}

std::string Sheet(const Settings& settings, const std::string& image, int matte_call, int second) {
  std::string sheet = StatusRequest() + ReadinessQuery(settings) + JobHeader(settings) +
                      ImageHeader(settings, second) + image;
  return settings.matte() ? sheet + MatteData(*settings.paper, matte_call) : sheet;
}

}  // namespace filter_test
