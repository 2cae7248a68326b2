// SPDX-License-Identifier: Apache-2.0
#include "decoder/stream_error.h"

#include <array>
#include <cstdio>

namespace decoder {

std::string to_string(const StreamError& error) {
  return "offset " + std::to_string(error.offset) + ": " + to_string(error.command) + ", " +
         error.field + ": came " + error.came + ", allowed " + error.allowed;
}

std::string alternatives(const std::vector<std::string>& values) {
  std::string text;
  for (std::size_t i = 0; i < values.size(); ++i) {
    const bool last = i + 1 == values.size();
    text += i == 0 ? "" : (last ? " or " : ", ");
    text += values[i];
  }
  return text;
}

std::string hex_byte(unsigned value) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "0x%02X", value & 0xFFU);
  return text.data();
}

std::string hex_word(std::uint16_t value) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "0x%04X", unsigned{value});
  return text.data();
}

}  // namespace decoder
