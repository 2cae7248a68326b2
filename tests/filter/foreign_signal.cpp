// SPDX-License-Identifier: Apache-2.0
//
// Preloaded into the filter: a library of another's that has a handler for SIGUSR1.
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace {

void Tell(int /*signal_number*/) {
  constexpr char kLine[] = "[SIGUSR1]\n";
  if (write(STDERR_FILENO, kLine, sizeof kLine - 1) < 0) {
    _exit(98);
  }
}

__attribute__((constructor)) void Start() {
  struct sigaction action {};
  sigemptyset(&action.sa_mask);
  action.sa_handler = Tell;
  action.sa_flags = SA_RESTART;
  if (sigaction(SIGUSR1, &action, nullptr) != 0) {
    std::abort();
  }
}

}  // namespace
