// SPDX-License-Identifier: Apache-2.0
#include "language/display_width.h"

#include <wchar.h>

#include <algorithm>
#include <utility>

namespace language {
namespace {

constexpr Character kNotUtf8 = {false, 0, 1};

// The length of a character, and the bits of its code, by its first byte.
Character begin_character(unsigned char byte) {
  if (byte < 0x80U) {
    return {true, byte, 1};
  }
  if (byte >= 0xC2U && byte < 0xE0U) {
    return {true, byte & 0x1FU, 2};
  }
  if (byte >= 0xE0U && byte < 0xF0U) {
    return {true, byte & 0x0FU, 3};
  }
  if (byte >= 0xF0U && byte < 0xF5U) {
    return {true, byte & 0x07U, 4};
  }
  return kNotUtf8;
}

}  // namespace

Character first_character(std::string_view text) {
  Character character = begin_character(static_cast<unsigned char>(text.front()));
  if (character.length > text.size()) {
    return kNotUtf8;
  }
  for (std::size_t i = 1; i < character.length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0U) != 0x80U) {
      return kNotUtf8;
    }
    character.code = (character.code << 6U) | (byte & 0x3FU);
  }
  constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = character.code >= 0xD800 && character.code < 0xE000;
  if (character.code < kLeast[character.length] || character.code > 0x10FFFF || surrogate) {
    return kNotUtf8;
  }
  return character;
}

std::size_t display_width(std::string_view text) {
  std::size_t columns = 0;
  while (!text.empty()) {
    const Character character = first_character(text);
    // A character that the locale does not know takes one column.
    const int width = character.valid ? ::wcwidth(static_cast<wchar_t>(character.code)) : 1;
    columns += width < 0 ? 1 : static_cast<std::size_t>(width);
    text.remove_prefix(character.length);
  }
  return columns;
}

std::string padded(std::string text, std::size_t columns) {
  const std::size_t width = display_width(text);
  if (width < columns) {
    text.append(columns - width, ' ');
  }
  return text;
}

Labels::Labels(std::initializer_list<const char*> labels) {
  for (const char* const label : labels) {
    columns_ = std::max(columns_, display_width(label) + 1);
  }
}

std::string Labels::operator()(const char* label) const {
  return padded(label, columns_);
}

}  // namespace language
