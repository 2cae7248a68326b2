// SPDX-License-Identifier: Apache-2.0
//
// A queue's condition in words for people.
#include <string>

#include "language/messages.h"
#include "tools/condition.h"

namespace tools {
namespace {

using language::_;
using language::_n;
using language::filled;

std::string list(const std::vector<int>& numbers) {
  constexpr std::size_t kListedMost = 10;
  std::string text;
  for (std::size_t i = 0; i < numbers.size() && i < kListedMost; ++i) {
    text += i == 0 ? "" : ", ";
    text += std::to_string(numbers[i]);
  }
  return numbers.size() > kListedMost ? text + ", …" : text;
}

std::string first_line(const Condition& condition) {
  // TRANSLATORS: of a queue, as in "photo: good, idle, accepts jobs".
  const char* const good = condition.IsGood() ? _("good") : _("not good");
  const char* const accepting = condition.accepting ? _("accepts jobs") : _("does not accept jobs");
  std::string line =
      condition.queue + ": " + good + ", " + _(to_string(condition.state)) + ", " + accepting;
  if (condition.isClass) {
    std::string members;
    for (const std::string& member : condition.members) {
      members += (members.empty() ? "" : " ") + member;
    }
    // TRANSLATORS: a class is several queues behind one name; %s are the names of the queues.
    line += ", " + filled(_("class of %s"), members.c_str());
  }
  return line + "\n";
}

std::string two_lines(const std::string& meaning, const std::string& remedy) {
  return "    " + meaning + "\n    " + filled(_("To do: %s"), remedy.c_str()) + "\n";
}

// One line on these jobs.
std::string line_on_jobs(const char* form, const std::vector<int>& jobs) {
  return "  " + filled(form, jobs.size(), list(jobs).c_str()) + "\n";
}

std::string reason_lines(const Condition& condition) {
  std::string text;
  for (const Reason& reason : condition.reasons) {
    // It says more to explain who stopped the queue than to explain the word "paused".
    const bool standstill = reason.keyword == "paused" && condition.cause.kind != Standstill::None;
    const Explanation explanation = standstill ? explain_standstill(condition) : reason.explanation;
    text += "  " + filled(_("reason %s"), reason.keyword.c_str()) + "\n";
    text += two_lines(explanation.meaning, explanation.remedy);
    if (standstill && condition.cause.kind == Standstill::ByPerson && !condition.message.empty()) {
      // TRANSLATORS: what the person who stopped the queue has said with it.
      text += "    " + filled(_("The person said: %s"), condition.message.c_str()) + "\n";
    }
  }
  return text;
}

// First how to start those jobs again whose files are good, then what is wrong with the other
// files.
std::string stopped_lines(const Condition& condition) {
  constexpr std::size_t kExplainedMost = 10;
  std::string text = line_on_jobs(
      _n("%1$zu job is stopped (%2$s)", "%1$zu jobs are stopped (%2$s)", condition.stopped.size()),
      condition.stopped);
  if (condition.stopped.size() > condition.refusedFiles.size()) {
    const char* const remedy =
        condition.cause.kind == Standstill::ByPerson
            ? _("When the queue is started again: `tqr7 resume %s`; or give a job up with `cancel "
                "NUMBER`.")
            : _("See to the printer, then `tqr7 resume %s`; or give a job up with `cancel "
                "NUMBER`.");
    text += two_lines(_("The driver gave up, and the scheduler does not begin again by itself."),
                      filled(remedy, condition.queue.c_str()));
  }
  for (std::size_t i = 0; i < condition.refusedFiles.size() && i < kExplainedMost; ++i) {
    const Explanation explanation = explain_refused_file(condition.refusedFiles[i]);
    text += two_lines(explanation.meaning, explanation.remedy);
  }
  return text;
}

std::string job_lines(const Condition& condition) {
  std::string text;
  if (!condition.printing.empty()) {
    text += line_on_jobs(
        _n("%1$zu job prints (%2$s)", "%1$zu jobs print (%2$s)", condition.printing.size()),
        condition.printing);
  }
  if (!condition.stopped.empty()) {
    text += stopped_lines(condition);
  }
  if (!condition.waiting.empty()) {
    text += line_on_jobs(
        _n("%1$zu job waits (%2$s)", "%1$zu jobs wait (%2$s)", condition.waiting.size()),
        condition.waiting);
  }
  if (!condition.held.empty()) {
    text += line_on_jobs(_n("%1$zu job is held by a person (%2$s)",
                            "%1$zu jobs are held by a person (%2$s)", condition.held.size()),
                         condition.held);
  }
  return text;
}

std::string connection_lines(const Condition& condition) {
  if (condition.isClass) {
    return {};
  }
  // TRANSLATORS: yes, no or "cannot be told".
  std::string text =
      "  " + filled(_("bidirectional connection: %s"), _(to_string(condition.bidirectional))) +
      (condition.backend.empty() ? "" : " (" + condition.backend + ")") + "\n";
  if (condition.bidirectional == Bidirectional::No) {
    text += two_lines(
        _("The driver asks the printer before each sheet, and without answers it does not print."),
        filled(_("Connect the printer by USB, or by its network port with a socket:// address: "
                 "`lpadmin -p %s -v socket://ADDRESS`."),
               condition.queue.c_str()));
  }
  return text;
}

}  // namespace

std::string in_words(const Condition& condition) {
  std::string text = first_line(condition) + reason_lines(condition);
  if (!condition.accepting) {
    text += two_lines(
        _("Jobs that are sent to the queue are turned away."),
        filled(_("`cupsaccept %s` when it is to take jobs again."), condition.queue.c_str()));
  }
  return text + job_lines(condition) + connection_lines(condition);
}

}  // namespace tools
