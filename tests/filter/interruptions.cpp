// SPDX-License-Identifier: Apache-2.0
//
// Preloaded into the filter: a library that has the system send a signal every third of a
// millisecond, and whose handler asks for no restart of the calls that it interrupts.
#include <sys/time.h>

#include <csignal>
#include <cstdlib>

namespace {

__attribute__((constructor)) void Start() {
  struct sigaction action {};
  action.sa_handler = [](int) {};
  sigemptyset(&action.sa_mask);
  const itimerval interval{{0, 333}, {0, 333}};
  if (sigaction(SIGALRM, &action, nullptr) != 0 ||
      setitimer(ITIMER_REAL, &interval, nullptr) != 0) {
    std::abort();
  }
}

}  // namespace
