// SPDX-License-Identifier: Apache-2.0
//
// The tone sliders: gamma, contrast and brightness of one channel as a curve over its 256 values.
#ifndef TQR7_CONVERSION_TONE_H
#define TQR7_CONVERSION_TONE_H

#include <array>
#include <cstddef>
#include <cstdint>

#include "image/mv_change_image.h"

inline constexpr int kGammaEnd = 5;         ///< gamma goes from −5 to 5
inline constexpr int kContrastEnd = 128;    ///< contrast from −128 to 128
inline constexpr int kBrightnessEnd = 128;  ///< brightness from −128 to 128

/// The sliders of one channel, each within its ends; 0 leaves the tones alone.
struct ChannelTone {
  int gamma;
  int contrast;
  int brightness;
};

/// A level (0 black … 1 white) for each 8-bit value.
using ToneCurve = std::array<double, 256>;

/// The sliders of channel 0 (R), 1 (G) or 2 (B); numbers beyond an end count as that end.
ChannelTone tone_of_channel(const tagMVChangeParams& params, std::size_t channel);

/// The curve that the sliders give, applied in the order gamma, contrast, brightness. It never
/// falls, stays within 0 … 1, and with all three at 0 it is exactly value / 255. None of the three
/// clips, so no combination of them makes a photo a few flat tones.
ToneCurve make_tone_curve(const ChannelTone& tone);

#endif  // TQR7_CONVERSION_TONE_H
