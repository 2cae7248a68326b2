// SPDX-License-Identifier: Apache-2.0
//
// The tone sliders: gamma, contrast and brightness of one channel as a curve over its levels.
#ifndef TQR7_CONVERSION_TONE_H
#define TQR7_CONVERSION_TONE_H

#include <cstddef>

#include "image/mv_change_image.h"

inline constexpr int kGammaEnd = 5;         ///< gamma goes from −5 to 5
inline constexpr int kContrastEnd = 128;    ///< contrast from −128 to 128
inline constexpr int kBrightnessEnd = 128;  ///< brightness from −128 to 128

/// The sliders of one channel, each within its ends; 0 leaves the tones alone.
struct ChannelTone {
  int gamma;
  int contrast;
  int brightness;

  bool operator==(const ChannelTone& other) const = default;
};

/// What the sliders put into the formulas, worked out once for all levels; 1 leaves them alone.
struct ToneFactors {
  double power;  ///< of the level, by gamma
  double slope;  ///< through the middle, by contrast
  double odds;   ///< on the ratio of light to dark, by brightness
};

/// The sliders of channel 0 (R), 1 (G) or 2 (B); numbers beyond an end count as that end.
ChannelTone tone_of_channel(const tagMVChangeParams& params, std::size_t channel);

/// power = 2^(−gamma / 10), slope = 4^(contrast / 128), odds = 4^(brightness / 128).
ToneFactors tone_factors(const ChannelTone& tone);

/// What a level of 0 … 1 becomes: gamma first, then contrast, then brightness. Levels beyond an end
/// count as that end. It never falls as the level rises, stays within 0 … 1, and with all three at
/// 0 it is exactly the level. None of the three clips, so no combination of them makes a photo a
/// few flat tones.
double tone_level(const ChannelTone& tone, double level);

/// The same with the factors at hand, for many levels of one channel.
double shaped_level(const ToneFactors& factors, double level);

#endif  // TQR7_CONVERSION_TONE_H
