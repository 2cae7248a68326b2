// SPDX-License-Identifier: Apache-2.0
#include "simulator/stream_recorder.h"

#include <cerrno>

#include "simulator/wording.h"

namespace simulator {

std::string StreamRecorder::Open(const std::filesystem::path& path) {
  file_.reset(std::fopen(path.c_str(), "wbe"));
  return file_ != nullptr ? "" : error_words(errno);
}

std::string StreamRecorder::Add(std::span<const std::uint8_t> bytes) {
  if (file_ == nullptr) {
    return {};
  }
  if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) == bytes.size() &&
      std::fflush(file_.get()) == 0) {
    return {};
  }
  const int errorNumber = errno;
  file_.reset();
  return error_words(errorNumber);
}

}  // namespace simulator
