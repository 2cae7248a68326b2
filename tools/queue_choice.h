// SPDX-License-Identifier: Apache-2.0
//
// The queues that a person means: those named, or all with the driver's PPD.
#ifndef TQR7_TOOLS_QUEUE_CHOICE_H
#define TQR7_TOOLS_QUEUE_CHOICE_H

#include <string>
#include <vector>

#include "tools/queue.h"

namespace tools {

struct QueueChoice {
  std::vector<const Queue*> queues;     ///< of the list that was looked into
  std::vector<std::string> complaints;  ///< sentences; not empty when something cannot be told
};

/// Looks the names up; without any, takes all of the driver's queues and classes.
QueueChoice choose_queues(const QueueList& list, const std::vector<std::string>& names);

}  // namespace tools

#endif  // TQR7_TOOLS_QUEUE_CHOICE_H
