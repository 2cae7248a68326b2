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

/// The sliders of one channel, each within its ends. 0 does not change the tones.
struct ChannelTone {
  int gamma;
  int contrast;
  int brightness;

  bool operator==(const ChannelTone& other) const = default;
};

/// The sliders' factors in the formulas, computed once for all levels. 1 does not change the tones.
struct ToneFactors {
  double power;  ///< of the level, by gamma
  double slope;  ///< through the middle, by contrast
  double odds;   ///< on the ratio of light to dark, by brightness
};

/// The sliders of channel 0 (R), 1 (G) or 2 (B). A number outside its range counts as the nearer
/// end.
ChannelTone tone_of_channel(const tagMVChangeParams& params, std::size_t channel);

/// power = 2^(−gamma / 10), slope = 4^(contrast / 128), odds = 4^(brightness / 128).
ToneFactors tone_factors(const ChannelTone& tone);

/// The new level for a level of 0 … 1: gamma first, then contrast, then brightness. A level outside
/// 0 … 1 counts as the nearer end. The result never falls as the level rises, stays in 0 … 1, and
/// is exactly the level when all three are 0. None of the three clips, so no combination of them
/// turns a photo into a few flat tones.
double tone_level(const ChannelTone& tone, double level);

/// The same with the factors already computed, for many levels of one channel.
double shaped_level(const ToneFactors& factors, double level);

#endif  // TQR7_CONVERSION_TONE_H
