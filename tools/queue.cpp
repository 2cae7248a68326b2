// SPDX-License-Identifier: Apache-2.0
#include "tools/queue.h"

#include <algorithm>
#include <array>

#include "language/messages.h"

namespace tools {

using language::N_;

const Queue* QueueList::Find(std::string_view name) const {
  const auto found = std::find_if(queues.begin(), queues.end(),
                                  [&](const Queue& queue) { return queue.name == name; });
  return found == queues.end() ? nullptr : &*found;
}

bool QueueList::IsOurs(const Queue& queue) const {
  if (!queue.isClass) {
    return queue.makeAndModel == kMakeAndModel;
  }
  return std::any_of(queue.members.begin(), queue.members.end(), [&](const std::string& name) {
    const Queue* const member = Find(name);
    return member != nullptr && !member->isClass && IsOurs(*member);
  });
}

// TRANSLATORS: a queue is idle, processing, stopped or unknown.
const char* to_string(QueueState state) {
  switch (state) {
    case QueueState::Idle:
      return N_("idle");
    case QueueState::Processing:
      return N_("processing");
    case QueueState::Stopped:
      return N_("stopped");
    case QueueState::Unknown:
      break;
  }
  return N_("unknown");
}

const char* to_string(JobState state) {
  switch (state) {
    case JobState::Pending:
      return "pending";
    case JobState::Held:
      return "held";
    case JobState::Processing:
      return "processing";
    case JobState::Stopped:
      return "stopped";
    case JobState::Canceled:
      return "canceled";
    case JobState::Aborted:
      return "aborted";
    case JobState::Completed:
      return "completed";
    case JobState::Unknown:
      break;
  }
  return "unknown";
}

bool contains(const std::vector<std::string>& words, std::string_view word) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

bool is_printer_reason(std::string_view reason) {
  return reason.starts_with(kReasonPrefix);
}

bool has_printer_reason(const std::vector<std::string>& reasons) {
  return std::any_of(reasons.begin(), reasons.end(), is_printer_reason);
}

bool is_harmless(std::string_view reason) {
  if (is_printer_reason(reason)) {
    return false;
  }
  // They are called warnings, but the scheduler starts no job because of them.
  if (reason == "cups-insecure-filter-warning" || reason == "cups-missing-filter-warning") {
    return false;
  }
  return reason == "none" || reason == "connecting-to-device" ||
         reason == "cups-waiting-for-job-completed" || reason.ends_with("-warning") ||
         reason.ends_with("-report");
}

bool is_command(const Job& job) {
  return job.format == kCommandFormat;
}

bool refuses_file(std::string_view words) {
  constexpr std::array<std::string_view, 2> kBeginnings = {"The photo cannot be printed: ",
                                                           "The pages cannot be printed: "};
  return std::any_of(kBeginnings.begin(), kBeginnings.end(),
                     [&](std::string_view begin) { return words.starts_with(begin); });
}

std::string words_on_file(const Job& job) {
  return job.state == JobState::Stopped && refuses_file(job.printerMessage) ? job.printerMessage
                                                                            : std::string();
}

std::vector<const Job*> jobs_in(const Queue& queue, JobState state) {
  std::vector<const Job*> jobs;
  for (const Job& job : queue.jobs) {
    if (job.state == state) {
      jobs.push_back(&job);
    }
  }
  return jobs;
}

}  // namespace tools
