// SPDX-License-Identifier: Apache-2.0
#include "conversion/tone.h"

#include <algorithm>
#include <cmath>

namespace {

/// The factor of a contrast or brightness slider: 1 at 0, kStrongest at the upper end, its inverse
/// at the lower end. Equal steps of the slider are equal ratios, so that they look equally large.
constexpr double kStrongest = 4.0;

double slider_ratio(int slider, int end) {
  return std::pow(kStrongest, static_cast<double>(slider) / end);
}

/// The power law of tone reproduction (Gonzalez and Woods, Digital Image Processing, section 3.2):
/// level^(1/γ) with γ = 2^(gamma / 10), 1.41 at the upper end, 0.71 at the lower. The ends of the
/// scale do not change.
double apply_gamma(double level, double power) {
  return power == 1.0 ? level : std::pow(level, power);
}

/// More contrast is an S curve with this slope in the middle (0.5) that ends in black and white:
/// the odds level / (1 − level) to the power of the slope, a straight line in log odds (Zhang and
/// Maloney, "Ubiquitous log odds", Frontiers in Neuroscience 6:1, 2012). Less contrast is a
/// straight line in the levels: black and white come nearer to the middle, and the steps between
/// the darkest and between the lightest tones stay even.
double apply_contrast(double level, double slope) {
  if (slope > 1.0) {
    return level > 0.0 ? 1.0 / (1.0 + std::pow((1.0 - level) / level, slope)) : 0.0;
  }
  return slope == 1.0 ? level : 0.5 + (level - 0.5) * slope;
}

/// The odds level / (1 − level) times `odds`: in log odds a shift. It is Schlick's bias ("Fast
/// alternatives to Perlin's bias and gain functions", Graphics Gems IV, 1994) with
/// a = odds / (1 + odds). Paper white and full black stay, all levels between them change. At 1
/// nothing is rounded, so the level stays exactly the same.
double apply_brightness(double level, double odds) {
  return odds * level / (1.0 + (odds - 1.0) * level);
}

}  // namespace

ChannelTone tone_of_channel(const tagMVChangeParams& params, std::size_t channel) {
  const auto within = [](int value, int end) { return std::clamp(value, -end, end); };
  return {within(params.nTone[channel], kGammaEnd), within(params.nTone[3 + channel], kContrastEnd),
          within(params.nTone[6 + channel], kBrightnessEnd)};
}

ToneFactors tone_factors(const ChannelTone& tone) {
  return {std::exp2(-tone.gamma / 10.0), slider_ratio(tone.contrast, kContrastEnd),
          slider_ratio(tone.brightness, kBrightnessEnd)};
}

double shaped_level(const ToneFactors& factors, double level) {
  level = apply_gamma(std::clamp(level, 0.0, 1.0), factors.power);
  level = apply_contrast(level, factors.slope);
  level = apply_brightness(level, factors.odds);
  return std::clamp(level, 0.0, 1.0);
}

double tone_level(const ChannelTone& tone, double level) {
  return shaped_level(tone_factors(tone), level);
}
