// SPDX-License-Identifier: Apache-2.0
//
// What happened when: a line for each event of the connections, with the time of the clock that
// other programs use in their logs, so that the logs can be compared.
#ifndef TQR7_SIMULATOR_TIMELINE_H
#define TQR7_SIMULATOR_TIMELINE_H

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>

#include "image/file_handle.h"

namespace simulator {

/// "SECONDS.MICROSECONDS CONNECTION BYTES EVENT": the seconds since 1970, and the bytes of the
/// connection that had come by then.
std::string timeline_line(std::chrono::system_clock::time_point time, std::uint64_t connection,
                          std::uint64_t bytes, const char* event);

/// Writes to one file; does nothing until it is opened, and nothing after the first failure. Keeps
/// the lines in memory until Flush, so that a note takes little time.
class Timeline {
 public:
  /// Creates or empties the file. Returns what went wrong, or nothing.
  std::string Open(const std::filesystem::path& path);

  /// Notes an event that happens now, when `bytes` bytes of the connection have come.
  void Note(std::uint64_t connection, std::uint64_t bytes, const char* event);

  /// Writes all lines to the file. Returns what went wrong, or nothing.
  std::string Flush();

 private:
  FileHandle file_;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_TIMELINE_H
