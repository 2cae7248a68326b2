// SPDX-License-Identifier: Apache-2.0
#include "language/display_width.h"

#include <wchar.h>

#include <algorithm>
#include <utility>

namespace language {
namespace {

// The character's code, taken off the text; a byte that begins none stands for itself.
wchar_t take_character(std::string_view& text) {
  constexpr unsigned kTwo = 0xC0;
  constexpr unsigned kThree = 0xE0;
  constexpr unsigned kFour = 0xF0;
  const unsigned first = static_cast<unsigned char>(text.front());
  std::size_t length = 1;
  unsigned code = first;
  if (first >= kFour) {
    length = 4;
    code = first & 0x07U;
  } else if (first >= kThree) {
    length = 3;
    code = first & 0x0FU;
  } else if (first >= kTwo) {
    length = 2;
    code = first & 0x1FU;
  }
  length = std::min(length, text.size());
  for (std::size_t i = 1; i < length; ++i) {
    code = (code << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
  }
  text.remove_prefix(length);
  return static_cast<wchar_t>(code);
}

}  // namespace

std::size_t display_width(std::string_view text) {
  std::size_t columns = 0;
  while (!text.empty()) {
    // What the locale does not know is taken for a letter of one column.
    const int width = ::wcwidth(take_character(text));
    columns += width < 0 ? 1 : static_cast<std::size_t>(width);
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
