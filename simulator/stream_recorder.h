// SPDX-License-Identifier: Apache-2.0
//
// A copy of every byte that came, as it came, for later inspection. The streams of several
// connections stand one behind the other.
#ifndef TQR7_SIMULATOR_STREAM_RECORDER_H
#define TQR7_SIMULATOR_STREAM_RECORDER_H

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <span>
#include <string>

namespace simulator {

/// Writes to one file, or to none as long as it is not opened. Recording ends with the first
/// failure.
class StreamRecorder {
 public:
  StreamRecorder() = default;
  StreamRecorder(const StreamRecorder&) = delete;
  StreamRecorder& operator=(const StreamRecorder&) = delete;
  ~StreamRecorder();

  /// Begins the file anew. Returns what went wrong, or nothing.
  std::string Open(const std::filesystem::path& path);

  /// Adds bytes, which are in the file when the call returns. Returns what went wrong, or nothing.
  std::string Add(std::span<const std::uint8_t> bytes);

 private:
  std::FILE* file_ = nullptr;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_STREAM_RECORDER_H
