// SPDX-License-Identifier: Apache-2.0
//
// Linear light to the 8-bit values of a screen, as sRGB encodes them.
#ifndef TQR7_DECODER_SCREEN_ENCODING_H
#define TQR7_DECODER_SCREEN_ENCODING_H

#include <array>
#include <cstddef>
#include <cstdint>

namespace decoder {

/// The encoding of IEC 61966-2-1, rounded to the nearest of 255 steps, without a power function a
/// dot: an 8-bit value begins at an amount of light that is known beforehand.
class ScreenEncoding {
 public:
  ScreenEncoding();

  /// `light`: 0 is black, 1 is white. What lies outside, or is no number, is shown as the nearer of
  /// the two; no number is black.
  std::uint8_t operator()(float light) const {
    const float inside = light > 0.0F ? (light < 1.0F ? light : 1.0F) : 0.0F;
    const Bin& bin = bins_[static_cast<std::size_t>(inside * kBins)];
    return static_cast<std::uint8_t>(bin.below + (inside >= bin.step ? 1 : 0));
  }

 private:
  // The darkest 8-bit values lie closest in light, 1 / (255 × 12.92) = 1 / 3295 apart: a bin this
  // narrow holds one step at most.
  static constexpr int kBins = 4096;

  struct Bin {
    float step;          // where the next 8-bit value begins; above all light if in no such bin
    std::uint8_t below;  // the value before that
  };
  std::array<Bin, kBins + 1> bins_{};
};

}  // namespace decoder

#endif  // TQR7_DECODER_SCREEN_ENCODING_H
