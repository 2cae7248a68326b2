// SPDX-License-Identifier: Apache-2.0
//
// Runs a program as a filter and tells what it used: processor time, page faults, peak memory.
// Pauses are counted and not made. Linux only.
#ifndef TQR7_BENCH_SPEED_METER_H
#define TQR7_BENCH_SPEED_METER_H

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace bench {

/// Where a program's streams come from and go to.
enum class Streams {
  Files,  ///< input from the file itself; output and messages to /dev/null
  Pipes   ///< three pipes, as between the filters of a chain
};

/// One run of a program.
struct MeteredRun {
  std::vector<std::string> argv = {};                   ///< the program's path first
  std::map<std::string, std::string> environment = {};  ///< besides PATH, LC_ALL and CUPS_SERVER
  std::string input = "/dev/null";
  /// A raster stream's pages are fed so many times, which makes long jobs of small files; pipes
  /// only.
  int input_times = 1;
  Streams streams = Streams::Files;
  bool pinned = true;    ///< to one processor; otherwise wherever the system puts it
  bool printer = false;  ///< descriptors 3 and 4 lead to a printer that is good and ready
  int status = 0;        ///< the exit status that the run must have
  /// Bytes that standard output must have at least: all bytes but messages. With pipes these are
  /// counted, otherwise the kernel's count of all that was written is held against them.
  std::uint64_t bytes = 0;
};

/// What one run used. Goes between processes as it lies in memory.
struct Usage {
  double user = 0.0;        ///< seconds
  double system = 0.0;      ///< seconds
  double wall = 0.0;        ///< seconds
  long faults = 0;          ///< minor page faults
  long peak = 0;            ///< kB of resident memory at most
  long displaced = 0;       ///< times that another process took its processor
  std::uint64_t bytes = 0;  ///< on standard output, with pipes
  std::uint64_t pauses = 0;
  std::uint64_t paused_seconds = 0;

  double cpu() const { return user + system; }
};

/// Runs it, on one processor as a rule, and what feeds and reads it on another one where there is
/// one. Throws std::runtime_error for a run that is void: another status, or too few bytes.
/// `output`, where there is one and the streams are pipes, gets what the program writes.
Usage measure(const MeteredRun& run, std::string* output = nullptr);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_METER_H
