// SPDX-License-Identifier: Apache-2.0
#include "tools/plain_text.h"

#include <cstdint>

namespace tools {
namespace {

struct Character {
  std::uint32_t code;
  std::size_t length;  ///< bytes; 0 where they are not UTF-8
};

// The length that the first byte of a character announces, and its bits of the code.
Character first_byte(unsigned char byte) {
  if (byte < 0x80U) {
    return {byte, 1};
  }
  if (byte >= 0xC2U && byte < 0xE0U) {
    return {byte & 0x1FU, 2};
  }
  if (byte >= 0xE0U && byte < 0xF0U) {
    return {byte & 0x0FU, 3};
  }
  if (byte >= 0xF0U && byte < 0xF5U) {
    return {byte & 0x07U, 4};
  }
  return {0, 0};
}

Character read_character(std::string_view text) {
  Character character = first_byte(static_cast<unsigned char>(text.front()));
  if (character.length > text.size()) {
    return {0, 0};
  }
  for (std::size_t i = 1; i < character.length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0U) != 0x80U) {
      return {0, 0};
    }
    character.code = (character.code << 6U) | (byte & 0x3FU);
  }
  constexpr std::uint32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = character.code >= 0xD800 && character.code < 0xE000;
  if (character.code < kLeast[character.length] || character.code > 0x10FFFF || surrogate) {
    return {0, 0};
  }
  return character;
}

bool acts_on_terminal(std::uint32_t code) {
  return code < 0x20 || (code >= 0x7F && code < 0xA0) || code == 0x061C ||
         (code >= 0x200B && code <= 0x200F) || (code >= 0x2028 && code <= 0x202E) ||
         (code >= 0x2066 && code <= 0x2069) || code == 0xFEFF;
}

}  // namespace

std::string plain_text(std::string_view text, std::size_t most) {
  std::string plain;
  while (!text.empty()) {
    const Character character = read_character(text);
    const std::size_t length = character.length == 0 ? 1 : character.length;
    if (plain.size() + length > most) {
      return plain + "…";
    }
    if (character.length == 0 || acts_on_terminal(character.code)) {
      plain += '?';
    } else {
      plain += text.substr(0, length);
    }
    text.remove_prefix(length);
  }
  return plain;
}

}  // namespace tools
