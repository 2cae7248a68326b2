// SPDX-License-Identifier: Apache-2.0
#include "conversion/tone.h"

#include <algorithm>
#include <cmath>

namespace {

/// Contrast and brightness turn by turn: 1 at 0, kStrongest at the upper end, its inverse at the
/// lower. Equal steps of the slider are equal ratios, so that each looks as large as the last.
constexpr double kStrongest = 4.0;

double slider_ratio(int slider, int end) {
  return std::pow(kStrongest, static_cast<double>(slider) / end);
}

/// level^(1/γ) with γ = 2^(gamma / 10): 1.41 at the upper end, 0.71 at the lower. Both ends of the
/// scale stay where they are.
double apply_gamma(double level, int gamma) {
  return gamma == 0 ? level : std::pow(level, std::exp2(-gamma / 10.0));
}

/// A slope of s = 4^(contrast / 128) through the middle (0.5). Upwards an S, level^s / (level^s +
/// (1 − level)^s), which runs into black and white; downwards a straight line, so that black and
/// white come nearer to the middle without breaking the darkest and lightest tones apart.
double apply_contrast(double level, int contrast) {
  const double slope = slider_ratio(contrast, kContrastEnd);
  if (contrast > 0) {
    const double light = std::pow(level, slope);
    const double dark = std::pow(1.0 - level, slope);
    return light / (light + dark);
  }
  return contrast == 0 ? level : 0.5 + (level - 0.5) * slope;
}

/// k × level / (1 + (k − 1) × level) with k = 4^(brightness / 128): the ratio of light to dark
/// times k. Paper white and full black stay, everything between moves.
double apply_brightness(double level, int brightness) {
  if (brightness == 0) {
    return level;
  }
  const double ratio = slider_ratio(brightness, kBrightnessEnd);
  return ratio * level / (1.0 + (ratio - 1.0) * level);
}

}  // namespace

ChannelTone tone_of_channel(const tagMVChangeParams& params, std::size_t channel) {
  const auto within = [](int value, int end) { return std::clamp(value, -end, end); };
  return {within(params.nTone[channel], kGammaEnd), within(params.nTone[3 + channel], kContrastEnd),
          within(params.nTone[6 + channel], kBrightnessEnd)};
}

ToneCurve make_tone_curve(const ChannelTone& tone) {
  ToneCurve curve{};
  for (std::size_t value = 0; value < curve.size(); ++value) {
    double level = static_cast<double>(value) / 255.0;
    level = apply_gamma(level, tone.gamma);
    level = apply_contrast(level, tone.contrast);
    level = apply_brightness(level, tone.brightness);
    curve[value] = std::clamp(level, 0.0, 1.0);
  }
  return curve;
}
