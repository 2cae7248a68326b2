// SPDX-License-Identifier: Apache-2.0
#include "bench/texture_spectrum.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <numbers>
#include <utility>

namespace bench {

namespace {

using Complex = std::complex<double>;
constexpr std::size_t kTile = kSpectrumTile;
using Line = std::array<Complex, kTile>;

/// The discrete Fourier transform in place, by Cooley and Tukey's halving; the length is a power
/// of two.
void transform(Line& line) {
  for (std::size_t i = 1, j = 0; i < kTile; ++i) {
    std::size_t bit = kTile >> 1;
    for (; (j & bit) != 0; bit >>= 1) {
      j ^= bit;
    }
    j ^= bit;
    if (i < j) {
      std::swap(line[i], line[j]);
    }
  }
  for (std::size_t length = 2; length <= kTile; length *= 2) {
    const double step = -2.0 * std::numbers::pi / static_cast<double>(length);
    for (std::size_t i = 0; i < length / 2; ++i) {
      const Complex turn = std::polar(1.0, step * static_cast<double>(i));
      for (std::size_t start = 0; start < kTile; start += length) {
        const Complex one = line[start + i];
        const Complex two = line[start + i + length / 2] * turn;
        line[start + i] = one + two;
        line[start + i + length / 2] = one - two;
      }
    }
  }
}

double window(std::size_t i) {
  return 0.5 - 0.5 * std::cos(2.0 * std::numbers::pi * static_cast<double>(i) / kTile);
}

/// How far frequency number i lies from 0, in steps of 1/kTile.
double distance(std::size_t i) {
  return static_cast<double>(std::min(i, kTile - i));
}

struct Rings {
  std::array<double, kTile / 2 + 1> power{};
  std::array<double, kTile / 2 + 1> count{};
};

void add_tile(std::span<const unsigned char> plane, std::size_t width, std::size_t first,
              double mean, Rings& rings) {
  std::vector<Line> rows(kTile);
  for (std::size_t y = 0; y < kTile; ++y) {
    for (std::size_t x = 0; x < kTile; ++x) {
      rows[y][x] = (plane[first + y * width + x] - mean) * window(x) * window(y);
    }
    transform(rows[y]);
  }
  for (std::size_t x = 0; x < kTile; ++x) {
    Line column{};
    for (std::size_t y = 0; y < kTile; ++y) {
      column[y] = rows[y][x];
    }
    transform(column);
    for (std::size_t y = 0; y < kTile; ++y) {
      const auto ring = static_cast<std::size_t>(std::lround(std::hypot(distance(x), distance(y))));
      if (ring < rings.power.size()) {
        rings.power[ring] += std::norm(column[y]);
        rings.count[ring] += 1.0;
      }
    }
  }
}

struct Moments {
  double mean = 0.0;
  double variance = 0.0;
};

Moments moments_of(std::span<const unsigned char> plane) {
  Moments result;
  for (const unsigned char value : plane) {
    result.mean += value;
  }
  result.mean /= static_cast<double>(plane.size());
  for (const unsigned char value : plane) {
    result.variance += (value - result.mean) * (value - result.mean);
  }
  result.variance /= static_cast<double>(plane.size());
  return result;
}

}  // namespace

std::vector<RadialPower> radial_spectrum(std::span<const unsigned char> plane, std::size_t width,
                                         std::size_t height) {
  const Moments moments = moments_of(plane.first(width * height));
  Rings rings;
  for (std::size_t y = 0; y + kTile <= height; y += kTile) {
    for (std::size_t x = 0; x + kTile <= width; x += kTile) {
      add_tile(plane, width, y * width + x, moments.mean, rings);
    }
  }
  // Under the window white noise has its variance times the sum of the window's squares.
  double windowSquares = 0.0;
  for (std::size_t i = 0; i < kTile; ++i) {
    windowSquares += window(i) * window(i);
  }
  const double white = moments.variance * windowSquares * windowSquares;
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
