// SPDX-License-Identifier: Apache-2.0
#include "filter/module_path.h"

#include <cstdlib>
#include <optional>
#include <string_view>

namespace {

constexpr std::string_view kRasterType = "application/vnd.cups-raster";
constexpr std::string_view kBlanks = " \t\n\v\f\r";

// The next word of a cupsFilter line, of any length; the rest of the line follows it. Empty at the
// line's end.
std::string_view next_word(std::string_view& rest) {
  const std::size_t start = rest.find_first_not_of(kBlanks);
  if (start == std::string_view::npos) {
    rest = {};
    return {};
  }
  rest.remove_prefix(start);
  const std::string_view word = rest.substr(0, rest.find_first_of(kBlanks));
  rest.remove_prefix(word.size());
  return word;
}

// Skips the line's cost, a whole number; the program may follow it without a blank. False when no
// number is there.
bool skip_cost(std::string_view& rest) {
  std::size_t i = rest.find_first_not_of(kBlanks);
  if (i == std::string_view::npos) {
    return false;
  }
  if (rest[i] == '+' || rest[i] == '-') {
    ++i;
  }
  const std::size_t first_digit = i;
  while (i < rest.size() && rest[i] >= '0' && rest[i] <= '9') {
    ++i;
  }
  rest.remove_prefix(i);
  return i > first_digit;
}

// The program of the first line that takes CUPS raster. A line that lacks one of the three fields
// is skipped.
std::optional<std::string_view> raster_program(const ppd_file_s* ppd) {
  for (int i = 0; i < ppd->num_filters; ++i) {
    if (ppd->filters[i] == nullptr) {
      continue;
    }
    std::string_view rest = ppd->filters[i];
    const std::string_view type = next_word(rest);
    if (type != kRasterType || !skip_cost(rest)) {
      continue;
    }
    const std::string_view program = next_word(rest);
    if (!program.empty()) {
      return program;
    }
  }
  return std::nullopt;
}

}  // namespace

bool get_filter_path(const ppd_file_s* ppd, char* buffer, int size) {
  if (ppd == nullptr || ppd->filters == nullptr) {
    return false;
  }
  const std::optional<std::string_view> program = raster_program(ppd);
  if (!program) {
    return false;
  }
  const std::size_t slash = program->rfind('/');
  if (slash == std::string_view::npos) {
    return false;
  }
  const std::string_view directory = program->substr(0, slash + 1);
  if (size <= 0 || directory.size() >= static_cast<std::size_t>(size)) {
    return false;
  }
  directory.copy(buffer, directory.size());
  buffer[directory.size()] = '\0';
  return true;
}
