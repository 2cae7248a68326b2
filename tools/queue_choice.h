// SPDX-License-Identifier: Apache-2.0
//
// The queues that a person means: those that are named, or all with the driver's PPD.
#ifndef TQR7_TOOLS_QUEUE_CHOICE_H
#define TQR7_TOOLS_QUEUE_CHOICE_H

#include <string>
#include <vector>

#include "tools/queue.h"

namespace tools {

struct QueueChoice {
  std::vector<const Queue*> queues;     ///< in the list
  std::vector<std::string> complaints;  ///< sentences on what cannot be chosen
};

/// Looks the names up in the list. Without names, chooses all of the driver's queues and classes.
QueueChoice choose_queues(const QueueList& list, const std::vector<std::string>& names);

}  // namespace tools

#endif  // TQR7_TOOLS_QUEUE_CHOICE_H
