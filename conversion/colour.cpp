// SPDX-License-Identifier: Apache-2.0
#include "conversion/colour.h"

#include <cmath>

EngineSample sample_of_level(double level) {
  return static_cast<EngineSample>(std::lround(level * kEngineWhite));
}

ColourMapping make_colour_mapping(const tagMVChangeParams& params) {
  ColourMapping mapping{};
  for (std::size_t channel = 0; channel < mapping.channels.size(); ++channel) {
    const ToneCurve curve = make_tone_curve(tone_of_channel(params, channel));
    for (std::size_t value = 0; value < curve.size(); ++value) {
      mapping.channels[channel][value] = sample_of_level(curve[value]);
    }
  }
  return mapping;
}

void map_line(const ColourMapping& mapping, const unsigned char* rgb, std::size_t pixels,
              EngineSample* samples) {
  for (std::size_t x = 0; x < pixels; ++x) {
    samples[3 * x] = mapping.channels[0][rgb[3 * x]];
    samples[3 * x + 1] = mapping.channels[1][rgb[3 * x + 1]];
    samples[3 * x + 2] = mapping.channels[2][rgb[3 * x + 2]];
  }
}
