// SPDX-License-Identifier: Apache-2.0
#include "tools/plain_text.h"

#include "language/display_width.h"

namespace tools {
namespace {

bool acts_on_terminal(char32_t code) {
  return code < 0x20 || (code >= 0x7F && code < 0xA0) || code == 0x061C ||
         (code >= 0x200B && code <= 0x200F) || (code >= 0x2028 && code <= 0x202E) ||
         (code >= 0x2066 && code <= 0x2069) || code == 0xFEFF;
}

}  // namespace

std::string plain_text(std::string_view text, std::size_t most) {
  std::string plain;
  while (!text.empty()) {
    const language::Character character = language::first_character(text);
    if (plain.size() + character.length > most) {
      return plain + "…";
    }
    if (!character.valid || acts_on_terminal(character.code)) {
      plain += '?';
    } else {
      plain += text.substr(0, character.length);
    }
    text.remove_prefix(character.length);
  }
  return plain;
}

}  // namespace tools
