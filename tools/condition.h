// SPDX-License-Identifier: Apache-2.0
//
// A queue's condition: whether it is good, and everything that answers "why does it not print?".
#ifndef TQR7_TOOLS_CONDITION_H
#define TQR7_TOOLS_CONDITION_H

#include <string>
#include <vector>

#include "tools/device_connection.h"
#include "tools/explanation.h"
#include "tools/queue.h"
#include "tools/standstill.h"

namespace tools {

/// One reason that a queue shows.
struct Reason {
  std::string keyword;
  bool harmless;  ///< it does not stop printing
  Explanation explanation;
};

/// A job whose own file cannot be printed.
struct RefusedFile {
  int job;
  std::string words;  ///< of the program that refused it, as plain text
};

struct Condition {
  std::string queue;
  bool isClass = false;
  std::vector<std::string> members;
  QueueState state = QueueState::Unknown;
  std::string message;  ///< the queue's own, as plain text, like the keywords
  bool accepting = false;
  Cause cause;                  ///< of a stopped queue
  std::vector<Reason> reasons;  ///< without "none"
  std::vector<int> printing;    ///< numbers of jobs
  std::vector<int> waiting;
  std::vector<int> stopped;               ///< the driver gave them up; they are still in the queue
  std::vector<RefusedFile> refusedFiles;  ///< of the stopped jobs
  std::vector<int> held;
  std::string backend;  ///< "socket"; empty for a class
  Bidirectional bidirectional = Bidirectional::CannotTell;

  /// Whether it prints new jobs, and no job is stopped.
  bool IsGood() const;
};

Condition condition_of(const QueueList& list, const Queue& queue);

/// Why a stopped queue is stopped, and what to do.
Explanation explain_standstill(const Condition& condition);

/// What to do about a job whose file cannot be printed.
Explanation explain_refused_file(const RefusedFile& refused);

/// For people: one line on the queue, and indented lines below it.
std::string in_words(const Condition& condition);

/// For programs: one JSON document on all queues. It is one line when `compact`.
std::string as_json(const std::vector<Condition>& conditions, bool compact);

}  // namespace tools

#endif  // TQR7_TOOLS_CONDITION_H
