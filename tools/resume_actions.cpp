// SPDX-License-Identifier: Apache-2.0
#include "tools/resume_actions.h"

#include <cstdio>

#include "language/messages.h"
#include "tools/plain_text.h"
#include "tools/subcommands.h"

namespace tools {

using language::_;
using language::filled;

bool ResumeActions::IsNew(const std::string& line) {
  return said_.insert(line).second || !onceOnly_;
}

void ResumeActions::Note(const std::string& queue, const std::string& words) {
  const std::string line = plain_text(queue) + ": " + words;
  if (IsNew(line)) {
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
  }
}

void ResumeActions::Complain(const std::string& sentence) {
  if (IsNew(sentence)) {
    complain("resume", sentence);
  }
}

void ResumeActions::Forget(const std::string& queue) {
  std::erase_if(said_, [&](const std::string& line) { return line.starts_with(queue + ": "); });
}

bool ResumeActions::Report(const std::string& queue, const std::string& deed, Outcome outcome) {
  if (outcome == Outcome::Done) {
    std::printf("%s: %s\n", plain_text(queue).c_str(), deed.c_str());
    std::fflush(stdout);
    return true;
  }
  const std::string why =
      outcome == Outcome::Forbidden
          ? _("you have no right to administer the queue (run it as root, or as a member of the "
              "scheduler's SystemGroup)")
          : scheduler_.Error();
  // TRANSLATORS: queue, what was to be done ("job 12 started again from its beginning"), why not.
  Complain(filled(_("%1$s: not done: %2$s: %3$s"), plain_text(queue).c_str(), deed.c_str(),
                  why.c_str()));
  return false;
}

bool ResumeActions::Do(const ResumePlan& plan) {
  bool done = true;
  for (const JobToRestart& job : plan.jobs) {
    const std::string deed = filled(_("job %d started again from its beginning"), job.id);
    done = Report(job.queue, deed, scheduler_.RestartJob(job.id)) && done;
  }
  for (const QueueToStart& queue : plan.queues) {
    done = Report(queue.name, filled(_("queue started again (%s)"), queue.why.c_str()),
                  scheduler_.StartQueue(queue.name)) &&
           done;
  }
  return done;
}

void ResumeActions::SayLeft(const ResumePlan& plan) {
  for (const LeftAlone& left : plan.left) {
    Note(left.queue, left.job > 0
                         ? filled(_("job %1$d left alone: %2$s"), left.job, left.why.c_str())
                         // TRANSLATORS: a queue is left alone, as it is.
                         : filled(_("left alone: %s"), left.why.c_str()));
  }
}

}  // namespace tools
