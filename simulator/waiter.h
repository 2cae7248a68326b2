// SPDX-License-Identifier: Apache-2.0
//
// Every wait of the simulated printer: for the network or for a time. Meanwhile faults come to
// their end on time, and a person's wishes are heard.
#ifndef TQR7_SIMULATOR_WAITER_H
#define TQR7_SIMULATOR_WAITER_H

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "simulator/fault_schedule.h"
#include "simulator/signals.h"

namespace simulator {

/// How a wait ended.
enum class Woken : std::uint8_t {
  Ready,  ///< the descriptor is
  TimeUp,
  Stop,    ///< the simulator shall end
  Failed,  ///< the system gave up; errno says why
};

/// Waits for one thing at a time.
class Waiter {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;

  /// `script` is the file to read again on SIGHUP, if any. The schedule must outlive the waiter.
  Waiter(SignalEnds signals, FaultSchedule& faults, std::string script)
      : signals_(signals), faults_(faults), script_(std::move(script)) {}

  /// Until the descriptor has one of poll's `events`, or until a time, for ever without.
  Woken For(int descriptor, short events, std::optional<TimePoint> until = {}) const;

  /// Lets a time pass. False when the simulator shall end.
  bool Until(TimePoint time) const;

 private:
  void HearWishes() const;
  void ReadScriptAgain() const;

  SignalEnds signals_;
  FaultSchedule& faults_;
  std::string script_;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_WAITER_H
