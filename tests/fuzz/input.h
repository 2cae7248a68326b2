// SPDX-License-Identifier: Apache-2.0
//
// What every target needs: numbers taken off an input's front, and a claim that must hold.
#ifndef TQR7_TESTS_FUZZ_INPUT_H
#define TQR7_TESTS_FUZZ_INPUT_H

#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <span>

namespace fuzz {

/// Ends the process where a target's claim does not hold, which libFuzzer takes for a finding. The
/// place is the caller's.
inline void require(bool holds, const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
  if (!holds) {
    dprintf(STDERR_FILENO, "%s:%d: this does not hold\n", file, line);
    std::abort();
  }
}

/// An input that is used up from the front; zeros and empty spans behind its end.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : left_(data, size) {}

  /// A number in this machine's byte order.
  template <typename Number>
  Number Take() {
    Number value{};
    const std::span<const std::uint8_t> bytes = TakeBytes(sizeof value);
    if (!bytes.empty()) {
      std::memcpy(&value, bytes.data(), bytes.size());
    }
    return value;
  }

  /// The next `count` bytes, or as many as are left.
  std::span<const std::uint8_t> TakeBytes(std::size_t count) {
    const std::span<const std::uint8_t> bytes = left_.first(std::min(count, left_.size()));
    left_ = left_.subspan(bytes.size());
    return bytes;
  }

  std::span<const std::uint8_t> Rest() const { return left_; }

 private:
  std::span<const std::uint8_t> left_;
};

}  // namespace fuzz

#endif  // TQR7_TESTS_FUZZ_INPUT_H
