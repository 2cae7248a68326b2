// SPDX-License-Identifier: Apache-2.0
#include "simulator/sheet_folder.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cinttypes>
#include <cstdio>
#include <string_view>
#include <system_error>

#include "simulator/wording.h"

namespace simulator {
namespace {

constexpr std::string_view kPrinted = "sheet-";
constexpr std::string_view kIncomplete = "incomplete-";
constexpr std::string_view kSuffix = ".png";

// The highest number in the folder that counts: no run is so long that numbers after it run out.
constexpr std::uint64_t kHighestNumber = 999'999'999;

std::uint64_t number_in(std::string_view name, std::string_view prefix) {
  if (!name.starts_with(prefix) || !name.ends_with(kSuffix) ||
      name.size() <= prefix.size() + kSuffix.size()) {
    return 0;
  }
  const std::string_view digits =
      name.substr(prefix.size(), name.size() - prefix.size() - kSuffix.size());
  std::uint64_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  const bool good = error == std::errc{} && end == digits.data() + digits.size();
  return good && number <= kHighestNumber ? number : 0;
}

std::string file_name(std::string_view prefix, std::uint64_t number) {
  std::array<char, 24> digits{};
  std::snprintf(digits.data(), digits.size(), "%04" PRIu64, number);
  return std::string(prefix) + digits.data() + std::string(kSuffix);
}

}  // namespace

std::string SheetFolder::Open(const std::filesystem::path& folder) {
  folder_ = folder;
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (!std::filesystem::is_directory(folder)) {
    return error ? error.message() : "not a folder";
  }
  if (::access(folder.c_str(), W_OK | X_OK) != 0) {
    return error_words(errno);
  }
  std::filesystem::directory_iterator entry(folder, error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    const std::uint64_t number = std::max(number_in(name, kPrinted), number_in(name, kIncomplete));
    nextNumber_ = std::max(nextNumber_, number + 1);
  }
  return error ? error.message() : "";
}

std::filesystem::path SheetFolder::PrintedName(std::uint64_t number) const {
  return folder_ / file_name(kPrinted, number);
}

std::filesystem::path SheetFolder::IncompleteName(std::uint64_t number) const {
  return folder_ / file_name(kIncomplete, number);
}

std::filesystem::path SheetFolder::ThumbnailName(std::uint64_t number) const {
  return Thumbnails() / file_name(kPrinted, number);
}

std::string SheetFolder::MakeThumbnails() const {
  std::error_code error;
  std::filesystem::create_directory(Thumbnails(), error);
  return error ? error.message() : "";
}

std::string SheetFolder::AddLine(const std::string& line) const {
  std::FILE* const file = std::fopen((folder_ / "sheets.txt").c_str(), "ae");
  if (file == nullptr) {
    return error_words(errno);
  }
  const bool written = std::fprintf(file, "%s\n", line.c_str()) >= 0;
  const bool closed = std::fclose(file) == 0;
  return written && closed ? "" : error_words(errno);
}

}  // namespace simulator
