// SPDX-License-Identifier: Apache-2.0
//
// Keeping queues running without a person: when to ask the printer, and when to try again.
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
  /// `interval` in seconds; no names: all of the driver's queues. What is given must outlive it.
  ResumeWatch(Scheduler& scheduler, ResumeActions& actions, const Interruption& interruption,
              std::vector<std::string> names, double interval);

  /// Looks once, and does what is due. The exit status that the tool would end with now.
  int Step();

 private:
  using Clock = std::chrono::steady_clock;
  struct Track {
    Clock::time_point due;  ///< no attempt before
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
