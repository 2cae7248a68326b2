// SPDX-License-Identifier: Apache-2.0
//
// What all subcommands of the operator's tool have in common: how the program gets them, how they
// complain, and how they end.
#ifndef TQR7_TOOLS_SUBCOMMANDS_H
#define TQR7_TOOLS_SUBCOMMANDS_H

#include <cstdio>
#include <string>

namespace tools {

class CommandLine;

/// Adds a subcommand to the program's command line: its arguments, and what it does.
using AddSubcommand = void(CommandLine& program);

AddSubcommand add_inspect;
AddSubcommand add_proof;
AddSubcommand add_explain;
AddSubcommand add_status;
AddSubcommand add_resume;
AddSubcommand add_check;
AddSubcommand add_report;

// The exit statuses are the same for every subcommand, so that scripts can rely on them.
inline constexpr int kExitGood = 0;
inline constexpr int kExitNotGood = 1;  ///< the answer is no: errors found, not printing, unknown
inline constexpr int kExitCannotTell = 2;  ///< no answer: wrong usage, no file, no scheduler

/// "tqr7 status: SENTENCE", a line on standard error.
inline std::string complaint_line(const char* subcommand, const std::string& sentence) {
  return std::string("tqr7 ") + subcommand + ": " + sentence + "\n";
}

/// Writes the line.
inline void complain(const char* subcommand, const std::string& sentence) {
  std::fputs(complaint_line(subcommand, sentence).c_str(), stderr);
}

}  // namespace tools

#endif  // TQR7_TOOLS_SUBCOMMANDS_H
