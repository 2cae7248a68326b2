// SPDX-License-Identifier: Apache-2.0
//
// Preloaded into the filter: a library that has the system send a signal every third of a
// millisecond, and whose handler asks for no restart of the calls that it interrupts. It also takes
// SIGTERM, which it makes nothing of, and reports a fault of the process by the exit status 77.
#include <sys/time.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <initializer_list>

namespace {

__attribute__((constructor)) void Start() {
  struct sigaction action {};
  sigemptyset(&action.sa_mask);
  action.sa_handler = [](int) { _exit(77); };
  for (const int fault : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGTRAP, SIGSYS, SIGABRT}) {
    sigaction(fault, &action, nullptr);
  }
  action.sa_handler = [](int) {};
  sigaction(SIGTERM, &action, nullptr);
  const itimerval interval{{0, 333}, {0, 333}};
  if (sigaction(SIGALRM, &action, nullptr) != 0 ||
      setitimer(ITIMER_REAL, &interval, nullptr) != 0) {
    std::abort();
  }
}

}  // namespace
