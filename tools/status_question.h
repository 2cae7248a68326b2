// SPDX-License-Identifier: Apache-2.0
//
// Having a queue's command filter ask the printer, so that the queue's reasons are those of now.
#ifndef TQR7_TOOLS_STATUS_QUESTION_H
#define TQR7_TOOLS_STATUS_QUESTION_H

#include <string>

#include "tools/interruption.h"
#include "tools/queue.h"
#include "tools/scheduler.h"

namespace tools {

/// Whether the queue takes the question: it runs, and its command filter knows it.
bool can_be_asked(const Queue& queue);

/// Sends the question and waits for its end. Empty when the printer was asked; otherwise why not,
/// and then no question is left behind in the queue.
std::string ask_printer(Scheduler& scheduler, const Queue& queue, const Interruption& interruption);

}  // namespace tools

#endif  // TQR7_TOOLS_STATUS_QUESTION_H
