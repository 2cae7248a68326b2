// SPDX-License-Identifier: Apache-2.0
//
// A band as a slow model has it: each byte's place is worked out by itself, in 128 bits.
#ifndef TQR7_TESTS_FUZZ_MODEL_BAND_H
#define TQR7_TESTS_FUZZ_MODEL_BAND_H

#include <cstdint>
#include <vector>

#include "image/band_image.h"
#include "tests/fuzz/input.h"

namespace fuzz {

/// Numbers that no sum or product of a few edges leaves.
__extension__ using Wide = __int128;

/// Pixels that two stretches of a line share; 0 or less: none.
Wide shared_length(std::int64_t first, std::int64_t end, std::int64_t other_first,
                   std::int64_t other_end);

/// A band in a heap block of its own, which ends with the last pixel.
struct ModelBand {
  std::int64_t left = 0;
  std::int64_t top = 0;
  std::int64_t width = 0;
  std::int64_t height = 0;
  std::int64_t depth = 0;  ///< bytes a pixel
  std::int64_t line = 0;   ///< bytes from line to line, gap included
  bool top_down = false;
  std::vector<unsigned char> bytes;

  /// The record over this band's own block.
  tagMVBandImageParams Band();

  /// The block's place of a byte of the pixel at a column and row of the plane.
  std::size_t Place(Wide x, Wide y, std::int64_t byte) const;
  bool Holds(Wide x, Wide y) const;

  void CopyFrom(const ModelBand& other);
  /// As many whole pixels as a line with its gap holds.
  void Fill(const std::vector<unsigned char>& pattern);
  std::vector<unsigned char> TopToBottom() const;
};

/// A band of up to 40 × 40 pixels, its left upper corner up to 50 from (x, y), filled from the
/// input.
ModelBand take_band(Input& input, std::int64_t depth, bool top_down, std::int64_t x,
                    std::int64_t y);

}  // namespace fuzz

#endif  // TQR7_TESTS_FUZZ_MODEL_BAND_H
