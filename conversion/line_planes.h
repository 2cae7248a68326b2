// SPDX-License-Identifier: Apache-2.0
//
// One line of a page, split into a plane for each channel with a number for each pixel.
#ifndef TQR7_CONVERSION_LINE_PLANES_H
#define TQR7_CONVERSION_LINE_PLANES_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>

/// Numbers of a line's memory before its first pixel and after its last one. The loops use vectors
/// of at most that many numbers, which may reach past the line's end.
inline constexpr std::size_t kLineMargin = 64;

/// The three planes of a line: R, G, B.
using LinePlanes = std::array<std::uint16_t*, 3>;

/// Memory for several lines of 16-bit numbers, each with its margins.
class LineMemory {
 public:
  /// Allocates the memory, all 0. False without memory.
  bool reserve(std::size_t lines, std::size_t width) {
    step_ = width + 2 * kLineMargin;
    if (step_ < width || step_ > SIZE_MAX / sizeof(std::uint16_t) / lines) {
      return false;
    }
    numbers_.reset(new (std::nothrow) std::uint16_t[lines * step_]());
    return numbers_ != nullptr;
  }

  /// The first pixel of line `number`.
  std::uint16_t* line(std::size_t number) const {
    return numbers_.get() + number * step_ + kLineMargin;
  }

 private:
  std::size_t step_ = 0;
  std::unique_ptr<std::uint16_t[]> numbers_;
};

#endif  // TQR7_CONVERSION_LINE_PLANES_H
