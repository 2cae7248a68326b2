// SPDX-License-Identifier: Apache-2.0
#include "tools/resume_actions.h"

#include <cstdio>

#include "tools/plain_text.h"

namespace tools {

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
    std::fprintf(stderr, "tqr7 resume: %s\n", sentence.c_str());
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
  const std::string subject = plain_text(queue) + ": not done: " + deed + ": ";
  Complain(subject + (outcome == Outcome::Forbidden
                          ? "you have no right to administer the queue (run it as root, or as a "
                            "member of the scheduler's SystemGroup)"
                          : scheduler_.Error()));
  return false;
}

bool ResumeActions::Do(const ResumePlan& plan) {
  bool done = true;
  for (const JobToRestart& job : plan.jobs) {
    const std::string deed = "job " + std::to_string(job.id) + " started again from its beginning";
    done = Report(job.queue, deed, scheduler_.RestartJob(job.id)) && done;
  }
  for (const QueueToStart& queue : plan.queues) {
    done = Report(queue.name, "queue started again (" + queue.why + ")",
                  scheduler_.StartQueue(queue.name)) &&
           done;
  }
  return done;
}

void ResumeActions::SayLeft(const ResumePlan& plan) {
  for (const LeftAlone& left : plan.left) {
    Note(left.queue, (left.job > 0 ? "job " + std::to_string(left.job) + " left alone: "
                                   : std::string("left alone: ")) +
                         left.why);
  }
}

}  // namespace tools
