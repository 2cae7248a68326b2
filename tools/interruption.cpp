// SPDX-License-Identifier: Apache-2.0
#include "tools/interruption.h"

#include <poll.h>

#include <chrono>

#include "simulator/stop_signal.h"

namespace tools {

Interruption::Interruption() : descriptor_(simulator::catch_stop_signals()) {}

bool Interruption::Within(double seconds) const {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point end = Clock::now() + std::chrono::duration_cast<Clock::duration>(
                                                   std::chrono::duration<double>(seconds));
  pollfd stop{descriptor_, POLLIN, 0};
  for (;;) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
    // Without a descriptor poll() only waits.
    const int ready = ::poll(&stop, 1, left > 0 ? static_cast<int>(left) : 0);
    if (ready > 0) {
      return true;
    }
    if (ready == 0 && left <= 0) {
      return false;
    }
  }
}

}  // namespace tools
