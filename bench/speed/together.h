// SPDX-License-Identifier: Apache-2.0
//
// Several jobs at the same time, as the queues of a print room have them.
#ifndef TQR7_BENCH_SPEED_TOGETHER_H
#define TQR7_BENCH_SPEED_TOGETHER_H

#include <numeric>
#include <vector>

#include "bench/speed/meter.h"

namespace bench {

struct Together {
  double wall = 0.0;  ///< seconds from the common start to the end of the last
  std::vector<Usage> jobs;

  /// A figure of all jobs together.
  template <typename Value>
  double sum_of(Value value) const {
    return std::accumulate(jobs.begin(), jobs.end(), 0.0, [&](double sum, const Usage& job) {
      return sum + static_cast<double>(value(job));
    });
  }
};

/// Runs the job `queues` times at once, each by a meter of its own. Throws std::runtime_error when
/// one of the runs is void.
Together measure_together(const MeteredRun& run, int queues);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_TOGETHER_H
