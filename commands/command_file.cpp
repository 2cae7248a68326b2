// SPDX-License-Identifier: Apache-2.0
#include "commands/command_file.h"

#include <strings.h>

namespace {

constexpr std::string_view kFirstLine = "#CUPS-COMMAND";
constexpr std::string_view kBlanks = " \t\v\f\r";

std::string_view trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) {
    return {};
  }
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace

bool Command::is(std::string_view other) const {
  return name.size() == other.size() && strncasecmp(name.data(), other.data(), other.size()) == 0;
}

bool CommandFile::begins_as_command_file() {
  const std::optional<std::string> line = read_line();
  return line && line->starts_with(kFirstLine);
}

std::optional<Command> CommandFile::next() {
  while (const std::optional<std::string> line = read_line()) {
    const std::string_view text = trim(*line);
    if (text.empty() || text.front() == '#') {
      continue;
    }
    const std::string_view name = text.substr(0, text.find_first_of(kBlanks));
    return Command{std::string(name), std::string(trim(text.substr(name.size())))};
  }
  return std::nullopt;
}

// The next line without its end, cut to the longest command; nothing at the end of the file.
std::optional<std::string> CommandFile::read_line() {
  std::string line;
  bool any = false;
  while (bytes_read_ < kLongestCommandFile) {
    const int byte = std::getc(stream_);
    if (byte == EOF) {
      break;
    }
    any = true;
    ++bytes_read_;
    if (byte == '\n') {
      return line;
    }
    if (line.size() < kLongestCommandLine) {
      line += static_cast<char>(byte);
    }
  }
  return any ? std::optional(line) : std::nullopt;
}
