// SPDX-License-Identifier: Apache-2.0
//
// Sharpening: an unsharp mask on the luminance of the engine's samples, line by line over a ring
// of five lines.
#ifndef TQR7_CONVERSION_SHARPENING_H
#define TQR7_CONVERSION_SHARPENING_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "conversion/colour.h"

/// How far a pixel looks to each side, and up and down: the mask is 5 × 5 pixels, 0.4 mm.
inline constexpr std::size_t kSharpeningReach = 2;

/// How much of the difference to the blurred picture is added, in 1/64: 10 × (level + 1), that is
/// 0.16 at level 0, 0.63 at level 3 (the normal one), 1.09 at level 6. Levels beyond an end count
/// as that end.
int sharpening_amount(int level);

/// Sharpens a page whose lines come from top to bottom. Lines are numbered from 0; each is put
/// into line(y) and then taken by take_line(y), in order. Line y can be sharpened when the lines
/// up to y + kSharpeningReach (or the page's last) have been taken, and until line y + 3 is begun.
class Sharpener {
 public:
  /// Takes the memory for pages of this width. False when it cannot be had.
  bool reserve(std::size_t width);

  /// Room for line y's samples, three a pixel.
  EngineSample* line(std::size_t y) { return &samples_[slot(y) * 3 * width_]; }

  /// Blurs line y along the line, for the lines around it.
  void take_line(std::size_t y);

  /// Writes line y of a page of `height` lines, sharpened, to `result`. A line without contrast
  /// around it comes out as it went in; no sample leaves 0 … kEngineWhite.
  void sharpen_line(std::size_t y, std::size_t height, int amount, EngineSample* result) const;

 private:
  static constexpr std::size_t kLines = 2 * kSharpeningReach + 1;

  static std::size_t slot(std::size_t y) { return y % kLines; }
  /// The five blurred lines around y; beyond the page its outermost line stands for what is not
  /// there.
  std::array<const std::int32_t*, kLines> lines_around(std::size_t y, std::size_t height) const;

  std::size_t width_ = 0;
  std::unique_ptr<EngineSample[]> samples_;       ///< kLines lines of three samples a pixel
  std::unique_ptr<std::int32_t[]> blurredLines_;  ///< kLines lines of luminance × 16
  std::unique_ptr<std::int32_t[]> luminance_;     ///< one line with kSharpeningReach to each side
};

#endif  // TQR7_CONVERSION_SHARPENING_H
