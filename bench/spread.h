// SPDX-License-Identifier: Apache-2.0
//
// Many measured values told as a few numbers.
#ifndef TQR7_BENCH_SPREAD_H
#define TQR7_BENCH_SPREAD_H

#include <cstddef>
#include <vector>

namespace bench {

struct Spread {
  std::size_t count = 0;
  double mean = 0.0;
  double percentile95 = 0.0;  ///< the smallest value that 95 % of all do not exceed
  double largest = 0.0;
};

/// All zero for no values.
Spread spread_of(std::vector<double> values);

/// The middle value, or the mean of the two in the middle; 0 for no values.
double median_of(std::vector<double> values);

}  // namespace bench

#endif  // TQR7_BENCH_SPREAD_H
