// SPDX-License-Identifier: Apache-2.0
//
// The scheduler's answers turned into records. What an answer says wrongly, or twice, or not at
// all, leaves the record's field as it is.
#ifndef TQR7_TOOLS_QUEUE_READING_H
#define TQR7_TOOLS_QUEUE_READING_H

#include <cups/ipp.h>

#include "tools/queue.h"

namespace tools {

/// The queues and classes of an answer to CUPS-Get-Printers, without their jobs.
QueueList read_queues(ipp_t* response);

/// Gives each queue its jobs out of an answer to Get-Jobs, by number.
void read_jobs(ipp_t* response, QueueList& list);

/// The last part of a printer's URI, decoded: the queue's name.
std::string queue_of_uri(const char* uri);

}  // namespace tools

#endif  // TQR7_TOOLS_QUEUE_READING_H
