// SPDX-License-Identifier: Apache-2.0
//
// Whether a queue that stands was stopped by the driver or by a person.
//
// The scheduler keeps no record of who stopped a queue, so only a trace that no person's stop
// leaves counts as the driver's; all else counts as a person's. The traces, as the scheduler shows
// them (CUPS 2.4):
//
// - The driver pauses the queue for a refused sheet. The job stands stopped, and keeps with itself
//   the reason "paused" and the driver's word ("driver-setting-unmuch 0x0200"), or a later
//   complaint of another program; the word stays when the job is cancelled afterwards. A person who
//   stops a queue that prints leaves the job pending, also within the driver's last second. So does
//   a change of the queue's settings; then the driver's word is the queue's message, too.
// - The error policy "stop-printer" stops the queue because the backend failed. The job is pending
//   for the reason "printer-stopped", and keeps the backend's words with itself, or the driver's
//   reason and a later complaint of another program.
// - A person's stop of a queue at rest, also of one that the driver has paused, sets the queue's
//   message to "Paused" or to the person's own words. One of a queue that prints leaves an empty
//   message. So the message must be one that a program of a print job writes, in whatever language
//   it was told to speak. A person who says just that cannot be told apart.
#ifndef TQR7_TOOLS_STANDSTILL_H
#define TQR7_TOOLS_STANDSTILL_H

#include <cstdint>
#include <string>

#include "tools/queue.h"

namespace tools {

enum class Standstill : std::uint8_t {
  None,      ///< the queue is not stopped
  Refused,   ///< the driver paused it, because the printer refused a sheet
  Policy,    ///< its error policy stopped it, because the printer could not be reached
  ByPerson,  ///< a person stopped it, or nobody knows
};

struct Cause {
  Standstill kind = Standstill::None;
  int job = 0;       ///< that it came of; 0 when none is known
  std::string word;  ///< the driver's word for a refusal, without its number; empty when it is lost
};

/// Why the queue stands.
Cause cause_of_standstill(const QueueList& list, const Queue& queue);

/// The driver's word in a job's message, such as "out-of-range"; empty when there is none.
std::string refusal_word(const std::string& message);

/// Whether a stopped job shows that this driver's printer is the cause: a reason or a refusal.
bool stopped_by_printer(const Job& job);

}  // namespace tools

#endif  // TQR7_TOOLS_STANDSTILL_H
