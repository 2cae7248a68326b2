// SPDX-License-Identifier: Apache-2.0
//
// What the simulated printer says on standard output: one line an event, flushed, so that a script
// can wait for it.
#ifndef TQR7_SIMULATOR_EVENT_LOG_H
#define TQR7_SIMULATOR_EVENT_LOG_H

#include <string>

namespace simulator {

/// Writes one line and flushes. A reader who has gone away is no reason to stop printing: a line
/// that cannot be written is lost.
void log_event(const std::string& line);

}  // namespace simulator

#endif  // TQR7_SIMULATOR_EVENT_LOG_H
