// SPDX-License-Identifier: Apache-2.0
#include "tools/queue_choice.h"

#include <algorithm>

#include "language/messages.h"
#include "tools/plain_text.h"

namespace tools {

using language::_;
using language::filled;

QueueChoice choose_queues(const QueueList& list, const std::vector<std::string>& names) {
  QueueChoice choice;
  for (const std::string& name : names) {
    const Queue* const queue = list.Find(name);
    if (queue == nullptr) {
      choice.complaints.push_back(filled(_("there is no queue %s"), plain_text(name).c_str()));
    } else if (!list.IsOurs(*queue)) {
      choice.complaints.push_back(
          filled(_("the queue %s is not one of this driver's"), plain_text(name).c_str()));
    } else if (std::find(choice.queues.begin(), choice.queues.end(), queue) ==
               choice.queues.end()) {
      choice.queues.push_back(queue);
    }
  }
  if (!names.empty()) {
    return choice;
  }
  for (const Queue& queue : list.queues) {
    if (list.IsOurs(queue)) {
      choice.queues.push_back(&queue);
    }
  }
  if (choice.queues.empty()) {
    choice.complaints.emplace_back(_("there is no queue of this driver's"));
  }
  return choice;
}

}  // namespace tools
