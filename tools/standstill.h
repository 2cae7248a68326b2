// SPDX-License-Identifier: Apache-2.0
//
// Finds out whether the driver or a person stopped a queue.
//
// The scheduler does not record who stopped a queue. So it counts as stopped by the driver only if
// there is a trace that a person never leaves. The traces that the scheduler shows (CUPS 2.4) are
// these.
//
// After a refused sheet the driver pauses the queue. The job is stopped, and has the reason
// "paused" and the driver's word ("driver-setting-unmuch 0x0200"), or a later complaint of another
// program. It keeps the word even when it is cancelled afterwards. When a person stops a queue that
// prints, the job is pending, even if that happens in the driver's last second. After a change of
// the queue's settings the job is pending as well, but then the driver's word is also the queue's
// message.
//
// The error policy "stop-printer" stops the queue because the backend failed. The job is pending
// with the reason "printer-stopped", and has the backend's words, or the driver's reason and a
// later complaint of another program.
//
// When a person stops an idle queue, even one that the driver has paused, the queue's message
// becomes "Paused" or the person's own words. When a person stops a queue that prints, the message
// becomes empty. So the message must be one that a program of a print job writes, in any language.
// A person who uses the same words is mistaken for the driver.
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
  ByPerson,  ///< a person stopped it, or it is not known
};

struct Cause {
  Standstill kind = Standstill::None;
  int job = 0;       ///< that was the cause; 0 when it is not known
  std::string word;  ///< the driver's word for a refusal, without its number; empty when it is lost
};

/// Why the queue is stopped.
Cause cause_of_standstill(const QueueList& list, const Queue& queue);

/// The driver's word in a job's message, such as "out-of-range"; empty when there is none.
std::string refusal_word(const std::string& message);

/// Whether a stopped job shows, by a reason or a refusal, that the printer is the cause.
bool stopped_by_printer(const Job& job);

}  // namespace tools

#endif  // TQR7_TOOLS_STANDSTILL_H
