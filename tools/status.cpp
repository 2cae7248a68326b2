// SPDX-License-Identifier: Apache-2.0
//
// tqr7 status: shows the state of each queue, and what to do about it.
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "language/messages.h"
#include "tools/command_line.h"
#include "tools/condition.h"
#include "tools/interruption.h"
#include "tools/plain_text.h"
#include "tools/queue_choice.h"
#include "tools/scheduler.h"
#include "tools/status_question.h"
#include "tools/subcommands.h"

namespace tools {
namespace {

using language::_;
using language::filled;

struct StatusOptions {
  std::vector<std::string> queues;
  bool watch = false;
  double interval = 2;  // seconds
  bool json = false;
  bool ask = false;
};

// The result of one look: what goes to standard output and to standard error, and the exit status.
struct Finding {
  std::string said;
  std::string complaints;
  int status = kExitCannotTell;

  bool operator==(const Finding&) const = default;
};

void add_complaint(Finding& finding, const std::string& sentence) {
  finding.complaints += complaint_line("status", sentence);
}

Finding describe(const QueueList& list, const StatusOptions& options) {
  Finding finding;
  const QueueChoice choice = choose_queues(list, options.queues);
  std::vector<Condition> conditions;
  const language::English for_programs(options.json);
  bool good = true;
  for (const Queue* const queue : choice.queues) {
    conditions.push_back(condition_of(list, *queue));
    good = good && conditions.back().IsGood();
    finding.said += options.json ? "" : in_words(conditions.back());
  }
  if (options.json) {
    finding.said = as_json(conditions, options.watch);
  }
  for (const std::string& sentence : choice.complaints) {
    add_complaint(finding, sentence);
  }
  if (choice.complaints.empty()) {
    finding.status = good ? kExitGood : kExitNotGood;
  }
  return finding;
}

Finding look(Scheduler& scheduler, const StatusOptions& options) {
  if (const std::optional<QueueList> list = scheduler.Look()) {
    return describe(*list, options);
  }
  Finding finding;
  add_complaint(finding, filled(_("the scheduler does not answer: %s"), scheduler.Error().c_str()));
  return finding;
}

void say(const Finding& finding) {
  std::fputs(finding.said.c_str(), stdout);
  std::fflush(stdout);
  std::fputs(finding.complaints.c_str(), stderr);
}

void ask_queues(Scheduler& scheduler, const StatusOptions& options,
                const Interruption& interruption) {
  const std::optional<QueueList> list = scheduler.Look();
  if (!list) {
    return;  // the next look will complain
  }
  for (const Queue* const queue : choose_queues(*list, options.queues).queues) {
    if (queue->isClass) {
      continue;  // it has no printer itself
    }
    const std::string why_not = ask_printer(scheduler, *queue, interruption);
    if (!why_not.empty()) {
      complain("status", filled(_("the printer of %s was not asked: %s"),
                                plain_text(queue->name).c_str(), why_not.c_str()));
    }
  }
}

int show_status(const StatusOptions& options) {
  const Interruption interruption;
  Scheduler scheduler;
  if (options.ask) {
    ask_queues(scheduler, options, interruption);
  }
  Finding last = look(scheduler, options);
  say(last);
  while (options.watch && !interruption.Within(options.interval)) {
    Finding now = look(scheduler, options);
    if (!(now == last)) {
      say(now);
    }
    last = std::move(now);
  }
  return last.status;
}

}  // namespace

void add_status(CommandLine& program) {
  const auto options = std::make_shared<StatusOptions>();
  Subcommand command =
      program.Add("status", _("show the state of each queue, and what to do about it"));
  command.Texts("QUEUE", options->queues, _("only these queues and classes"));
  command.Flag("--watch", options->watch,
               _("say it again whenever something changes, until interrupted"));
  command.Seconds("--interval", options->interval, _("seconds between two looks of --watch"));
  command.Flag("--json", options->json, _("for programs; with --watch a line each time"));
  command.Flag("--ask", options->ask, _("have each printer asked for its state first"));
  command.Runs([options] { return show_status(*options); });
}

}  // namespace tools
