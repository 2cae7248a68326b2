// SPDX-License-Identifier: Apache-2.0
//
// What is to be started again, and what is left alone and why.
#ifndef TQR7_TOOLS_RESUME_PLAN_H
#define TQR7_TOOLS_RESUME_PLAN_H

#include <map>
#include <string>
#include <vector>

#include "tools/queue.h"

namespace tools {

/// A stopped job that is printed again from its beginning.
struct JobToRestart {
  int id;
  std::string queue;
  int impressions;  ///< raster pages begun so far, over all attempts
};

/// A stopped queue that is started.
struct QueueToStart {
  std::string name;
  std::string why;  ///< it may be: what had stopped it
};

/// A queue, or one job of it, that stays as it is.
struct LeftAlone {
  std::string queue;
  int job;  ///< 0 for the queue
  std::string why;
};

/// Jobs come first, in the order of their numbers, then the queues: so a queue finds its jobs in
/// the order in which they were sent.
struct ResumePlan {
  std::vector<JobToRestart> jobs;
  std::vector<QueueToStart> queues;
  std::vector<LeftAlone> left;

  bool HasWork() const { return !jobs.empty() || !queues.empty(); }
};

/// What a run may start by itself.
struct ResumeRules {
  /// Without a person at hand only jobs are started that the printer stopped.
  bool unattended = false;
  /// Jobs that this run has started, with their impressions then. One that has put out sheets since
  /// and stands again is not started unattended: it would spend paper for ever.
  std::map<int, int> started;
};

ResumePlan plan_resume(const QueueList& list, const std::vector<const Queue*>& queues,
                       const ResumeRules& rules);

/// The pause before the next attempt: twice the last, from `interval` to a minute, or `interval`
/// where that is longer. In seconds.
double next_pause(double last, double interval);

}  // namespace tools

#endif  // TQR7_TOOLS_RESUME_PLAN_H
