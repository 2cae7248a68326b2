// SPDX-License-Identifier: Apache-2.0
#include "tools/error_text.h"

#include <charconv>
#include <optional>
#include <string>
#include <system_error>

namespace tools {
namespace {

constexpr std::size_t kDigitsMost = 4;

std::optional<std::uint16_t> read_number(std::string_view text) {
  if (text.starts_with("0x") || text.starts_with("0X")) {
    text.remove_prefix(2);
  }
  constexpr int kHexadecimal = 16;
  std::uint16_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number, kHexadecimal);
  if (text.size() > kDigitsMost || error != std::errc{} || stop != end) {
    return std::nullopt;
  }
  return number;
}

// "0008_2665", a keyword without its "error".
bool is_class_and_number(std::string_view text) {
  constexpr std::size_t kLength = 2 * kDigitsMost + 1;
  return text.size() == kLength && text[kDigitsMost] == '_' &&
         text.find_first_not_of("0123456789abcdefABCDEF_") == std::string_view::npos;
}

}  // namespace

Explanation explain_text(std::string_view text) {
  if (const std::optional<std::uint16_t> number = read_number(text)) {
    return explain_number(*number);
  }
  return explain_keyword(is_class_and_number(text) ? "error" + std::string(text)
                                                   : std::string(text));
}

}  // namespace tools
