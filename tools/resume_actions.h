// SPDX-License-Identifier: Apache-2.0
//
// Does what a plan says, and says what was done.
#ifndef TQR7_TOOLS_RESUME_ACTIONS_H
#define TQR7_TOOLS_RESUME_ACTIONS_H

#include <set>
#include <string>

#include "tools/resume_plan.h"
#include "tools/scheduler.h"

namespace tools {

class ResumeActions {
 public:
  /// The scheduler must outlive it. With `onceOnly`, Note and Complain write each line only once.
  ResumeActions(Scheduler& scheduler, bool onceOnly) : scheduler_(scheduler), onceOnly_(onceOnly) {}

  /// Starts the plan's jobs and queues. Returns false when something failed.
  bool Do(const ResumePlan& plan);
  /// Says what is left alone.
  void SayLeft(const ResumePlan& plan);
  /// Writes a line about a queue to standard output.
  void Note(const std::string& queue, const std::string& words);
  /// Writes a sentence to standard error.
  void Complain(const std::string& sentence);
  /// The queue runs: lines about it may be written again.
  void Forget(const std::string& queue);

 private:
  bool IsNew(const std::string& line);
  bool Report(const std::string& queue, const std::string& deed, Outcome outcome);

  Scheduler& scheduler_;
  bool onceOnly_;
  std::set<std::string> said_;
};

}  // namespace tools

#endif  // TQR7_TOOLS_RESUME_ACTIONS_H
