// SPDX-License-Identifier: Apache-2.0
#include "tools/resume_plan.h"

#include <algorithm>

#include "language/messages.h"
#include "tools/plain_text.h"
#include "tools/standstill.h"

namespace tools {
namespace {

using language::_;
using language::filled;

constexpr double kPauseMost = 60;  // seconds

// The scheduler counts a page when it begins, so it counts the first page of a refused job. It goes
// on counting when the job is started again.
bool has_spent_paper(const Job& job, const ResumeRules& rules) {
  const auto started = rules.started.find(job.id);
  return started != rules.started.end() && job.impressions - started->second > 1;
}

void plan_job(const Queue& queue, const Job& job, const ResumeRules& rules, ResumePlan& plan) {
  if (const std::string words = words_on_file(job); !words.empty()) {
    // TRANSLATORS: %1$s is a sentence of a program, in English, with its full stop.
    plan.left.push_back({queue.name, job.id,
                         filled(_("its file cannot be printed (%1$s); `cancel %2$d` clears it"),
                                plain_text(words).c_str(), job.id)});
    return;
  }
  if (rules.unattended && !stopped_by_printer(job)) {
    plan.left.push_back({queue.name, job.id,
                         filled(_("nothing shows that the printer stopped it; `tqr7 resume %s` "
                                  "starts it all the same"),
                                queue.name.c_str())});
    return;
  }
  if (rules.unattended && has_spent_paper(job, rules)) {
    plan.left.push_back({queue.name, job.id,
                         filled(_("sheets of it came out again, and it failed again; `tqr7 resume "
                                  "%s` prints all of it again"),
                                queue.name.c_str())});
    return;
  }
  const bool known = std::any_of(plan.jobs.begin(), plan.jobs.end(),
                                 [&](const JobToRestart& other) { return other.id == job.id; });
  if (!known) {
    plan.jobs.push_back({job.id, queue.name, job.impressions});
  }
}

// If a job of a class has stopped the queue, plans that job, too.
void plan_cause(const QueueList& list, const Cause& cause, const ResumeRules& rules,
                ResumePlan& plan) {
  for (const Queue& queue : list.queues) {
    for (const Job* const job : jobs_in(queue, JobState::Stopped)) {
      if (queue.isClass && queue.state != QueueState::Stopped && job->id == cause.job) {
        plan_job(queue, *job, rules, plan);
      }
    }
  }
}

void plan_queue(const QueueList& list, const Queue& queue, const ResumeRules& rules,
                ResumePlan& plan) {
  const Cause cause = cause_of_standstill(list, queue);
  if (cause.kind == Standstill::ByPerson) {
    plan.left.push_back({queue.name, 0,
                         filled(_("a person stopped it, or a program that is not this driver; "
                                  "`cupsenable %s` starts it"),
                                queue.name.c_str())});
    return;
  }
  for (const Job* const job : jobs_in(queue, JobState::Stopped)) {
    plan_job(queue, *job, rules, plan);
  }
  if (cause.kind == Standstill::Refused) {
    plan_cause(list, cause, rules, plan);
    plan.queues.push_back(
        {queue.name, cause.word.empty()
                         ? _("the driver had stopped it: refused sheet")
                         : filled(_("the driver had stopped it: %s"), cause.word.c_str())});
  } else if (cause.kind == Standstill::Policy) {
    plan.queues.push_back(
        {queue.name, _("its error policy had stopped it: the printer could not be reached")});
  }
}

}  // namespace

ResumePlan plan_resume(const QueueList& list, const std::vector<const Queue*>& queues,
                       const ResumeRules& rules) {
  ResumePlan plan;
  for (const Queue* const queue : queues) {
    plan_queue(list, *queue, rules, plan);
  }
  std::sort(plan.jobs.begin(), plan.jobs.end(),
            [](const JobToRestart& left, const JobToRestart& right) { return left.id < right.id; });
  return plan;
}

double next_pause(double last, double interval) {
  return std::max(interval, std::min(2 * last, kPauseMost));
}

}  // namespace tools
