// SPDX-License-Identifier: Apache-2.0
#include "simulator/event_log.h"

#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>

namespace simulator {
namespace {

constexpr const char* kClearLine = "\r\033[K";

bool progressShown = false;  // on standard output, of which there is one

std::string take_progress_away() {
  const bool shown = progressShown;
  progressShown = false;
  return shown ? kClearLine : "";
}

void write_line(const std::string& line) {
  std::fprintf(stdout, "%s%s\n", take_progress_away().c_str(), line.c_str());
  std::fflush(stdout);
}

// "12:34:56.789"
std::string local_time() {
  using std::chrono::system_clock;
  constexpr int kMilliseconds = 1000;
  const system_clock::time_point now = system_clock::now();
  const auto sinceEpoch =
      std::chrono::floor<std::chrono::milliseconds>(now.time_since_epoch()).count();
  const std::time_t seconds = system_clock::to_time_t(now);
  std::tm local{};
  ::localtime_r(&seconds, &local);
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), "%02d:%02d:%02d.%03d", local.tm_hour, local.tm_min,
                local.tm_sec, static_cast<int>(sinceEpoch % kMilliseconds));
  return text.data();
}

void show_progress(const std::string& text) {
  static const bool terminal = ::isatty(STDOUT_FILENO) == 1;
  if (terminal) {
    std::fprintf(stdout, "%s%s", kClearLine, text.c_str());
    std::fflush(stdout);
    progressShown = true;
  }
}

}  // namespace

void log_first_line(const std::string& line) {
  write_line(line);
}

void log_event(const std::string& line) {
  write_line(local_time() + " " + line);
}

void SheetProgress::Begin(std::uint32_t rows) {
  rows_ = rows;
  rowsIn_ = 0;
}

void SheetProgress::Row() {
  constexpr std::uint32_t kWhole = 100;
  const std::uint32_t before = kWhole * rowsIn_ / rows_;
  ++rowsIn_;
  const std::uint32_t now = kWhole * rowsIn_ / rows_;
  if (now != before) {
    show_progress("sheet: " + std::to_string(now) + " %, " + std::to_string(rowsIn_) + " of " +
                  std::to_string(rows_) + " rows");
  }
}

}  // namespace simulator
