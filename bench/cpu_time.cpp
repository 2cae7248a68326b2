// SPDX-License-Identifier: Apache-2.0
#include "bench/cpu_time.h"

#include <cstddef>
#include <ctime>
#include <utility>

#include "bench/spread.h"

namespace bench {

double cpu_seconds() {
  std::timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

Contestant in_process(std::string name, std::function<void()> work) {
  return {std::move(name),
          [work = std::move(work)] {
            const double before = cpu_seconds();
            work();
            return cpu_seconds() - before;
          },
          {}};
}

void race(const std::vector<Contestant*>& contestants, int rounds) {
  for (Contestant* contestant : contestants) {
    contestant->run();
  }
  for (int round = 0; round < rounds; ++round) {
    for (Contestant* contestant : contestants) {
      contestant->seconds.push_back(contestant->run());
    }
  }
}

double median_seconds(const Contestant& contestant) {
  return median_of(contestant.seconds);
}

double times_faster(const Contestant& first, const Contestant& second) {
  std::vector<double> ratios;
  for (std::size_t round = 0; round < first.seconds.size(); ++round) {
    ratios.push_back(second.seconds[round] / first.seconds[round]);
  }
  return median_of(std::move(ratios));
}

}  // namespace bench
