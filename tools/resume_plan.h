// SPDX-License-Identifier: Apache-2.0
//
// Plans what to start again, and what to leave alone and why.
#ifndef TQR7_TOOLS_RESUME_PLAN_H
#define TQR7_TOOLS_RESUME_PLAN_H

#include <map>
#include <string>
#include <vector>

#include "tools/queue.h"

namespace tools {

/// A stopped job to print again from its beginning.
struct JobToRestart {
  int id;
  std::string queue;
  int impressions;  ///< raster pages begun so far, over all attempts
};

/// A stopped queue to start.
struct QueueToStart {
  std::string name;
  std::string why;  ///< what had stopped it
};

/// A queue, or one job of it, that stays as it is.
struct LeftAlone {
  std::string queue;
  int job;  ///< 0 for the queue
  std::string why;
};

/// Jobs are started first, in the order of their numbers, and then the queues, so that a queue
/// prints its jobs in the order in which they were sent.
struct ResumePlan {
  std::vector<JobToRestart> jobs;
  std::vector<QueueToStart> queues;
  std::vector<LeftAlone> left;

  bool HasWork() const { return !jobs.empty() || !queues.empty(); }
};

/// What may be started.
struct ResumeRules {
  /// No person watches: starts only jobs that the printer stopped.
  bool unattended = false;
  /// Jobs that this run has started, with their impressions at that time. A job that has printed
  /// sheets since then and is stopped again is not started unattended: it would use up paper
  /// without end.
  std::map<int, int> started;
};

ResumePlan plan_resume(const QueueList& list, const std::vector<const Queue*>& queues,
                       const ResumeRules& rules);

/// The pause before the next attempt, in seconds: twice the last one, but at most a minute and at
/// least `interval`.
double next_pause(double last, double interval);

}  // namespace tools

#endif  // TQR7_TOOLS_RESUME_PLAN_H
