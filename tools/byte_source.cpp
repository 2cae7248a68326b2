// SPDX-License-Identifier: Apache-2.0
#include "tools/byte_source.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>
#include <vector>

namespace tools {
namespace {

constexpr std::size_t kPiece = 256UL * 1024;

// The standard input stays open: it belongs to the process.
struct Closer {
  void operator()(std::FILE* file) const {
    if (file != stdin) {
      std::fclose(file);
    }
  }
};

std::string last_error() {
  return std::generic_category().message(errno);
}

}  // namespace

std::string for_each_piece(const std::string& path,
                           const std::function<void(std::span<const std::uint8_t>)>& take) {
  const std::unique_ptr<std::FILE, Closer> file(path == "-" ? stdin
                                                            : std::fopen(path.c_str(), "rbe"));
  if (!file) {
    return last_error();
  }
  std::vector<std::uint8_t> piece(kPiece);
  for (;;) {
    const std::size_t count = std::fread(piece.data(), 1, piece.size(), file.get());
    std::string why = std::ferror(file.get()) != 0 ? last_error() : std::string{};
    if (count > 0) {
      take(std::span(piece).first(count));
    }
    if (!why.empty() || count < piece.size()) {
      return why;
    }
  }
}

}  // namespace tools
