// SPDX-License-Identifier: Apache-2.0
#include "decoder/code_scanner.h"

#include <algorithm>

namespace decoder {
namespace {

constexpr std::uint8_t kEscape = 0x1B;

}  // namespace

void CodeScanner::Reset() {
  held_ = 0;
  skipped_ = 0;
}

// All four bytes must be right, even the image header's flag, so that few bytes are mistaken for a
// code.
bool CodeScanner::MayBeCode() const {
  const auto codes = command_codes();
  return std::any_of(codes.begin(), codes.end(), [this](const CommandCode& code) {
    return std::equal(window_.begin(), window_.begin() + static_cast<std::ptrdiff_t>(held_),
                      code.bytes.begin());
  });
}

void CodeScanner::TakeByte(std::uint8_t byte) {
  window_.at(held_) = byte;
  ++held_;
  while (held_ > 0 && !MayBeCode()) {
    std::copy(window_.begin() + 1, window_.end(), window_.begin());
    --held_;
    ++skipped_;
  }
}

std::size_t CodeScanner::Take(std::span<const std::uint8_t> bytes) {
  std::size_t taken = 0;
  while (taken < bytes.size() && !Found()) {
    if (held_ == 0) {
      const auto rest = bytes.subspan(taken);
      const auto escape = std::find(rest.begin(), rest.end(), kEscape);
      const auto passed = static_cast<std::size_t>(escape - rest.begin());
      skipped_ += passed;
      taken += passed;
      if (taken == bytes.size()) {
        break;
      }
    }
    TakeByte(bytes[taken]);
    ++taken;
  }
  return taken;
}

}  // namespace decoder
