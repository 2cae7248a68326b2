// SPDX-License-Identifier: Apache-2.0
//
// The operator's tool run as a person runs it.
#ifndef TQR7_TESTS_UNIT_TOOL_PROCESS_H
#define TQR7_TESTS_UNIT_TOOL_PROCESS_H

#include <string>
#include <vector>

/// What a run left behind.
struct ToolRun {
  int status;  ///< exit status, −1 when a signal ended it
  std::string out;
  std::string errors;
};

/// Runs tqr7 with these arguments to its end, `input` on its standard input.
ToolRun run_tool(const std::vector<std::string>& arguments, const std::string& input = {});

/// Runs any program so; looked up in PATH unless it has a slash.
ToolRun run_program(std::vector<std::string> words, const std::string& input = {});

#endif  // TQR7_TESTS_UNIT_TOOL_PROCESS_H
