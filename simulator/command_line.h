// SPDX-License-Identifier: Apache-2.0
//
// The options of tqr7-printer-sim.
#ifndef TQR7_SIMULATOR_COMMAND_LINE_H
#define TQR7_SIMULATOR_COMMAND_LINE_H

#include <cstdint>
#include <optional>
#include <string>

#include "decoder/proof_choice.h"
#include "simulator/fault_sources.h"

namespace simulator {

/// What the command line asks for.
struct Options {
  std::string address = "127.0.0.1";
  std::uint16_t port = 9100;  ///< 0: a free one
  std::string portFile;       ///< empty: none
  std::string output = ".";
  FaultSources faults;
  std::string record;    ///< empty: no record
  std::string timeline;  ///< empty: none
  decoder::ProofChoice proof;
  bool marks = false;           ///< draws cut and border into the sheets
  bool contactSheet = false;    ///< keeps a page of all sheets
  bool verbose = false;         ///< says every field of every command
  bool simulatedClock = false;  ///< does not check how soon clients ask again
  std::optional<std::uint64_t> connections;
};

inline constexpr int kExitGood = 0;
inline constexpr int kExitErrorsSeen = 1;  ///< wrong streams, or something could not be written
inline constexpr int kExitCannotStart =
    2;  ///< wrong options or rules, port taken, no output folder

/// Reads the options. When the program is to end, because it has shown its help or because an
/// option is wrong, returns its exit status.
std::optional<int> read_command_line(int argc, const char* const* argv, Options& options);

}  // namespace simulator

#endif  // TQR7_SIMULATOR_COMMAND_LINE_H
