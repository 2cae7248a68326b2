// SPDX-License-Identifier: Apache-2.0
//
// Fuzzes the reader of fault scripts: any text ends in rules or in one error with its place, and a
// rule that is written again reads as the same rule.
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "simulator/fault_script.h"
#include "tests/fuzz/input.h"

namespace {

using fuzz::require;

void check_error(const simulator::Script& script, std::string_view text) {
  require(script.rules.empty() && script.errors.size() == 1);
  const simulator::ScriptError& error = script.errors.front();
  const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
  require(error.line >= 1 && error.line <= lines);
  require(error.column >= 1 && error.column <= text.size() + 1);
  require(!error.came.empty() && !error.expected.empty());
  // What goes to a terminal must not be able to steer it.
  const std::string words = to_string(error);
  require(std::all_of(words.begin(), words.end(),
                      [](char character) { return character >= 0x20 && character < 0x7F; }));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const simulator::Script script = simulator::read_script(text);
  if (!script.errors.empty()) {
    check_error(script, text);
    return 0;
  }
  std::string again;
  for (const simulator::FaultRule& rule : script.rules) {
    again += to_string(rule) + "\n";
  }
  const simulator::Script second = simulator::read_script(again);
  require(second.errors.empty() && second.rules == script.rules);
  return 0;
}
