// SPDX-License-Identifier: Apache-2.0
//
// tqr7: the operator's tool. Each subcommand has a file of its own; here they become one program.
#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>

#include "tools/exit_status.h"
#include "tools/subcommands.h"

namespace {

int run(int argc, char** argv) {
  int status = tools::kExitGood;
  CLI::App program{
      "Looks after TQR7 photo printers: their queues, their errors, their print streams", "tqr7"};
  program.set_version_flag("--version", "tqr7 " TQR7_VERSION, "say the version and end");
  program.get_option("--help")->description("say this and end");
  program.require_subcommand(1);
  tools::add_inspect(program, status);
  tools::add_proof(program, status);
  tools::add_check(program, status);
  tools::add_explain(program, status);
  tools::add_status(program, status);
  tools::add_resume(program, status);
  tools::add_report(program, status);
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
      return program.exit(error);  // help or version
    }
    std::fprintf(stderr, "tqr7: %s (see --help)\n", error.what());
    return tools::kExitCannotTell;
  }
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "tqr7: %s\n", error.what());
    return tools::kExitCannotTell;
  }
}
