// SPDX-License-Identifier: Apache-2.0
//
// What the machine itself costs, without any filter: several processes that share nothing but its
// processors, and fresh memory. A bend that shows here, too, is the machine's.
#ifndef TQR7_BENCH_SPEED_MACHINE_PROBE_H
#define TQR7_BENCH_SPEED_MACHINE_PROBE_H

#include <string>

namespace bench {

/// CPU seconds that each of several processes at once takes, the mean, for a fixed amount of work.
struct ProbeTimes {
  double registers = 0.0;  ///< arithmetic without memory: grows when processors are hyper-threads
  double cache = 0.0;      ///< copies within 1 MB: grows when a second-level cache is shared
  double memory = 0.0;     ///< copies among 20 MB, a page's buffers: grows with what lies beyond
  double fresh = 0.0;      ///< 20 MB of fresh memory: grows when processes wait for the kernel's
  double file = 0.0;       ///< reading one file that all have in common
};

/// The file is what the jobs read. Throws std::runtime_error when one of the processes fails.
ProbeTimes probe_machine(int processes, const std::string& file);

/// CPU µs that the kernel takes to hand out one fresh page of memory, beyond what it takes to write
/// to it; the median of several goes.
double microseconds_a_fault();

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_MACHINE_PROBE_H
