// SPDX-License-Identifier: Apache-2.0
//
// A queue's condition in words for people.
#include <string>

#include "tools/condition.h"

namespace tools {
namespace {

std::string list(const std::vector<int>& numbers) {
  constexpr std::size_t kListedMost = 10;
  std::string text;
  for (std::size_t i = 0; i < numbers.size() && i < kListedMost; ++i) {
    text += i == 0 ? "" : ", ";
    text += std::to_string(numbers[i]);
  }
  return numbers.size() > kListedMost ? text + ", …" : text;
}

// "1 job" or "3 jobs", then the verb that goes with it.
std::string jobs(const std::vector<int>& numbers, const char* one, const char* several) {
  const bool single = numbers.size() == 1;
  return std::to_string(numbers.size()) + (single ? " job " : " jobs ") + (single ? one : several) +
         " (" + list(numbers) + ")";
}

std::string first_line(const Condition& condition) {
  std::string line = condition.queue + ": " + (condition.IsGood() ? "good" : "not good") + ", " +
                     to_string(condition.state);
  line += condition.accepting ? ", accepts jobs" : ", does not accept jobs";
  if (condition.isClass) {
    line += ", class of";
    for (const std::string& member : condition.members) {
      line += " " + member;
    }
  }
  return line + "\n";
}

std::string two_lines(const std::string& meaning, const std::string& remedy) {
  return "    " + meaning + "\n    To do: " + remedy + "\n";
}

std::string reason_lines(const Condition& condition) {
  std::string text;
  for (const Reason& reason : condition.reasons) {
    // Who stopped the queue says more than the word does.
    const bool standstill = reason.keyword == "paused" && condition.cause.kind != Standstill::None;
    const Explanation explanation = standstill ? explain_standstill(condition) : reason.explanation;
    text += "  reason " + reason.keyword + "\n";
    text += two_lines(explanation.meaning, explanation.remedy);
    if (standstill && condition.cause.kind == Standstill::ByPerson && !condition.message.empty()) {
      text += "    Said with it: " + condition.message + "\n";
    }
  }
  return text;
}

std::string job_lines(const Condition& condition) {
  std::string text;
  if (!condition.printing.empty()) {
    text += "  " + jobs(condition.printing, "prints", "print") + "\n";
  }
  if (!condition.stopped.empty()) {
    text += "  " + jobs(condition.stopped, "stands stopped", "stand stopped") + "\n";
    text += two_lines("The driver gave up, and the scheduler does not begin again by itself.",
                      (condition.cause.kind == Standstill::ByPerson
                           ? "When the queue is started again: `tqr7 resume "
                           : "See to the printer, then `tqr7 resume ") +
                          condition.queue + "`; or give a job up with `cancel NUMBER`.");
  }
  if (!condition.waiting.empty()) {
    text += "  " + jobs(condition.waiting, "waits", "wait") + "\n";
  }
  if (!condition.held.empty()) {
    text += "  " + jobs(condition.held, "is held by a person", "are held by a person") + "\n";
  }
  return text;
}

std::string connection_lines(const Condition& condition) {
  if (condition.isClass) {
    return {};
  }
  std::string text =
      "  bidirectional connection: " + std::string(to_string(condition.bidirectional)) +
      (condition.backend.empty() ? "" : " (" + condition.backend + ")") + "\n";
  if (condition.bidirectional == Bidirectional::No) {
    text += two_lines(
        "The driver asks the printer before each sheet, and without answers it does "
        "not print.",
        "Connect the printer by USB, or by its network port with a socket:// "
        "address: `lpadmin -p " +
            condition.queue + " -v socket://ADDRESS`.");
  }
  return text;
}

}  // namespace

std::string in_words(const Condition& condition) {
  std::string text = first_line(condition) + reason_lines(condition);
  if (!condition.accepting) {
    text += two_lines("Jobs that are sent to the queue are turned away.",
                      "`cupsaccept " + condition.queue + "` when it is to take jobs again.");
  }
  return text + job_lines(condition) + connection_lines(condition);
}

}  // namespace tools
