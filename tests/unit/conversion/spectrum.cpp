// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/conversion/spectrum.h"

#include <cmath>
#include <complex>
#include <numbers>
#include <numeric>
#include <utility>

namespace {

using Complex = std::complex<double>;

/// The discrete Fourier transform in place, by halves (Cooley and Tukey, 1965).
void transform(std::vector<Complex>& line) {
  const std::size_t count = line.size();
  for (std::size_t i = 0, reversed = 0; i < count; ++i) {
    if (i < reversed) {
      std::swap(line[i], line[reversed]);
    }
    std::size_t bit = count / 2;
    for (; bit > 0 && (reversed & bit) != 0; bit /= 2) {
      reversed ^= bit;
    }
    reversed |= bit;
  }
  for (std::size_t half = 1; half < count; half *= 2) {
    for (std::size_t k = 0; k < half; ++k) {
      const Complex turn =
          std::polar(1.0, -std::numbers::pi * static_cast<double>(k) / static_cast<double>(half));
      for (std::size_t i = k; i < count; i += 2 * half) {
        const Complex odd = line[i + half] * turn;
        line[i + half] = line[i] - odd;
        line[i] += odd;
      }
    }
  }
}

/// Rows first, then columns.
std::vector<Complex> transform_of(const Square& square) {
  const std::size_t side = square.side;
  std::vector<Complex> values(square.values.begin(), square.values.end());
  std::vector<Complex> line(side);
  for (const auto& [along, across] : {std::pair{std::size_t{1}, side}, {side, std::size_t{1}}}) {
    for (std::size_t i = 0; i < side; ++i) {
      for (std::size_t k = 0; k < side; ++k) {
        line[k] = values[i * across + k * along];
      }
      transform(line);
      for (std::size_t k = 0; k < side; ++k) {
        values[i * across + k * along] = line[k];
      }
    }
  }
  return values;
}

void take_mean_away(std::vector<double>& values) {
  const double mean =
      std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
  for (double& value : values) {
    value -= mean;
  }
}

/// Cycles a dot of one place along a side; the sign does not matter here.
double frequency(std::size_t place, std::size_t side) {
  return static_cast<double>(place <= side / 2 ? place : side - place) / static_cast<double>(side);
}

}  // namespace

Square cut_out(std::span<const unsigned char> plane, std::size_t planeWidth, std::size_t left,
               std::size_t top, std::size_t side) {
  Square square(side);
  for (std::size_t y = 0; y < side; ++y) {
    for (std::size_t x = 0; x < side; ++x) {
      square.at(x, y) = plane[(top + y) * planeWidth + left + x];
    }
  }
  take_mean_away(square.values);
  return square;
}

Square faded(const Square& square) {
  Square result = square;
  const auto weight = [&](std::size_t i) {
    const double sine = std::sin(std::numbers::pi * (static_cast<double>(i) + 0.5) /
                                 static_cast<double>(square.side));
    return sine * sine;
  };
  for (std::size_t y = 0; y < square.side; ++y) {
    for (std::size_t x = 0; x < square.side; ++x) {
      result.at(x, y) *= weight(x) * weight(y);
    }
  }
  take_mean_away(result.values);
  return result;
}

Square power_of(const Square& square) {
  Square power(square.side);
  const std::vector<Complex> values = transform_of(square);
  for (std::size_t i = 0; i < values.size(); ++i) {
    power.values[i] = std::norm(values[i]);
  }
  return power;
}

double energy_against_white(const Square& power, double from, double below) {
  double inside = 0;
  double insideCount = 0;
  double all = 0;
  for (std::size_t y = 0; y < power.side; ++y) {
    for (std::size_t x = y == 0 ? 1 : 0; x < power.side; ++x) {
      const double f = std::hypot(frequency(x, power.side), frequency(y, power.side));
      all += power.at(x, y);
      if (f >= from && f < below) {
        inside += power.at(x, y);
        ++insideCount;
      }
    }
  }
  const double allCount = static_cast<double>(power.values.size() - 1);
  return inside / insideCount / (all / allCount);
}

Square likeness_of(const Square& square) {
  const std::size_t side = square.side;
  Square padded(2 * side);
  double squares = 0;
  for (std::size_t y = 0; y < side; ++y) {
    for (std::size_t x = 0; x < side; ++x) {
      padded.at(x, y) = square.at(x, y);
      squares += square.at(x, y) * square.at(x, y);
    }
  }
  // The transform of the power is what the square has in common with itself at each distance
  // (Wiener and Khinchin), times the number of places.
  const std::vector<Complex> common = transform_of(power_of(padded));
  const double perDot = squares / static_cast<double>(side * side);
  const auto overlap = [&](std::size_t place) {
    return static_cast<double>(place < side ? side - place : place - side);
  };
  Square likeness(2 * side);
  for (std::size_t y = 0; y < 2 * side; ++y) {
    for (std::size_t x = 0; x < 2 * side; ++x) {
      const double dots = overlap(x) * overlap(y);
      const double sum =
          common[y * 2 * side + x].real() / static_cast<double>(padded.values.size());
      likeness.at(x, y) = dots > 0 ? sum / dots / perDot : 0.0;
    }
  }
  return likeness;
}
