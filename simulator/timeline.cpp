// SPDX-License-Identifier: Apache-2.0
#include "simulator/timeline.h"

#include <array>
#include <cerrno>
#include <cinttypes>

#include "simulator/wording.h"

namespace simulator {
namespace {

// The largest sheet comes in some 450 pieces, each of which has a line.
constexpr std::size_t kBufferLength = 65536;

}  // namespace

std::string timeline_line(std::chrono::system_clock::time_point time, std::uint64_t connection,
                          std::uint64_t bytes, const char* event) {
  constexpr std::int64_t kPerSecond = std::micro::den;
  const std::int64_t now =
      std::chrono::floor<std::chrono::microseconds>(time.time_since_epoch()).count();
  std::array<char, 48> seconds{};
  std::snprintf(seconds.data(), seconds.size(), "%" PRId64 ".%06" PRId64, now / kPerSecond,
                now % kPerSecond);
  return std::string(seconds.data()) + " " + std::to_string(connection) + " " +
         std::to_string(bytes) + " " + event;
}

std::string Timeline::Open(const std::filesystem::path& path) {
  file_.reset(std::fopen(path.c_str(), "we"));
  if (file_ == nullptr) {
    return error_words(errno);
  }
  std::setvbuf(file_.get(), nullptr, _IOFBF, kBufferLength);
  return {};
}

void Timeline::Note(std::uint64_t connection, std::uint64_t bytes, const char* event) {
  if (file_ != nullptr) {
    const std::string line =
        timeline_line(std::chrono::system_clock::now(), connection, bytes, event);
    std::fprintf(file_.get(), "%s\n", line.c_str());
  }
}

std::string Timeline::Flush() {
  if (file_ == nullptr || (std::fflush(file_.get()) == 0 && std::ferror(file_.get()) == 0)) {
    return {};
  }
  const int errorNumber = errno;
  file_.reset();
  return error_words(errorNumber);
}

}  // namespace simulator
