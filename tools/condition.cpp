// SPDX-License-Identifier: Apache-2.0
#include "tools/condition.h"

#include <algorithm>
#include <string_view>

#include "language/messages.h"
#include "tools/plain_text.h"

namespace tools {
namespace {

using language::_;
using language::filled;

std::vector<int> numbers_of(const Queue& queue, JobState state) {
  std::vector<int> numbers;
  for (const Job* const job : jobs_in(queue, state)) {
    numbers.push_back(job->id);
  }
  return numbers;
}

std::vector<RefusedFile> refused_files_of(const Queue& queue) {
  std::vector<RefusedFile> refused;
  for (const Job* const job : jobs_in(queue, JobState::Stopped)) {
    if (const std::string words = words_on_file(*job); !words.empty()) {
      refused.push_back({job->id, plain_text(words)});
    }
  }
  return refused;
}

// The advice with this queue's name in its commands, so that they can be typed as they are.
std::string advice_for(const std::string& queue, std::string advice) {
  constexpr std::string_view kPlaceholder = "QUEUE";
  for (std::size_t at = advice.find(kPlaceholder); at != std::string::npos;
       at = advice.find(kPlaceholder, at + queue.size())) {
    advice.replace(at, kPlaceholder.size(), queue);
  }
  return advice;
}

std::vector<Reason> reasons_of(const Queue& queue) {
  std::vector<Reason> reasons;
  for (const std::string& keyword : queue.reasons) {
    if (keyword != "none" && !keyword.empty()) {
      const std::string plain = plain_text(keyword);
      Explanation explanation = explain_keyword(plain);
      explanation.remedy = advice_for(plain_text(queue.name), explanation.remedy);
      reasons.push_back({plain, is_harmless(keyword), explanation});
    }
  }
  return reasons;
}

}  // namespace

bool Condition::IsGood() const {
  const bool running = state == QueueState::Idle || state == QueueState::Processing;
  return running && accepting && stopped.empty() && bidirectional != Bidirectional::No &&
         std::all_of(reasons.begin(), reasons.end(),
                     [](const Reason& reason) { return reason.harmless; });
}

Condition condition_of(const QueueList& list, const Queue& queue) {
  Condition condition;
  condition.queue = plain_text(queue.name);
  condition.isClass = queue.isClass;
  for (const std::string& member : queue.members) {
    condition.members.push_back(plain_text(member));
  }
  condition.state = queue.state;
  condition.message = plain_text(queue.message);
  condition.accepting = queue.accepting;
  condition.cause = cause_of_standstill(list, queue);
  condition.reasons = reasons_of(queue);
  condition.printing = numbers_of(queue, JobState::Processing);
  condition.waiting = numbers_of(queue, JobState::Pending);
  condition.stopped = numbers_of(queue, JobState::Stopped);
  condition.refusedFiles = refused_files_of(queue);
  condition.held = numbers_of(queue, JobState::Held);
  if (!queue.isClass) {
    const std::size_t colon = queue.deviceUri.find(':');
    condition.backend = plain_text(queue.deviceUri.substr(0, colon));
    condition.bidirectional = bidirectional(queue.deviceUri);
  }
  return condition;
}

Explanation explain_standstill(const Condition& condition) {
  Explanation explanation{};
  switch (condition.cause.kind) {
    case Standstill::None:
      break;
    case Standstill::Refused:
      if (condition.cause.word.empty()) {
        explanation.meaning = filled(_("The driver stopped the queue at job %d: the printer "
                                       "refused a sheet. The scheduler's log says why."),
                                     condition.cause.job);
        explanation.remedy =
            filled(_("See to the printer, then `tqr7 resume %s`."), condition.queue.c_str());
        break;
      }
      explanation = explain_keyword(condition.cause.word);
      explanation.remedy = advice_for(condition.queue, explanation.remedy);
      // TRANSLATORS: %2$s is a keyword; %3$s is a sentence of its own.
      explanation.meaning =
          filled(_("The driver stopped the queue at job %1$d: %2$s. %3$s"), condition.cause.job,
                 condition.cause.word.c_str(), explanation.meaning.c_str());
      break;
    case Standstill::Policy:
      explanation.meaning =
          filled(_("The queue's error policy, stop-printer, stopped it at job %d, "
                   "because the printer could not be reached."),
                 condition.cause.job);
      explanation.remedy =
          filled(_("Switch the printer on and check its connection. Then `tqr7 resume %s`."),
                 condition.queue.c_str());
      break;
    case Standstill::ByPerson:
      explanation.meaning = _("A person stopped the queue, or a program that is not this driver.");
      explanation.remedy =
          filled(_("`cupsenable %s` when it is to print again; `tqr7 resume` leaves it alone."),
                 condition.queue.c_str());
      break;
  }
  return explanation;
}

Explanation explain_refused_file(const RefusedFile& refused) {
  Explanation explanation{};
  // TRANSLATORS: %2$s is a sentence of a program, in English.
  explanation.meaning =
      filled(_("The file of job %1$d itself cannot be printed, and starting the job again does not "
               "help: %2$s"),
             refused.job, refused.words.c_str());
  explanation.remedy =
      filled(_("`cancel %d` clears it. Then send the file again, repaired or from a good copy."),
             refused.job);
  return explanation;
}

}  // namespace tools
