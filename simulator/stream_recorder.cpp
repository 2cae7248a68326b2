// SPDX-License-Identifier: Apache-2.0
#include "simulator/stream_recorder.h"

#include <cerrno>

#include "simulator/wording.h"

namespace simulator {

StreamRecorder::~StreamRecorder() {
  if (file_ != nullptr) {
    std::fclose(file_);
  }
}

std::string StreamRecorder::Open(const std::filesystem::path& path) {
  file_ = std::fopen(path.c_str(), "wbe");
  return file_ != nullptr ? "" : error_words(errno);
}

std::string StreamRecorder::Add(std::span<const std::uint8_t> bytes) {
  if (file_ == nullptr) {
    return {};
  }
  if (std::fwrite(bytes.data(), 1, bytes.size(), file_) == bytes.size() &&
      std::fflush(file_) == 0) {
    return {};
  }
  const int errorNumber = errno;
  std::fclose(file_);
  file_ = nullptr;
  return error_words(errorNumber);
}

}  // namespace simulator
