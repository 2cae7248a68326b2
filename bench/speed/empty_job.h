// SPDX-License-Identifier: Apache-2.0
//
// A job without pages, for what a filter takes to start: it asks for the printer's status, finds no
// page, sends the print-out command and ends.
#ifndef TQR7_BENCH_SPEED_EMPTY_JOB_H
#define TQR7_BENCH_SPEED_EMPTY_JOB_H

#include <string>

#include "bench/speed/meter.h"
#include "tests/filter/temporary_folder.h"

namespace bench {

class EmptyJob {
 public:
  /// The floor: loads libcups, opens the PPD, marks the options.
  MeteredRun floor() const;
  /// The filter as it is installed, on a printer that is good.
  MeteredRun filter() const;
  /// Runs one of the two; `flushed` becomes the processor time, in seconds, that it had used when
  /// it had flushed its output: the filter's first bytes, the floor's end. Throws
  /// std::runtime_error when it never did.
  Usage measure(MeteredRun run, double* flushed) const;

 private:
  filter_test::TemporaryFolder folder_;
  std::string input_ = folder_.Write("no-pages", "3SaR");  // the mark of a stream, and nothing more
};

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_EMPTY_JOB_H
