// SPDX-License-Identifier: Apache-2.0
//
// Encodes linear light as the 8-bit values of a screen, as sRGB does.
#ifndef TQR7_DECODER_SCREEN_ENCODING_H
#define TQR7_DECODER_SCREEN_ENCODING_H

#include <array>
#include <cstddef>
#include <cstdint>

namespace decoder {

/// The encoding of IEC 61966-2-1, rounded to the nearest of 255 steps. It needs no power function
/// for each dot, because it is known beforehand at which light each 8-bit value begins.
class ScreenEncoding {
 public:
  ScreenEncoding();

  /// `light`: 0 is black, 1 is white. Light outside of that becomes the nearer of the two; what is
  /// not a number becomes black.
  std::uint8_t operator()(float light) const {
    const float inside = light > 0.0F ? (light < 1.0F ? light : 1.0F) : 0.0F;
    const Bin& bin = bins_[static_cast<std::size_t>(inside * kBins)];
    return static_cast<std::uint8_t>(bin.below + (inside >= bin.step ? 1 : 0));
  }

 private:
  // The darkest 8-bit values are closest together, 1 / (255 × 12.92) = 1 / 3295 of light apart.
  // Bins as narrow as these have one step at most.
  static constexpr int kBins = 4096;

  struct Bin {
    float step;          // where the next 8-bit value begins; above 1 when not in this bin
    std::uint8_t below;  // the 8-bit value before that
  };
  std::array<Bin, kBins + 1> bins_{};
};

}  // namespace decoder

#endif  // TQR7_DECODER_SCREEN_ENCODING_H
