// SPDX-License-Identifier: Apache-2.0
#include "bench/spread.h"

#include <algorithm>
#include <numeric>

namespace bench {

Spread spread_of(std::vector<double> values) {
  if (values.empty()) {
    return {};
  }
  std::sort(values.begin(), values.end());
  const std::size_t count = values.size();
  const double sum = std::accumulate(values.begin(), values.end(), 0.0);
  return {count, sum / static_cast<double>(count), values[(count * 95 + 99) / 100 - 1],
          values.back()};
}

double median_of(std::vector<double> values) {
  if (values.empty()) {
    return 0.0;
  }
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2.0;
}

}  // namespace bench
