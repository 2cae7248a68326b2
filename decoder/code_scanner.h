// SPDX-License-Identifier: Apache-2.0
//
// Looks for the next command code after bytes that belong to no command.
//
// Samples of 14 bits, as the conversion library makes them, cannot be mistaken for a code: every
// second byte of them is at most 0x3F, and each code has two neighbouring bytes above that. But the
// protocol allows wider samples, and any bytes in a matte plane. A code may occur in these by
// chance; it is then reported as a command out of order.
#ifndef TQR7_DECODER_CODE_SCANNER_H
#define TQR7_DECODER_CODE_SCANNER_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "decoder/command.h"

namespace decoder {

/// Skips bytes up to the next whole command code.
class CodeScanner {
 public:
  /// Begins a search.
  void Reset();

  /// Takes bytes until a code is complete, and returns how many it took. Call Found afterwards.
  std::size_t Take(std::span<const std::uint8_t> bytes);

  /// Whether the last four bytes taken are a command code.
  bool Found() const { return held_ == kCodeLength; }

  /// The code found.
  std::span<const std::uint8_t> Code() const { return window_; }

  /// How many bytes were skipped so far, without those that may be the beginning of a code.
  std::uint64_t Skipped() const { return skipped_; }

  /// How many of the last bytes may be the beginning of a code.
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
