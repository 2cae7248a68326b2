// SPDX-License-Identifier: Apache-2.0
//
// What a metered program writes.
#ifndef TQR7_TESTS_UNIT_BENCH_OUTPUT_OF_H
#define TQR7_TESTS_UNIT_BENCH_OUTPUT_OF_H

#include <string>

#include "bench/speed/meter.h"

inline std::string output_of(const bench::MeteredRun& run) {
  std::string output;
  bench::measure(run, &output);
  return output;
}

#endif  // TQR7_TESTS_UNIT_BENCH_OUTPUT_OF_H
