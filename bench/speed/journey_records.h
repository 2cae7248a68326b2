// SPDX-License-Identifier: Apache-2.0
//
// Jobs on their way from lp to the printer, read from what the programs on the way have written
// down: the scheduler's log, the printer's timeline, and the marks of the filter in that log.
#ifndef TQR7_BENCH_SPEED_JOURNEY_RECORDS_H
#define TQR7_BENCH_SPEED_JOURNEY_RECORDS_H

#include <cstdint>
#include <string>
#include <vector>

namespace bench {

/// A call that took time in the filter, or several of one name in a row.
struct Mark {
  std::string name;
  double begin;
  double end;
  double waited;  ///< of it in reading the raster
};

/// One event at the printer.
struct Arrival {
  double time;
  std::uint64_t bytes;  ///< that had come by then
  std::string event;
};

/// A filter or the backend.
struct Program {
  std::string name;
  double started;
  double exited;
};

/// One job. All times are milliseconds since lp was started.
struct Journey {
  std::string kind;
  bool marked = false;            ///< marks were taken in the filter
  double lpEnded = 0.0;           ///< lp had handed the job over
  double queued = 0.0;            ///< the scheduler had made the job
  double begun = 0.0;             ///< the scheduler had the file, and began with the job
  double completed = 0.0;         ///< the scheduler had noticed that all was done
  std::vector<Program> programs;  ///< in the order of the data; the backend is the last
  std::vector<Mark> marks;        ///< none unless marked
  std::vector<Arrival> arrivals;  ///< at the printer
};

/// The first and the last of the bytes at the printer.
double first_byte(const Journey& journey);
double last_byte(const Journey& journey);

/// Reads a folder's "jobs" (a line each: number, kind, queue, and when lp began and ended), and for
/// each queue the lines of jobs of its scheduler's log, "QUEUE.log", and its printer's
/// "QUEUE.timeline". The queue "marked" has the marks and a log that tells all; of the others only
/// the times at the printer and the end of the job are known. Throws std::runtime_error for a job
/// of which something is missing, as one that was not printed.
std::vector<Journey> read_journeys(const std::string& folder);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_JOURNEY_RECORDS_H
