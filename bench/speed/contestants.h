// SPDX-License-Identifier: Apache-2.0
//
// The programs that are held against each other, run in turn, and what they use in the middle.
#ifndef TQR7_BENCH_SPEED_CONTESTANTS_H
#define TQR7_BENCH_SPEED_CONTESTANTS_H

#include <cstdint>
#include <string>
#include <vector>

#include "bench/speed/meter.h"

namespace bench {

/// Image bytes of a page of 1852 × 1232 dots as they go to the printer.
inline constexpr std::uint64_t kImageBytes = std::uint64_t{1852} * 1232 * 6;

/// The conversion library that lies beside the filter.
enum class Library { Widening, Ours };

/// The filter on a job with these options, beside a printer that is good and ready.
MeteredRun filter_run(Library library, const std::string& options);

/// One of the floors: "floor-drop", "floor-copy" or "floor-write".
MeteredRun floor_run(const std::string& floor);

/// A program with what it used in each round.
struct Entrant {
  std::string name;
  MeteredRun run;
  std::vector<Usage> uses = {};
};

/// Runs each once without counting it, then all in turn, `rounds` times: what slows the machine
/// slows all alike. Throws std::runtime_error where a run is void.
void run_in_turn(const std::vector<Entrant*>& entrants, int rounds);

double median_cpu(const Entrant& entrant);  ///< seconds, user and system
/// The processor time that `more` takes beyond `less`, in seconds: the middle of the rounds.
double added_cpu(const Entrant& less, const Entrant& more);
double median_faults(const Entrant& entrant);  ///< minor page faults
/// The share of the system in the processor time, over all rounds: in a single short run the kernel
/// tells the two apart by a few ticks only.
double system_share(const Entrant& entrant);
long largest_peak(const Entrant& entrant);  ///< kB

/// Appends a row to the table of targets in the file that TQR7_TARGETS names, if it names one: what
/// is held against the target, the most it may be, what it is.
void tell_target(const std::string& what, double most, double measured);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_CONTESTANTS_H
