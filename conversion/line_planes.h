// SPDX-License-Identifier: Apache-2.0
//
// One line of a page taken apart: a plane for each channel, a number for each pixel.
#ifndef TQR7_CONVERSION_LINE_PLANES_H
#define TQR7_CONVERSION_LINE_PLANES_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>

/// Numbers that a line's memory holds ahead of its first pixel and behind its last one. Lines are
/// worked on in vectors of at most that many numbers, which may reach beyond the line's end.
inline constexpr std::size_t kLineMargin = 64;

/// The three planes of a line: R, G, B.
using LinePlanes = std::array<std::uint16_t*, 3>;

/// Memory for several lines of 16-bit numbers, each with its margins.
class LineMemory {
 public:
  /// Takes the memory, all 0. False when it cannot be had.
  bool reserve(std::size_t lines, std::size_t width) {
    step_ = width + 2 * kLineMargin;
    if (step_ < width || step_ > SIZE_MAX / sizeof(std::uint16_t) / lines) {
      return false;
    }
    numbers_.reset(new (std::nothrow) std::uint16_t[lines * step_]());
    return numbers_ != nullptr;
  }

  /// The place of line `number`'s first pixel.
  std::uint16_t* line(std::size_t number) const {
    return numbers_.get() + number * step_ + kLineMargin;
  }

 private:
  std::size_t step_ = 0;
  std::unique_ptr<std::uint16_t[]> numbers_;
};

#endif  // TQR7_CONVERSION_LINE_PLANES_H
