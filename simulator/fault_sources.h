// SPDX-License-Identifier: Apache-2.0
//
// Where the rules of a run come from: --fault, --script, and the short forms --status, --busy and
// --enable, in this order.
#ifndef TQR7_SIMULATOR_FAULT_SOURCES_H
#define TQR7_SIMULATOR_FAULT_SOURCES_H

#include <cstdint>
#include <string>
#include <vector>

#include "simulator/fault_schedule.h"

namespace simulator {

/// The rules as they are on the command line.
struct FaultSources {
  std::vector<std::string> rules;
  std::string script;  ///< a file; empty: none
  std::uint16_t status = 0;
  std::uint64_t busy = 0;
  std::uint16_t enable = 0;
};

/// Fills an empty schedule. Returns what is wrong, with its place, or nothing.
std::string load_faults(const FaultSources& sources, FaultSchedule& schedule);

/// Reads the script again and begins it anew. When it is wrong, the old one stays in use. Returns
/// what is wrong, with its place, or nothing.
std::string reload_script(const std::string& path, FaultSchedule& schedule);

}  // namespace simulator

#endif  // TQR7_SIMULATOR_FAULT_SOURCES_H
