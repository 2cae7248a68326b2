// SPDX-License-Identifier: Apache-2.0
#include "tools/status_question.h"

#include "language/messages.h"

namespace tools {
namespace {

using language::_;

constexpr double kPoll = 0.1;    // seconds between two looks at the question's job
constexpr int kPollsMost = 300;  // half a minute: it may have to wait for a job that prints

bool is_at_end(JobState state) {
  return state == JobState::Completed || state == JobState::Canceled || state == JobState::Aborted;
}

}  // namespace

bool can_be_asked(const Queue& queue) {
  return !queue.isClass && queue.state != QueueState::Stopped &&
         contains(queue.commands, "ReportStatus");
}

std::string ask_printer(Scheduler& scheduler, const Queue& queue,
                        const Interruption& interruption) {
  if (queue.state == QueueState::Stopped) {
    return _("a stopped queue asks nothing");
  }
  if (!can_be_asked(queue)) {
    return _("the queue has no command that asks the printer");
  }
  const int job = scheduler.AskForStatus(queue.name);
  if (job == 0) {
    return scheduler.Error();
  }
  for (int polls = 0; polls < kPollsMost; ++polls) {
    const JobState state = scheduler.StateOf(job);
    if (is_at_end(state)) {
      return {};
    }
    if (state == JobState::Stopped) {
      // The filter has asked, and stops the job because the answer was not good.
      scheduler.CancelJob(job);
      return {};
    }
    if (state == JobState::Unknown || interruption.Within(kPoll)) {
      break;
    }
  }
  scheduler.CancelJob(job);
  return _("the question was not answered in time");
}

}  // namespace tools
