// SPDX-License-Identifier: Apache-2.0
#include "simulator/rule_words.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <system_error>

namespace simulator {
namespace {

constexpr std::string_view kBlanks = " \t\r\v\f";
constexpr std::size_t kShownMost = 40;
constexpr std::size_t kByteDigits = 2;
constexpr std::size_t kDecimalsMost = 3;  // milliseconds
constexpr std::uint64_t kMilliseconds = 1000;
constexpr std::uint64_t kSecondsMost = 86400;

// A word as a message can show it, whatever bytes it has and however long it is.
std::string quoted(std::string_view word) {
  std::string text = "\"";
  for (const char character : word.substr(0, kShownMost)) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte >= 0x20 && byte < 0x7F && character != '"' && character != '\\') {
      text += character;
      continue;
    }
    std::array<char, 8> escape{};
    std::snprintf(escape.data(), escape.size(), "\\x%02X", unsigned{byte});
    text += escape.data();
  }
  return text + (word.size() > kShownMost ? "...\"" : "\"");
}

bool is_digits(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// "2", "2.5" or "0.125"
std::optional<std::uint64_t> read_milliseconds(std::string_view text) {
  const std::size_t point = text.find('.');
  const std::string_view whole = text.substr(0, point);
  std::string fraction(point == std::string_view::npos ? "0" : text.substr(point + 1));
  if (!is_digits(whole) || !is_digits(fraction) || fraction.size() > kDecimalsMost) {
    return std::nullopt;
  }
  fraction.resize(kDecimalsMost, '0');
  const std::optional<std::uint64_t> seconds = read_number(whole);
  if (!seconds || *seconds > kSecondsMost) {
    return std::nullopt;
  }
  return *seconds * kMilliseconds + *read_number(fraction);
}

}  // namespace

std::optional<std::uint64_t> read_number(std::string_view text) {
  int base = 10;
  if (text.starts_with("0x") || text.starts_with("0X")) {
    base = 16;
    text.remove_prefix(2);
  }
  std::uint64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number, base);
  if (error != std::errc{} || stop != end) {
    return std::nullopt;
  }
  return number;
}

std::string number_words(std::uint64_t low, std::uint64_t high) {
  return "a number from " + std::to_string(low) + " to " + std::to_string(high);
}

RuleWords::RuleWords(std::string_view text) : endColumn_(1) {
  std::size_t at = 0;
  while ((at = text.find_first_not_of(kBlanks, at)) != std::string_view::npos) {
    std::size_t end = at + 1;
    if (text[at] != ':') {
      end = std::min(text.find_first_of(" \t\r\v\f:", at), text.size());
    }
    words_.push_back({at + 1, text.substr(at, end - at)});
    endColumn_ = end + 1;
    at = end;
  }
}

std::string_view RuleWords::Next(std::size_t ahead) const {
  return taken_ + ahead < words_.size() ? words_[taken_ + ahead].text : std::string_view();
}

bool RuleWords::Take(std::string_view word) {
  const bool here = !AtEnd() && Next() == word;
  taken_ += here ? 1 : 0;
  return here;
}

bool RuleWords::Require(std::string_view word) {
  return Take(word) || Fail('"' + std::string(word) + '"');
}

std::optional<std::uint64_t> RuleWords::Number(std::uint64_t low, std::uint64_t high,
                                               std::string_view otherwise) {
  const std::optional<std::uint64_t> number = read_number(Next());
  if (!number || *number < low || *number > high) {
    Fail(number_words(low, high) + std::string(otherwise));
    return std::nullopt;
  }
  ++taken_;
  return number;
}

std::optional<std::chrono::milliseconds> RuleWords::Time() {
  const std::optional<std::uint64_t> time = read_milliseconds(Next());
  if (!time || *time == 0 || *time > kSecondsMost * kMilliseconds) {
    Fail("a number of seconds from 0.001 to 86400 and then \"s\"");
    return std::nullopt;
  }
  ++taken_;
  if (!Require("s")) {
    return std::nullopt;
  }
  return std::chrono::milliseconds(*time);
}

std::optional<std::uint8_t> RuleWords::Byte() {
  const std::string_view word = Next();
  unsigned value = 0;
  const char* const end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(word.data(), end, value, 16);
  if (word.size() != kByteDigits || error != std::errc{} || stop != end) {
    Fail("a byte as two hexadecimal digits");
    return std::nullopt;
  }
  ++taken_;
  return static_cast<std::uint8_t>(value);
}

bool RuleWords::Fail(const std::string& expected) {
  if (expected_.empty()) {
    errorColumn_ = AtEnd() ? endColumn_ : words_[taken_].column;
    came_ = AtEnd() ? "the end of the rule" : quoted(Next());
    expected_ = expected;
  }
  return false;
}

}  // namespace simulator
