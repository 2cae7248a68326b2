// SPDX-License-Identifier: Apache-2.0
//
// Finding the way back after bytes that belong to no command: the next command code is looked for.
//
// Image data cannot be mistaken for a code as long as its samples keep to 14 bits, as those of the
// conversion library do: every second byte is then 0x3F at most, and each code has two neighbouring
// bytes above that. The protocol does not hold samples to it. In wider ones and in a matte plane,
// whose bytes may be anything, a code may come up by chance, and is then reported as a command out
// of order.
#ifndef TQR7_DECODER_CODE_SCANNER_H
#define TQR7_DECODER_CODE_SCANNER_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "decoder/command.h"

namespace decoder {

/// Passes over bytes up to the next whole command code.
class CodeScanner {
 public:
  /// Begins a search.
  void Reset();

  /// Takes bytes until a code is complete; says how many it took. Call Found afterwards.
  std::size_t Take(std::span<const std::uint8_t> bytes);

  /// Whether the last four bytes taken are a command code.
  bool Found() const { return held_ == kCodeLength; }

  /// The code found.
  std::span<const std::uint8_t> Code() const { return window_; }

  /// Bytes passed over so far; those that may be the beginning of a code do not count.
  std::uint64_t Skipped() const { return skipped_; }

  /// Bytes at the end that may be the beginning of a code.
  std::size_t Held() const { return held_; }

 private:
  void TakeByte(std::uint8_t byte);
  bool MayBeCode() const;

  std::array<std::uint8_t, kCodeLength> window_{};
  std::size_t held_ = 0;
  std::uint64_t skipped_ = 0;
};

}  // namespace decoder

#endif  // TQR7_DECODER_CODE_SCANNER_H
