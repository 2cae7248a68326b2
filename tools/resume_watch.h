// SPDX-License-Identifier: Apache-2.0
//
// Keeps queues running without a person: knows when to ask the printer, and when to try again.
#ifndef TQR7_TOOLS_RESUME_WATCH_H
#define TQR7_TOOLS_RESUME_WATCH_H

#include <chrono>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tools/interruption.h"
#include "tools/queue.h"
#include "tools/resume_actions.h"
#include "tools/resume_plan.h"
#include "tools/scheduler.h"

namespace tools {

class ResumeWatch {
 public:
  /// `interval` is in seconds. Without names it watches all of the driver's queues. Scheduler,
  /// actions and interruption must outlive it.
  ResumeWatch(Scheduler& scheduler, ResumeActions& actions, const Interruption& interruption,
              std::vector<std::string> names, double interval);

  /// Looks once, and does what is due. Returns the exit status with which the tool would end now.
  int Step();

 private:
  using Clock = std::chrono::steady_clock;
  struct Track {
    Clock::time_point due;  ///< when the next attempt may be
    double pause = 0;       ///< seconds, after the last attempt
  };

  void StepQueue(const QueueList& list, const Queue& queue);
  bool PrinterStillInError(const QueueList& list, const Queue& queue);
  bool Ask(const Queue& queue);
  void Attempt(const ResumePlan& plan, Track& track);
  int StatusNow();

  Scheduler& scheduler_;
  ResumeActions& actions_;
  const Interruption& interruption_;
  std::vector<std::string> names_;
  double interval_;
  std::map<std::string, Track> tracks_;
  ResumeRules rules_;
};

}  // namespace tools

#endif  // TQR7_TOOLS_RESUME_WATCH_H
