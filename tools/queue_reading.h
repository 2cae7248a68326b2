// SPDX-License-Identifier: Apache-2.0
//
// Turns the scheduler's answers into records. A field keeps its default when an answer does not
// have it, or has it in the wrong type.
#ifndef TQR7_TOOLS_QUEUE_READING_H
#define TQR7_TOOLS_QUEUE_READING_H

#include <cups/ipp.h>

#include "tools/queue.h"

namespace tools {

/// Reads the queues and classes, without their jobs, from an answer to CUPS-Get-Printers.
QueueList read_queues(ipp_t* response);

/// Adds to each queue its jobs from an answer to Get-Jobs, in the order of their numbers.
void read_jobs(ipp_t* response, QueueList& list);

/// The queue's name, which is the last part of a printer's URI, decoded.
std::string queue_of_uri(const char* uri);

}  // namespace tools

#endif  // TQR7_TOOLS_QUEUE_READING_H
