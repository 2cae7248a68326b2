// SPDX-License-Identifier: Apache-2.0
//
// When what came: a line for each event of the connections, by the clock that other programs' logs
// go by, so that the lines can be laid beside those.
#ifndef TQR7_SIMULATOR_TIMELINE_H
#define TQR7_SIMULATOR_TIMELINE_H

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>

namespace simulator {

/// "SECONDS.MICROSECONDS CONNECTION BYTES EVENT": the seconds since 1970, and the bytes of the
/// connection that had come by then.
std::string timeline_line(std::chrono::system_clock::time_point time, std::uint64_t connection,
                          std::uint64_t bytes, const char* event);

/// Writes to one file, or to none as long as it is not opened. Lines are held back until Flush, so
/// that noting one takes no call of the system.
class Timeline {
 public:
  Timeline() = default;
  Timeline(const Timeline&) = delete;
  Timeline& operator=(const Timeline&) = delete;
  ~Timeline();

  /// Begins the file anew. Returns what went wrong, or nothing.
  std::string Open(const std::filesystem::path& path);

  /// Notes that something happens now, when so many bytes of the connection have come.
  void Note(std::uint64_t connection, std::uint64_t bytes, const char* event);

  /// What was noted is in the file when the call returns. Returns what went wrong, or nothing; the
  /// timeline then ends.
  std::string Flush();

 private:
  std::FILE* file_ = nullptr;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_TIMELINE_H
