// SPDX-License-Identifier: Apache-2.0
//
// Fuzzes the reader of printer command files: a file of any bytes gives commands of bounded length
// without blanks at their ends, and then none.
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>

#include "commands/command_file.h"
#include "tests/fuzz/input.h"

namespace {

using fuzz::require;

bool is_blank(char character) {
  return character == ' ' || character == '\t' || character == '\v' || character == '\f' ||
         character == '\r' || character == '\n';
}

bool is_trimmed(const std::string& text) {
  return text.empty() || (!is_blank(text.front()) && !is_blank(text.back()));
}

void check_command(const Command& command) {
  require(!command.name.empty() && command.name.front() != '#');
  require(command.name.size() + command.parameters.size() <= kLongestCommandLine);
  for (const char character : command.name) {
    require(!is_blank(character));
  }
  require(is_trimmed(command.parameters) && command.parameters.find('\n') == std::string::npos);
  require(command.is(command.name));
  require(!command.is(command.name + "x") && !command.is(""));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  std::FILE* stream = size > 0 ? fmemopen(bytes.data(), size, "r") : std::fopen("/dev/null", "r");
  CommandFile file(stream);
  require(file.begins_as_command_file() == bytes.starts_with("#CUPS-COMMAND"));
  std::size_t commands = 0;
  while (const std::optional<Command> command = file.next()) {
    check_command(*command);
    ++commands;
  }
  require(commands <= size && !file.next());
  std::fclose(stream);
  return 0;
}
