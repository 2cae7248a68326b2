// SPDX-License-Identifier: Apache-2.0
//
// The frame of a measuring program: options, work, and a word about what went wrong.
#ifndef TQR7_BENCH_SPEED_COMMAND_LINE_H
#define TQR7_BENCH_SPEED_COMMAND_LINE_H

#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>

namespace bench {

/// `describe` names the options to the app, `work` does what the program is for and throws when it
/// cannot. Returns the exit status.
template <typename Describe, typename Work>
int run_program(const char* purpose, int argc, char** argv, Describe describe, Work work) {
  try {
    CLI::App app(purpose);
    describe(app);
    try {
      app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
      return app.exit(error);
    }
    work();
    return 0;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s: %s\n", argv[0], failure.what());
    return 1;
  }
}

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_COMMAND_LINE_H
