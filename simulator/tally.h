// SPDX-License-Identifier: Apache-2.0
//
// What a run has seen so far.
#ifndef TQR7_SIMULATOR_TALLY_H
#define TQR7_SIMULATOR_TALLY_H

#include <cstdint>

namespace simulator {

/// Counts of the whole run. `failures` are things that the simulator could not write.
struct Tally {
  std::uint64_t connections = 0;
  std::uint64_t sheets = 0;
  std::uint64_t errors = 0;
  std::uint64_t failures = 0;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_TALLY_H
