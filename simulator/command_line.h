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

/// What the person asked for.
struct Options {
  std::string address = "127.0.0.1";
  std::uint16_t port = 9100;  ///< 0: a free one
  std::string portFile;       ///< empty: none
  std::string output = ".";
  FaultSources faults;
  std::string record;    ///< empty: no record
  std::string timeline;  ///< empty: none
  decoder::ProofChoice proof;
  bool marks = false;           ///< cut and border drawn into the sheets
  bool contactSheet = false;    ///< a page of all sheets
  bool verbose = false;         ///< every field is said
  bool simulatedClock = false;  ///< no pace of clients is held
  std::optional<std::uint64_t> connections;
};

inline constexpr int kExitGood = 0;
inline constexpr int kExitErrorsSeen = 1;  ///< wrong streams, or something could not be written
inline constexpr int kExitCannotStart =
    2;  ///< wrong options or rules, port taken, no output folder

/// Reads the options, or says why not and returns the exit status that the program shall end with.
std::optional<int> read_command_line(int argc, const char* const* argv, Options& options);

}  // namespace simulator

#endif  // TQR7_SIMULATOR_COMMAND_LINE_H
