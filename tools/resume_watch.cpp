// SPDX-License-Identifier: Apache-2.0
#include "tools/resume_watch.h"

#include <algorithm>
#include <utility>

#include "language/messages.h"
#include "tools/condition.h"
#include "tools/plain_text.h"
#include "tools/queue_choice.h"
#include "tools/status_question.h"
#include "tools/subcommands.h"

namespace tools {

using language::_;
using language::filled;

ResumeWatch::ResumeWatch(Scheduler& scheduler, ResumeActions& actions,
                         const Interruption& interruption, std::vector<std::string> names,
                         double interval)
    : scheduler_(scheduler),
      actions_(actions),
      interruption_(interruption),
      names_(std::move(names)),
      interval_(interval) {
  rules_.unattended = true;
}

int ResumeWatch::Step() {
  const std::optional<QueueList> list = scheduler_.Look();
  if (!list) {
    actions_.Complain(filled(_("the scheduler does not answer: %s"), scheduler_.Error().c_str()));
    return kExitCannotTell;
  }
  const QueueChoice choice = choose_queues(*list, names_);
  for (const std::string& complaint : choice.complaints) {
    actions_.Complain(complaint);
  }
  for (const Queue* const queue : choice.queues) {
    StepQueue(*list, *queue);
  }
  return choice.complaints.empty() ? StatusNow() : kExitCannotTell;
}

// Looks again, because what was just started runs now.
int ResumeWatch::StatusNow() {
  const std::optional<QueueList> list = scheduler_.Look();
  if (!list) {
    return kExitCannotTell;
  }
  const ResumePlan plan = plan_resume(*list, choose_queues(*list, names_).queues, rules_);
  return plan.left.empty() && !plan.HasWork() ? kExitGood : kExitNotGood;
}

void ResumeWatch::StepQueue(const QueueList& list, const Queue& queue) {
  const ResumePlan plan = plan_resume(list, {&queue}, rules_);
  Track& track = tracks_[queue.name];
  if (!plan.HasWork()) {
    if (plan.left.empty() && queue.state == QueueState::Idle) {
      track = {};
      actions_.Forget(queue.name);
    }
    actions_.SayLeft(plan);
    return;
  }
  actions_.SayLeft(plan);
  if (Clock::now() < track.due) {
    return;
  }
  if (PrinterStillInError(list, queue)) {
    actions_.Note(queue.name, _("waits: the printer is still in error"));
    return;
  }
  Attempt(plan, track);
}

void ResumeWatch::Attempt(const ResumePlan& plan, Track& track) {
  actions_.Do(plan);
  for (const JobToRestart& job : plan.jobs) {
    rules_.started[job.id] = job.impressions;
  }
  track.pause = next_pause(track.pause, interval_);
  track.due = Clock::now() + std::chrono::duration_cast<Clock::duration>(
                                 std::chrono::duration<double>(track.pause));
}

// Asks the printer of an idle queue, and those of a class's members that show a reason. A queue
// that cannot be asked counts as good: when it is started, the driver asks the printer before it
// uses paper.
bool ResumeWatch::PrinterStillInError(const QueueList& list, const Queue& queue) {
  if (!queue.isClass) {
    return Ask(queue);
  }
  bool free_member = false;
  for (const std::string& name : queue.members) {
    const Queue* const member = list.Find(name);
    if (member != nullptr && member->state != QueueState::Stopped) {
      free_member = !has_printer_reason(member->reasons) || !Ask(*member) || free_member;
    }
  }
  return !free_member;
}

// True when the printer was asked and the queue still shows its reasons.
bool ResumeWatch::Ask(const Queue& queue) {
  if (queue.state != QueueState::Idle || !can_be_asked(queue)) {
    return false;
  }
  const std::string why_not = ask_printer(scheduler_, queue, interruption_);
  if (!why_not.empty()) {
    actions_.Complain(filled(_("the printer of %s was not asked: %s"),
                             plain_text(queue.name).c_str(), why_not.c_str()));
    return false;
  }
  const std::optional<QueueList> now = scheduler_.Look();
  const Queue* const asked = now ? now->Find(queue.name) : nullptr;
  return asked != nullptr && has_printer_reason(asked->reasons);
}

}  // namespace tools
