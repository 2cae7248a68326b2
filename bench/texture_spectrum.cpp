// SPDX-License-Identifier: Apache-2.0
#include "bench/texture_spectrum.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "bench/spectrum.h"

namespace bench {

namespace {

constexpr std::size_t kTile = kSpectrumTile;

/// How far frequency number i lies from 0, in steps of 1/kTile.
double distance(std::size_t i) {
  return static_cast<double>(std::min(i, kTile - i));
}

/// Sums around each ring of frequencies, and over all frequencies but 0.
struct Rings {
  std::array<double, kTile / 2 + 1> power{};
  std::array<double, kTile / 2 + 1> count{};
  double all = 0.0;
  double allCount = 0.0;
};

void add_tile(const Square& power, Rings& rings) {
  for (std::size_t y = 0; y < kTile; ++y) {
    for (std::size_t x = 0; x < kTile; ++x) {
      const auto ring = static_cast<std::size_t>(std::lround(std::hypot(distance(x), distance(y))));
      if (ring > 0) {
        rings.all += power.at(x, y);
        rings.allCount += 1.0;
      }
      if (ring < rings.power.size()) {
        rings.power[ring] += power.at(x, y);
        rings.count[ring] += 1.0;
      }
    }
  }
}

}  // namespace

std::vector<RadialPower> radial_spectrum(std::span<const unsigned char> plane, std::size_t width,
                                         std::size_t height) {
  Rings rings;
  for (std::size_t y = 0; y + kTile <= height; y += kTile) {
    for (std::size_t x = 0; x + kTile <= width; x += kTile) {
      add_tile(power_of(faded(cut_out(plane, width, x, y, kTile))), rings);
    }
  }
  // White noise of the same strength has the mean of all frequencies everywhere.
  const double white = rings.all / rings.allCount;
  std::vector<RadialPower> spectrum;
  for (std::size_t ring = 1; ring < rings.power.size() && rings.count[ring] > 0.0; ++ring) {
    spectrum.push_back(
        {static_cast<double>(ring) / kTile, rings.power[ring] / rings.count[ring] / white});
  }
  return spectrum;
}

double power_below(std::span<const RadialPower> spectrum, double limit) {
  double sum = 0.0;
  double weight = 0.0;
  for (const RadialPower& ring : spectrum) {
    if (ring.frequency < limit) {
      sum += ring.power * ring.frequency;
      weight += ring.frequency;
    }
  }
  return weight > 0.0 ? sum / weight : 0.0;
}

}  // namespace bench
