// SPDX-License-Identifier: Apache-2.0
//
// Every wait of the simulated printer, for the network or for a time. During a wait, faults end
// when their time is up, and signals are obeyed.
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
  Ready,  ///< the descriptor has an event
  TimeUp,
  Stop,    ///< the simulator is to stop
  Failed,  ///< errno says why
};

/// Waits for one thing at a time.
class Waiter {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;

  /// `script` is the file to read again on SIGHUP, if any. The schedule must outlive the waiter.
  Waiter(SignalEnds signals, FaultSchedule& faults, std::string script)
      : signals_(signals), faults_(faults), script_(std::move(script)) {}

  /// Waits until the descriptor has one of poll's `events`, or until a time if one is given.
  Woken For(int descriptor, short events, std::optional<TimePoint> until = {}) const;

  /// Waits until a time. False when the simulator is to stop.
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
