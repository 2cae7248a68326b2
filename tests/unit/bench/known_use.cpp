// SPDX-License-Identifier: Apache-2.0
//
// Uses so much and says what: known_use MEGABYTES CPU-MILLISECONDS [STATUS]. It prints the
// processor time that it has used by its own clock, in seconds, pauses twice, and ends with the
// status.
#include <sys/prctl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

namespace {

double cpu_seconds() {
  std::timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    return 2;
  }
  prctl(PR_SET_THP_DISABLE, 1, 0, 0, 0);  // a fault for each page, wherever this runs
  const std::vector<char> memory(std::strtoul(argv[1], nullptr, 10) << 20U, 'x');
  const double until = 1e-3 * std::atof(argv[2]);
  while (cpu_seconds() < until) {
  }
  sleep(5);
  sleep(2);
  std::printf("%.6f\n", cpu_seconds());
  std::fflush(stdout);
  return argc > 3 ? std::atoi(argv[3]) : 0;
}
