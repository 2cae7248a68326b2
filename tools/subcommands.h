// SPDX-License-Identifier: Apache-2.0
//
// What each subcommand of the operator's tool gives to the program.
#ifndef TQR7_TOOLS_SUBCOMMANDS_H
#define TQR7_TOOLS_SUBCOMMANDS_H

namespace tools {

class CommandLine;

/// Adds a subcommand to the program's command line, with what it takes and what it does.
using AddSubcommand = void(CommandLine& program);

AddSubcommand add_inspect;
AddSubcommand add_proof;
AddSubcommand add_explain;
AddSubcommand add_status;
AddSubcommand add_resume;
AddSubcommand add_check;
AddSubcommand add_report;

}  // namespace tools

#endif  // TQR7_TOOLS_SUBCOMMANDS_H
