// SPDX-License-Identifier: Apache-2.0
//
// Contestants in a race for processor time: each runs once a round, so that a busy machine slows
// all alike.
#ifndef TQR7_BENCH_CPU_TIME_H
#define TQR7_BENCH_CPU_TIME_H

#include <functional>
#include <string>
#include <vector>

namespace bench {

/// Processor time that this process has used so far, in seconds, system time included.
double cpu_seconds();

/// Something that is timed. `run` returns the processor time that it took, in seconds.
struct Contestant {
  std::string name;
  std::function<double()> run;
  std::vector<double> seconds;  ///< of each round
};

/// A contestant that runs within this process.
Contestant in_process(std::string name, std::function<void()> work);

/// Runs each contestant once without counting it, then all in turn, `rounds` times.
void race(const std::vector<Contestant*>& contestants, int rounds);

double median_seconds(const Contestant& contestant);

/// The median, over the rounds, of how many times longer the second takes than the first.
double times_faster(const Contestant& first, const Contestant& second);

}  // namespace bench

#endif  // TQR7_BENCH_CPU_TIME_H
