// SPDX-License-Identifier: Apache-2.0
//
// tqr7 resume: starts again what the printer stopped, and nothing that a person stopped.
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "language/messages.h"
#include "tools/command_line.h"
#include "tools/interruption.h"
#include "tools/queue_choice.h"
#include "tools/resume_actions.h"
#include "tools/resume_plan.h"
#include "tools/resume_watch.h"
#include "tools/scheduler.h"
#include "tools/subcommands.h"

namespace tools {
namespace {

using language::_;
using language::filled;

struct ResumeOptions {
  std::vector<std::string> queues;
  bool watch = false;
  double interval = 10;  // seconds
};

int resume_now(const ResumeOptions& options) {
  Scheduler scheduler;
  ResumeActions actions(scheduler, false);
  const std::optional<QueueList> list = scheduler.Look();
  if (!list) {
    actions.Complain(filled(_("the scheduler does not answer: %s"), scheduler.Error().c_str()));
    return kExitCannotTell;
  }
  const QueueChoice choice = choose_queues(*list, options.queues);
  for (const std::string& complaint : choice.complaints) {
    actions.Complain(complaint);
  }
  bool good = true;
  for (const Queue* const queue : choice.queues) {
    const ResumePlan own = plan_resume(*list, {queue}, {});
    if (!own.HasWork() && own.left.empty()) {
      actions.Note(queue->name, _("runs; nothing to start"));
    }
    good = good && own.left.empty();
  }
  const ResumePlan plan = plan_resume(*list, choice.queues, {});
  good = actions.Do(plan) && good;
  actions.SayLeft(plan);
  if (!choice.complaints.empty()) {
    return kExitCannotTell;
  }
  return good ? kExitGood : kExitNotGood;
}

int keep_running(const ResumeOptions& options) {
  const Interruption interruption;
  Scheduler scheduler;
  ResumeActions actions(scheduler, true);
  ResumeWatch watch(scheduler, actions, interruption, options.queues, options.interval);
  int status = kExitGood;
  do {
    status = watch.Step();
  } while (!interruption.Within(options.interval));
  return status;
}

}  // namespace

void add_resume(CommandLine& program) {
  const auto options = std::make_shared<ResumeOptions>();
  Subcommand command = program.Add(
      "resume", _("start again what the printer stopped, and nothing that a person stopped"));
  command.Texts("QUEUE", options->queues, _("only these queues and classes"));
  command.Flag(
      "--watch", options->watch,
      _("keep watching, and start it whenever the printer is good again, until interrupted"));
  command.Seconds("--interval", options->interval, _("seconds between two looks of --watch"));
  command.Runs(
      [options] { return options->watch ? keep_running(*options) : resume_now(*options); });
}

}  // namespace tools
