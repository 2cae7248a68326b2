// SPDX-License-Identifier: Apache-2.0
//
// Has a queue's command filter ask the printer, so that the queue's reasons are up to date.
#ifndef TQR7_TOOLS_STATUS_QUESTION_H
#define TQR7_TOOLS_STATUS_QUESTION_H

#include <string>

#include "tools/interruption.h"
#include "tools/queue.h"
#include "tools/scheduler.h"

namespace tools {

/// Whether the queue can ask: it runs, and its command filter knows the question.
bool can_be_asked(const Queue& queue);

/// Sends the question and waits for its end. Returns why the printer was not asked, or nothing. No
/// question is left in the queue.
std::string ask_printer(Scheduler& scheduler, const Queue& queue, const Interruption& interruption);

}  // namespace tools

#endif  // TQR7_TOOLS_STATUS_QUESTION_H
