// SPDX-License-Identifier: Apache-2.0
#include "tools/standstill.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "tools/scheduler_words.h"

namespace tools {
namespace {

constexpr std::array<std::string_view, 5> kRefusals = {"pagesize-inkribbon-unmuch",
                                                       "driver-setting-unmuch", "out-of-range",
                                                       "memory-timeout", "protocol-error"};

// The queue's messages that the programs of a print job leave when they end. Other messages may be
// a person's.
constexpr std::array<std::string_view, 12> kWordsOfPrograms = {
    "Waiting for printer to finish.",
    "Unable to send raster data to the driver.",
    "Sending data to printer.",
    "Rendering completed",
    "Loading print file.",
    "Connecting to printer.",
    "Filter failed",
    "The printer is not responding.",
    "The printer is unreachable at this time.",
    "The printer may not exist or is unavailable at this time.",
    "Connected to printer.",
    "The printer is now connected.",
};

constexpr std::array<std::string_view, 5> kWordsOfFailedBackends = {
    "The printer is not responding.",
    "The printer is unreachable at this time.",
    "The printer may not exist or is unavailable at this time.",
    "Unable to write print data",
    "Unable to locate printer",
};

// The backend speaks the language of the person who sent the job.
std::string told_in_english(const std::string& message) {
  static const std::map<std::string, std::string> translations = [] {
    std::vector<std::string_view> sentences(kWordsOfPrograms.begin(), kWordsOfPrograms.end());
    sentences.insert(sentences.end(), kWordsOfFailedBackends.begin(), kWordsOfFailedBackends.end());
    sentences.emplace_back("Unable to locate printer.");
    return read_translations(folder_of_catalogues(), sentences);
  }();
  return in_english(message, translations);
}

bool is_progress(std::string_view message) {
  return (message.starts_with("Printing page ") && message.ends_with("% complete...")) ||
         message.starts_with("Formatting page ") || message.starts_with("Starting page ");
}

bool is_of_programs(const std::string& said) {
  const std::string message = told_in_english(said);
  return std::find(kWordsOfPrograms.begin(), kWordsOfPrograms.end(), message) !=
             kWordsOfPrograms.end() ||
         message.starts_with("Unable to write print data") ||
         message.starts_with("Printer stopped due to backend errors") || is_progress(message) ||
         !refusal_word(message).empty() || refuses_file(message);
}

// The word is lost when another program complained later. A job that was cancelled may have been
// printing when a person stopped the queue, so for such a job only the word itself counts.
bool shows_refusal(const Job& job) {
  if (!contains(job.printerReasons, "paused")) {
    return false;
  }
  return job.state == JobState::Canceled
             ? !refusal_word(job.printerMessage).empty()
             : job.state == JobState::Stopped && is_of_programs(job.printerMessage);
}

// A change of the queue, such as of its address, makes a printing job pending again, even one that
// was refused a moment before. A person's stop does the same, but removes the word from the queue's
// message.
bool shows_refusal_put_back(const Queue& queue, const Job& job) {
  return job.state == JobState::Pending && contains(job.printerReasons, "paused") &&
         !refusal_word(queue.message).empty() && queue.message == job.printerMessage;
}

bool speaks_of_failed_backend(const std::string& said) {
  const std::string message = told_in_english(said);
  return std::any_of(kWordsOfFailedBackends.begin(), kWordsOfFailedBackends.end(),
                     [&](std::string_view words) { return message.starts_with(words); });
}

// Either the backend or another program of the job may have complained last. In the second case the
// driver, whose questions were not answered, has raised its own reason.
bool shows_failed_backend(const Job& job) {
  return job.state == JobState::Pending && job.processingSince > 0 &&
         contains(job.reasons, "printer-stopped") && contains(job.printerReasons, "paused") &&
         (speaks_of_failed_backend(job.printerMessage) ||
          (is_of_programs(job.printerMessage) && has_printer_reason(job.printerReasons)));
}

bool is_class_of(const Queue& group, const Queue& member) {
  return group.isClass && contains(group.members, member.name);
}

// The job that ran last on the queue. The scheduler does not say on which member of a class a job
// ran, so of a class's jobs only those count that show a refusal.
const Job* last_job(const QueueList& list, const Queue& queue) {
  const Job* last = nullptr;
  const auto look_at = [&](const Job& job) {
    const bool ran = job.processingSince > 0 && job.processingSince <= queue.changedAt;
    if (ran && (last == nullptr || std::tie(job.processingSince, job.id) >
                                       std::tie(last->processingSince, last->id))) {
      last = &job;
    }
  };
  for (const Job& job : queue.jobs) {
    look_at(job);
  }
  for (const Queue& group : list.queues) {
    for (const Job& job : group.jobs) {
      if (is_class_of(group, queue) && shows_refusal(job)) {
        look_at(job);
      }
    }
  }
  return last;
}

}  // namespace

std::string refusal_word(const std::string& message) {
  for (const std::string_view word : kRefusals) {
    if (!message.starts_with(word) || message.compare(word.size(), 3, " 0x") != 0) {
      continue;
    }
    const std::string_view digits = std::string_view(message).substr(word.size() + 3);
    const bool number = digits.size() >= 4 && digits.size() <= 8 &&
                        digits.find_first_not_of("0123456789abcdef") == std::string_view::npos;
    return number ? std::string(word) : std::string();
  }
  return {};
}

bool stopped_by_printer(const Job& job) {
  return has_printer_reason(job.printerReasons) || !refusal_word(job.printerMessage).empty() ||
         shows_refusal(job);
}

Cause cause_of_standstill(const QueueList& list, const Queue& queue) {
  if (queue.state != QueueState::Stopped) {
    return {};
  }
  const Job* const job = last_job(list, queue);
  const bool touched = queue.isClass || contains(queue.reasons, "hold-new-jobs") ||
                       !is_of_programs(queue.message) || job == nullptr;
  if (!touched && (shows_refusal(*job) || shows_refusal_put_back(queue, *job))) {
    return {Standstill::Refused, job->id, refusal_word(job->printerMessage)};
  }
  if (!touched && queue.errorPolicy == "stop-printer" && shows_failed_backend(*job)) {
    return {Standstill::Policy, job->id, {}};
  }
  return {Standstill::ByPerson, 0, {}};
}

}  // namespace tools
