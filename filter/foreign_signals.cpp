// SPDX-License-Identifier: Apache-2.0
#include "filter/foreign_signals.h"

#include <algorithm>
#include <csignal>
#include <iterator>

namespace {

// SIGTERM cancels the job. The others are the process's own faults: held back, they would end it
// without their handlers' report.
constexpr int kNeverHeldBack[] = {SIGTERM, SIGSEGV, SIGBUS, SIGFPE,
                                  SIGILL,  SIGTRAP, SIGSYS, SIGABRT};

bool has_handler(int signal_number) {
  struct sigaction action {};
  return sigaction(signal_number, nullptr, &action) == 0 && action.sa_handler != SIG_DFL &&
         action.sa_handler != SIG_IGN;
}

}  // namespace

void hold_back_foreign_signals() {
  sigset_t foreign;
  sigemptyset(&foreign);
  for (int signal_number = 1; signal_number < NSIG; ++signal_number) {
    const bool excepted = std::find(std::begin(kNeverHeldBack), std::end(kNeverHeldBack),
                                    signal_number) != std::end(kNeverHeldBack);
    if (!excepted && has_handler(signal_number)) {
      sigaddset(&foreign, signal_number);
    }
  }
  sigprocmask(SIG_BLOCK, &foreign, nullptr);
}
