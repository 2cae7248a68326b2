// SPDX-License-Identifier: Apache-2.0
//
// Sharpening: an unsharp mask on the photo's luma, line by line over rings of five lines.
#ifndef TQR7_CONVERSION_SHARPENING_H
#define TQR7_CONVERSION_SHARPENING_H

#include <cstddef>
#include <cstdint>

#include "conversion/band_rows.h"
#include "conversion/line_planes.h"

/// The mask's radius in pixels. The mask is the binomial one of 9 × 9 pixels, close to a Gaussian
/// of √2 pixels. At 300 dpi it strengthens details of 0.2 to 0.8 mm, the finest that an eye sees
/// well at reading distance.
inline constexpr std::size_t kSharpeningReach = 4;

/// How much of the difference to the surroundings is added, in eighths: level + 1, so that the
/// steps between levels are equal. A level outside 0 … 6 counts as the nearer end.
int sharpening_strength(int level);

/// The surroundings of a page's lines, from top to bottom.
class Sharpener {
 public:
  /// Allocates the memory for pages of this width. False without memory.
  bool reserve(std::size_t width);

  /// Sharpens line y of the page. Call it for one line after the other, from 0. Writes numbers on
  /// the fine scale (white 4080). A flat area does not change.
  void sharpen(const BandRows& page, std::size_t y, int strength, const LinePlanes& fine);

 private:
  static constexpr std::size_t kRing = 5;

  void take(const BandRows& page, std::size_t y);
  void blur_once(std::size_t y, std::size_t height);
  const std::uint16_t* blur_twice(std::size_t y, std::size_t height);

  std::size_t width_ = 0;
  std::size_t taken_ = 0;    ///< lines blurred along the line, twice
  std::size_t blurred_ = 0;  ///< lines blurred across the lines, once
  LineMemory along_;         ///< the last five blurred along
  LineMemory across_;        ///< the last five blurred across
  LineMemory scratch_;
};

#endif  // TQR7_CONVERSION_SHARPENING_H
