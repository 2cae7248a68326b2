// SPDX-License-Identifier: Apache-2.0
#include "simulator/waiter.h"

#include <poll.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>

#include "simulator/event_log.h"
#include "simulator/fault_sources.h"

namespace simulator {
namespace {

using Clock = std::chrono::steady_clock;
constexpr int kNoDescriptor = -1;  // poll ignores it
constexpr int kForEver = -1;

// Rounded up: after a wait that ends too early, another one would follow.
int milliseconds_until(std::optional<Waiter::TimePoint> time) {
  if (!time) {
    return kForEver;
  }
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(*time - Clock::now()).count();
  return static_cast<int>(
      std::clamp<std::chrono::milliseconds::rep>(left, 0, std::numeric_limits<int>::max()));
}

std::optional<Waiter::TimePoint> earlier(std::optional<Waiter::TimePoint> one,
                                         std::optional<Waiter::TimePoint> other) {
  if (!one || !other) {
    return one ? one : other;
  }
  return std::min(*one, *other);
}

}  // namespace

void Waiter::ReadScriptAgain() const {
  if (script_.empty()) {
    log_event("there is no script to read again");
    return;
  }
  const std::string why = reload_script(script_, faults_);
  log_event(why.empty() ? "the script " + script_ + " begins anew"
                        : "the old script stays: " + why);
}

void Waiter::HearWishes() const {
  while (const std::optional<Wish> wish = take_wish(signals_)) {
    if (*wish == Wish::SeenTo) {
      faults_.SeenTo();
    } else {
      ReadScriptAgain();
    }
  }
}

Woken Waiter::For(int descriptor, short events, std::optional<TimePoint> until) const {
  for (;;) {
    faults_.EndByTime();
    std::array<pollfd, 3> waits{
        {{signals_.stop, POLLIN, 0}, {signals_.wishes, POLLIN, 0}, {descriptor, events, 0}}};
    const int timeout = milliseconds_until(earlier(until, faults_.NextEnd()));
    if (::poll(waits.data(), waits.size(), timeout) < 0) {
      if (errno != EINTR) {
        return Woken::Failed;
      }
      continue;
    }
    if (waits[0].revents != 0) {
      return Woken::Stop;
    }
    if (waits[1].revents != 0) {
      HearWishes();
    }
    if (waits[2].revents != 0) {
      return Woken::Ready;
    }
    if (until && Clock::now() >= *until) {
      return Woken::TimeUp;
    }
  }
}

bool Waiter::Until(TimePoint time) const {
  return For(kNoDescriptor, 0, time) != Woken::Stop;
}

}  // namespace simulator
