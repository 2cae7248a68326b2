// SPDX-License-Identifier: Apache-2.0
//
// What each subcommand of the operator's tool gives to the program.
#ifndef TQR7_TOOLS_SUBCOMMANDS_H
#define TQR7_TOOLS_SUBCOMMANDS_H

namespace CLI {
class App;
}

namespace tools {

/// Adds a subcommand to the program. When the person asks for it, it runs as the command line is
/// parsed and leaves its exit status in `status`; both must live until then.
using AddSubcommand = void(CLI::App& program, int& status);

AddSubcommand add_inspect;
AddSubcommand add_proof;
AddSubcommand add_explain;
AddSubcommand add_status;
AddSubcommand add_resume;
AddSubcommand add_check;
AddSubcommand add_report;

}  // namespace tools

#endif  // TQR7_TOOLS_SUBCOMMANDS_H
