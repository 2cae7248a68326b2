// SPDX-License-Identifier: Apache-2.0
//
// What the simulated printer says on standard output: one line an event, flushed, so that a script
// can wait for it; and on a terminal how far the sheet at work is.
//
// A reader who has gone away is no reason to stop printing: a line that cannot be written is lost.
#ifndef TQR7_SIMULATOR_EVENT_LOG_H
#define TQR7_SIMULATOR_EVENT_LOG_H

#include <string>

namespace simulator {

/// The first line, "listening on 127.0.0.1 port 9100": as it is, for scripts to read.
void log_first_line(const std::string& line);

/// Writes "12:34:56.789 LINE", the local time before it.
void log_event(const std::string& line);

/// Shows a text in the last line of a terminal until the next line comes, and nothing on anything
/// but a terminal.
void show_progress(const std::string& text);

/// Standard output is a terminal.
bool progress_is_shown();

}  // namespace simulator

#endif  // TQR7_SIMULATOR_EVENT_LOG_H
