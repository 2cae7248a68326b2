// SPDX-License-Identifier: Apache-2.0
//
// A queue's condition: all that answers "why does it not print?", and whether it is good.
#ifndef TQR7_TOOLS_CONDITION_H
#define TQR7_TOOLS_CONDITION_H

#include <string>
#include <vector>

#include "tools/device_connection.h"
#include "tools/explanation.h"
#include "tools/queue.h"
#include "tools/standstill.h"

namespace tools {

/// One reason that stands with a queue.
struct Reason {
  std::string keyword;
  bool harmless;  ///< printing goes on in spite of it
  Explanation explanation;
};

/// A job whose own file cannot be printed.
struct RefusedFile {
  int job;
  std::string words;  ///< of the program that refused it; fit for a terminal
};

struct Condition {
  std::string queue;
  bool isClass = false;
  std::vector<std::string> members;
  QueueState state = QueueState::Unknown;
  std::string message;  ///< the queue's own; fit for a terminal, like the keywords
  bool accepting = false;
  Cause cause;                  ///< of a stopped queue
  std::vector<Reason> reasons;  ///< none, when only "none" stands
  std::vector<int> printing;    ///< jobs, by number
  std::vector<int> waiting;
  std::vector<int> stopped;               ///< begun, given up by the driver, and left in the queue
  std::vector<RefusedFile> refusedFiles;  ///< of the stopped ones
  std::vector<int> held;
  std::string backend;  ///< "socket"; empty for a class
  Bidirectional bidirectional = Bidirectional::CannotTell;

  /// Prints what comes, and nothing that came stands.
  bool IsGood() const;
};

Condition condition_of(const QueueList& list, const Queue& queue);

/// Why a stopped queue stands and what to do, as one explanation.
Explanation explain_standstill(const Condition& condition);

/// What to do about a job whose file cannot be printed.
Explanation explain_refused_file(const RefusedFile& refused);

/// For people: a line for the queue, and indented ones below.
std::string in_words(const Condition& condition);

/// For programs: one JSON document on all queues, on one line when `compact`.
std::string as_json(const std::vector<Condition>& conditions, bool compact);

}  // namespace tools

#endif  // TQR7_TOOLS_CONDITION_H
