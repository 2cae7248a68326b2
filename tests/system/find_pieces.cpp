// SPDX-License-Identifier: Apache-2.0
// Looks for pieces of a secret in a folder's files: find-pieces FOLDER FILE BEGIN
//
// The secret is FILE from the byte BEGIN on. A piece is any 32 bytes of it that are not all zero,
// as they are or written in hexadecimal as the driver dumps bytes: "0000: 1b 47 44 30 …". Ends with
// status 1 and says where, when the folder holds one.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <unordered_set>

namespace {

constexpr std::size_t kPiece = 32;
constexpr std::size_t kSecretMost = 600000;  // bytes, so that the search ends soon

std::string read_file(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    std::fprintf(stderr, "find-pieces: %s cannot be read\n", path.c_str());
    std::exit(2);
  }
  return {std::istreambuf_iterator<char>(file), {}};
}

int digit(char letter) {
  const std::size_t value = std::string_view("0123456789abcdef").find(letter);
  return value == std::string_view::npos ? -1 : static_cast<int>(value);
}

// The bytes that the text's runs of " hh hh hh" stand for, of all of its lines one behind the
// other.
std::string bytes_of_dumps(std::string_view text) {
  std::string bytes;
  for (std::size_t at = text.find(": "); at != std::string_view::npos; at = text.find(": ", at)) {
    ++at;
    while (at + 3 <= text.size() && text[at] == ' ' && digit(text[at + 1]) >= 0 &&
           digit(text[at + 2]) >= 0) {
      bytes += static_cast<char>(digit(text[at + 1]) * 16 + digit(text[at + 2]));
      at += 3;
    }
  }
  return bytes;
}

std::unordered_set<std::string_view> pieces_of(std::string_view text) {
  std::unordered_set<std::string_view> pieces;
  for (std::size_t at = 0; at + kPiece <= text.size(); ++at) {
    pieces.insert(text.substr(at, kPiece));
  }
  return pieces;
}

bool is_blank(std::string_view piece) {
  return std::all_of(piece.begin(), piece.end(), [](char byte) { return byte == 0; });
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: find-pieces FOLDER FILE BEGIN\n");
    return 2;
  }
  std::string told;
  for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
    told += read_file(entry.path());
  }
  told += bytes_of_dumps(told);
  const auto pieces = pieces_of(told);
  const std::string file = read_file(argv[2]);
  const std::size_t begin = std::strtoul(argv[3], nullptr, 10);
  const std::size_t end = std::min(file.size(), begin + kSecretMost);
  if (begin + kPiece > end) {
    std::fprintf(stderr, "find-pieces: %s ends before byte %zu\n", argv[2], begin + kPiece);
    return 2;
  }
  for (std::size_t at = begin; at + kPiece <= end; ++at) {
    const std::string_view piece = std::string_view(file).substr(at, kPiece);
    if (!is_blank(piece) && pieces.contains(piece)) {
      std::printf("the bytes from %zu on of %s are in %s\n", at, argv[2], argv[1]);
      return 1;
    }
  }
  return 0;
}
