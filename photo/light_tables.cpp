// SPDX-License-Identifier: Apache-2.0
#include "photo/light_tables.h"

#include <cmath>
#include <cstddef>

namespace photo {
namespace {

constexpr double kNumberMost = 255;
constexpr double kSampleMost = 65535;
constexpr std::size_t kSamples = 65536;

// IEC 61966-2-1, from the number to the light.
double light_of(double number) {
  constexpr double kLinearUntil = 0.04045;
  constexpr double kSlope = 12.92;
  constexpr double kOffset = 0.055;
  constexpr double kExponent = 2.4;
  return number <= kLinearUntil ? number / kSlope
                                : std::pow((number + kOffset) / (1 + kOffset), kExponent);
}

double sample_of(double number, bool light) {
  const double share = number / kNumberMost;
  return kSampleMost * (light ? light_of(share) : share);
}

}  // namespace

LightTables make_light_tables(bool light) {
  LightTables tables{};
  for (std::size_t i = 0; i < tables.toSample.size(); ++i) {
    tables.toSample.at(i) =
        static_cast<std::uint16_t>(std::lround(sample_of(static_cast<double>(i), light)));
  }
  tables.toNumber.resize(kSamples);
  // The border between two numbers is the sample of the number half-way between them.
  constexpr double kHalf = 0.5;
  std::size_t sample = 0;
  for (std::size_t number = 0; number < tables.toSample.size(); ++number) {
    const double border = number + 1 < tables.toSample.size()
                              ? sample_of(static_cast<double>(number) + kHalf, light)
                              : kSampleMost + 1;
    for (; sample < kSamples && static_cast<double>(sample) < border; ++sample) {
      tables.toNumber[sample] = static_cast<std::uint8_t>(number);
    }
  }
  return tables;
}

}  // namespace photo
