// SPDX-License-Identifier: Apache-2.0
#include "tools/header_blocks.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "decoder/command.h"

namespace tools {
namespace {

constexpr std::size_t kBytesPerLine = 16;
constexpr std::size_t kTextMost = 8U << 20U;  // bytes: some 3,000 commands

std::string hexadecimal(unsigned value, int digits) {
  std::array<char, 12> text{};
  std::snprintf(text.data(), text.size(), "%0*x", digits, value);
  return text.data();
}

std::string line_of(std::size_t offset, std::span<const std::uint8_t> bytes) {
  std::string line = "  ";
  line += hexadecimal(static_cast<unsigned>(offset), 4) + ":";
  for (const std::uint8_t byte : bytes) {
    line += " ";
    line += hexadecimal(byte, 2);
  }
  return line + "\n";
}

}  // namespace

void HeaderBlocks::Feed(std::span<const std::uint8_t> bytes) {
  parser_.Feed(bytes);
}

void HeaderBlocks::Finish() {
  parser_.EndOfStream();
  text_ += "stream of " + std::to_string(parser_.Offset()) + " bytes, " +
           std::to_string(parser_.ErrorCount()) + " errors\n";
}

// Leaves out lines of zeros, which are most of a block.
void HeaderBlocks::OnCommandBytes(std::uint64_t offset, decoder::Command command,
                                  std::span<const std::uint8_t> bytes) {
  if (wrong_ || text_.size() > kTextMost) {
    return;
  }
  text_ += "offset " + std::to_string(offset) + ": " + decoder::to_string(command) + ", " +
           std::to_string(bytes.size()) + " bytes\n";
  for (std::size_t at = 0; at < bytes.size(); at += kBytesPerLine) {
    const auto line = bytes.subspan(at, std::min(kBytesPerLine, bytes.size() - at));
    const bool zeros =
        std::all_of(line.begin(), line.end(), [](std::uint8_t byte) { return byte == 0; });
    text_ += zeros ? "" : line_of(at, line);
  }
}

void HeaderBlocks::OnError(const decoder::StreamError& error) {
  if (!wrong_) {
    text_ += "error at offset " + std::to_string(error.offset) +
             "; what comes behind may be pixels, and is left out\n";
  }
  wrong_ = true;
}

}  // namespace tools
