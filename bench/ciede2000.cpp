// SPDX-License-Identifier: Apache-2.0
#include "bench/ciede2000.h"

#include <cmath>
#include <numbers>

namespace bench {

namespace {

double radians(double degrees) {
  return degrees * std::numbers::pi / 180.0;
}

/// x⁷ / (x⁷ + 25⁷), rooted: how far from grey a chroma counts as.
double chroma_share(double chroma) {
  constexpr double k25To7 = 6103515625.0;
  const double power = std::pow(chroma, 7.0);
  return std::sqrt(power / (power + k25To7));
}

/// A colour in the formula's own coordinates: a′ stretched near grey, hue in degrees 0 … 360.
struct Polar {
  double lightness;
  double chroma;
  double hue;
};

Polar polar_of(const Lab& lab, double stretch) {
  const double a = lab.a * stretch;
  const double degrees = std::atan2(lab.b, a) * 180.0 / std::numbers::pi;
  return {lab.lightness, std::hypot(a, lab.b), degrees < 0.0 ? degrees + 360.0 : degrees};
}

/// The shorter way round from one hue to the other; a grey has no hue to differ in.
double hue_step(const Polar& first, const Polar& second) {
  if (first.chroma * second.chroma == 0.0) {
    return 0.0;
  }
  const double step = second.hue - first.hue;
  if (step > 180.0) {
    return step - 360.0;
  }
  return step < -180.0 ? step + 360.0 : step;
}

double mean_hue(const Polar& first, const Polar& second) {
  const double sum = first.hue + second.hue;
  if (first.chroma * second.chroma == 0.0) {
    return sum;
  }
  if (std::abs(first.hue - second.hue) <= 180.0) {
    return sum / 2.0;
  }
  return sum < 360.0 ? (sum + 360.0) / 2.0 : (sum - 360.0) / 2.0;
}

double hue_weight(double hue) {
  return 1.0 - 0.17 * std::cos(radians(hue - 30.0)) + 0.24 * std::cos(radians(2.0 * hue)) +
         0.32 * std::cos(radians(3.0 * hue + 6.0)) - 0.20 * std::cos(radians(4.0 * hue - 63.0));
}

}  // namespace

double ciede2000(const Lab& first, const Lab& second) {
  const double plainChroma = (std::hypot(first.a, first.b) + std::hypot(second.a, second.b)) / 2.0;
  const double stretch = 1.0 + 0.5 * (1.0 - chroma_share(plainChroma));
  const Polar one = polar_of(first, stretch);
  const Polar two = polar_of(second, stretch);

  const double lightness = (one.lightness + two.lightness) / 2.0 - 50.0;
  const double chroma = (one.chroma + two.chroma) / 2.0;
  const double hue = mean_hue(one, two);

  const double lightnessScale =
      1.0 + 0.015 * lightness * lightness / std::sqrt(20.0 + lightness * lightness);
  const double chromaScale = 1.0 + 0.045 * chroma;
  const double hueScale = 1.0 + 0.015 * chroma * hue_weight(hue);
  const double blueTurn = 30.0 * std::exp(-std::pow((hue - 275.0) / 25.0, 2.0));
  const double rotation = -std::sin(radians(2.0 * blueTurn)) * 2.0 * chroma_share(chroma);

  const double dL = (two.lightness - one.lightness) / lightnessScale;
  const double dC = (two.chroma - one.chroma) / chromaScale;
  const double dH = 2.0 * std::sqrt(one.chroma * two.chroma) *
                    std::sin(radians(hue_step(one, two) / 2.0)) / hueScale;
  return std::sqrt(dL * dL + dC * dC + dH * dH + rotation * dC * dH);
}

}  // namespace bench
