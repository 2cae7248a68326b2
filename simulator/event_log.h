// SPDX-License-Identifier: Apache-2.0
//
// What the simulated printer says on standard output: one line for each event, written at once, so
// that a script can wait for it. On a terminal it also says how far the sheet in work is.
//
// It prints on when nobody reads its output any more: a line that cannot be written is lost.
#ifndef TQR7_SIMULATOR_EVENT_LOG_H
#define TQR7_SIMULATOR_EVENT_LOG_H

#include <cstdint>
#include <string>

namespace simulator {

/// The first line, "listening on 127.0.0.1 port 9100", without a time, for scripts to read.
void log_first_line(const std::string& line);

/// Writes "12:34:56.789 LINE", the local time before it.
void log_event(const std::string& line);

/// Shows the per cent of a sheet in the last line of a terminal, until the next line comes. Shows
/// nothing where standard output is no terminal.
class SheetProgress {
 public:
  /// A sheet of so many rows of image and matte begins; above 0.
  void Begin(std::uint32_t rows);

  /// One more row is in.
  void Row();

 private:
  std::uint32_t rows_ = 0;
  std::uint32_t rowsIn_ = 0;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_EVENT_LOG_H
