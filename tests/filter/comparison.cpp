// SPDX-License-Identifier: Apache-2.0
#include "tests/filter/comparison.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace filter_test {
namespace {

std::string Hex(const std::string& bytes, std::size_t from) {
  std::string result;
  for (std::size_t i = from; i < std::min(bytes.size(), from + 16); ++i) {
    char text[4];
    std::snprintf(text, sizeof text, " %02x", static_cast<unsigned char>(bytes[i]));
    result += text;
  }
  return result.empty() ? " (end)" : result;
}

/// The lines, each with its line end where it has one.
std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> result;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size() - 1);
    result.push_back(text.substr(at, end + 1 - at));
    at = end + 1;
  }
  return result;
}

bool Matches(const std::string& line, const std::string& expected) {
  const std::string open_end = kAnyText + "\n";
  if (!expected.ends_with(open_end)) {
    return line == expected;
  }
  const std::string start = expected.substr(0, expected.size() - open_end.size());
  return line.starts_with(start) && line.size() > start.size() + 1 && line.ends_with('\n');
}

std::string LineOrEnd(const std::vector<std::string>& lines, std::size_t number) {
  return number < lines.size() ? testing::PrintToString(lines[number]) : "(end)";
}

}  // namespace

testing::AssertionResult SameStream(const std::string& actual, const std::string& expected) {
  if (actual == expected) {
    return testing::AssertionSuccess();
  }
  const auto common = std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
  const auto at = static_cast<std::size_t>(common.first - actual.begin());
  return testing::AssertionFailure()
         << "streams of " << actual.size() << " and " << expected.size()
         << " expected bytes differ from offset " << at << ":\n  actual  " << Hex(actual, at)
         << "\n  expected" << Hex(expected, at);
}

testing::AssertionResult SameLog(const std::string& actual, const std::string& expected) {
  const std::vector<std::string> got = Lines(actual);
  const std::vector<std::string> wanted = Lines(expected);
  std::size_t at = 0;
  while (at < got.size() && at < wanted.size() && Matches(got[at], wanted[at])) {
    ++at;
  }
  if (at == got.size() && at == wanted.size()) {
    return testing::AssertionSuccess();
  }
  testing::AssertionResult result = testing::AssertionFailure();
  result << "logs of " << got.size() << " and " << wanted.size()
         << " expected lines differ from line " << at + 1 << ":";
  for (std::size_t i = at; i < at + 3; ++i) {
    result << "\n  actual   " << LineOrEnd(got, i) << "\n  expected " << LineOrEnd(wanted, i);
  }
  return result;
}

}  // namespace filter_test
