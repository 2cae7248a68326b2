// SPDX-License-Identifier: Apache-2.0
//
// From 8-bit RGB to the print engine's samples. The colours are a plain mapping, channel by
// channel: no print has been measured yet, so colour conversion on and off give the same.
#ifndef TQR7_CONVERSION_COLOUR_H
#define TQR7_CONVERSION_COLOUR_H

#include <array>
#include <cstddef>
#include <cstdint>

#include "conversion/tone.h"
#include "image/mv_change_image.h"

/// One channel's amount of light as the print engine takes it: 14 bits of 16, black 0.
using EngineSample = std::uint16_t;
inline constexpr EngineSample kEngineWhite = 0x3FFF;

/// What each 8-bit value of the three channels becomes, tone sliders included.
struct ColourMapping {
  std::array<std::array<EngineSample, 256>, 3> channels;
};

/// The nearest sample to a level: round(level × 16383), for levels within 0 … 1.
EngineSample sample_of_level(double level);

/// The mapping for a page's settings, worked out once a page.
ColourMapping make_colour_mapping(const tagMVChangeParams& params);

/// Maps `pixels` pixels of R, G, B bytes to three samples each, in the same order.
void map_line(const ColourMapping& mapping, const unsigned char* rgb, std::size_t pixels,
              EngineSample* samples);

#endif  // TQR7_CONVERSION_COLOUR_H
