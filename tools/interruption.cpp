// SPDX-License-Identifier: Apache-2.0
#include "tools/interruption.h"

#include <sys/select.h>

#include <algorithm>
#include <chrono>

namespace tools {
namespace {

volatile std::sig_atomic_t gAskedToEnd = 0;

void note_the_wish(int /*signalNumber*/) {
  gAskedToEnd = 1;
}

timespec in_nanoseconds(std::chrono::nanoseconds left) {
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(left);
  timespec time{};
  time.tv_sec = static_cast<time_t>(seconds.count());
  time.tv_nsec = static_cast<long>((left - seconds).count());
  return time;
}

}  // namespace

Interruption::Interruption() {
  struct sigaction action = {};
  action.sa_handler = note_the_wish;
  sigset_t held;
  sigemptyset(&held);
  for (const int number : {SIGINT, SIGTERM}) {
    ::sigaction(number, &action, nullptr);
    sigaddset(&held, number);
  }
  ::sigprocmask(SIG_BLOCK, &held, &whileWaiting_);
  // Even when the parent process had blocked them.
  sigdelset(&whileWaiting_, SIGINT);
  sigdelset(&whileWaiting_, SIGTERM);
}

bool Interruption::Within(double seconds) const {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point end = Clock::now() + std::chrono::duration_cast<Clock::duration>(
                                                   std::chrono::duration<double>(seconds));
  do {
    const std::chrono::nanoseconds left = std::max(end - Clock::now(), Clock::duration::zero());
    const timespec time = in_nanoseconds(left);
    ::pselect(0, nullptr, nullptr, nullptr, &time, &whileWaiting_);
  } while (gAskedToEnd == 0 && Clock::now() < end);
  return gAskedToEnd != 0;
}

}  // namespace tools
