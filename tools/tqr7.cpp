// SPDX-License-Identifier: Apache-2.0
//
// tqr7: the operator's tool. Each subcommand has its own file; this makes one program of them.
#include <cstdio>
#include <exception>

#include "language/messages.h"
#include "tools/command_line.h"
#include "tools/subcommands.h"

namespace {

int run(int argc, char** argv) {
  tools::CommandLine program(
      "tqr7", TQR7_VERSION,
      language::_(
          "Looks after TQR7 photo printers: their queues, their errors, their print streams"));
  tools::add_inspect(program);
  tools::add_proof(program);
  tools::add_check(program);
  tools::add_explain(program);
  tools::add_status(program);
  tools::add_resume(program);
  tools::add_report(program);
  return program.Run(argc, argv);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    language::begin();
    return run(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "tqr7: %s\n", error.what());
    return tools::kExitCannotTell;
  }
}
