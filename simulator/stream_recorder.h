// SPDX-License-Identifier: Apache-2.0
//
// A copy of every byte that came, for later inspection. The streams of several connections follow
// each other in one file.
#ifndef TQR7_SIMULATOR_STREAM_RECORDER_H
#define TQR7_SIMULATOR_STREAM_RECORDER_H

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>

#include "image/file_handle.h"

namespace simulator {

/// Writes to one file; does nothing until it is opened, and nothing after the first failure.
class StreamRecorder {
 public:
  /// Creates or empties the file. Returns what went wrong, or nothing.
  std::string Open(const std::filesystem::path& path);

  /// Adds bytes, which are in the file when the call returns. Returns what went wrong, or nothing.
  std::string Add(std::span<const std::uint8_t> bytes);

 private:
  FileHandle file_;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_STREAM_RECORDER_H
