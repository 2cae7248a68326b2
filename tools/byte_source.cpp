// SPDX-License-Identifier: Apache-2.0
#include "tools/byte_source.h"

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <vector>

#include "image/file_handle.h"

namespace tools {
namespace {

constexpr std::size_t kPiece = 256UL * 1024;

std::string last_error() {
  return std::generic_category().message(errno);
}

}  // namespace

std::string for_each_piece(const std::string& path,
                           const std::function<void(std::span<const std::uint8_t>)>& take) {
  const bool standard = path == "-";
  const FileHandle opened(standard ? nullptr : std::fopen(path.c_str(), "rbe"));
  std::FILE* const file = standard ? stdin : opened.get();
  if (file == nullptr) {
    return last_error();
  }
  std::vector<std::uint8_t> piece(kPiece);
  for (;;) {
    const std::size_t count = std::fread(piece.data(), 1, piece.size(), file);
    std::string why = std::ferror(file) != 0 ? last_error() : std::string{};
    if (count > 0) {
      take(std::span(piece).first(count));
    }
    if (!why.empty() || count < piece.size()) {
      return why;
    }
  }
}

}  // namespace tools
