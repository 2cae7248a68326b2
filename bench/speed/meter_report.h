// SPDX-License-Identifier: Apache-2.0
//
// What the meter and its own small processes hand to each other, as it lies in memory.
#ifndef TQR7_BENCH_SPEED_METER_REPORT_H
#define TQR7_BENCH_SPEED_METER_REPORT_H

#include <sys/resource.h>

#include <cstdint>

namespace bench {

/// Pauses that were asked for and not made.
struct Pauses {
  std::uint64_t count;
  std::uint64_t seconds;
};

/// What the launcher tells of the one process that it ran.
struct MeterReport {
  rusage usage;           ///< of that process alone
  int status;             ///< as wait gives it
  double wall;            ///< seconds from its start to its end
  std::uint64_t written;  ///< bytes that it has written to all its descriptors
};

inline constexpr int kAnyProcessor = -1;     ///< instead of the number of one
inline constexpr int kReportDescriptor = 5;  ///< the launcher writes its report there
inline constexpr int kPausesDescriptor = 6;  ///< what is measured finds its Pauses there

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_METER_REPORT_H
