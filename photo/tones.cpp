// SPDX-License-Identifier: Apache-2.0
#include "photo/tones.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace photo {
namespace {

constexpr double kMost = 255;
constexpr std::size_t kColours = 3;
constexpr int kUnchanged = 100;  ///< per cent

// How bright red, green and blue look; their sum is 1.
constexpr std::array<double, kColours> kLuma = {0.2126, 0.7152, 0.0722};

using Curve = std::array<std::uint8_t, 256>;
using Matrix = std::array<std::array<double, kColours>, kColours>;

std::uint8_t to_byte(double value) {
  return static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0, kMost)));
}

// Gamma changes the tones between black and white, brightness all but white.
Curve make_curve(double gamma, double brightness) {
  Curve curve{};
  for (std::size_t i = 0; i < curve.size(); ++i) {
    const double bent = std::pow(static_cast<double>(i) / kMost, 1 / gamma);
    curve.at(i) = to_byte(kMost * (1 - (1 - bent) / brightness));
  }
  return curve;
}

Matrix make_saturation(double share) {
  Matrix matrix{};
  for (std::size_t row = 0; row < kColours; ++row) {
    for (std::size_t column = 0; column < kColours; ++column) {
      matrix.at(row).at(column) = (1 - share) * kLuma.at(column) + (row == column ? share : 0);
    }
  }
  return matrix;
}

// Turns colours around the axis of greys.
Matrix make_hue(double degrees) {
  constexpr double kHalfTurn = 180;
  const double angle = degrees * std::numbers::pi / kHalfTurn;
  const double along = (1 - std::cos(angle)) / static_cast<double>(kColours);
  const double across = std::sin(angle) / std::numbers::sqrt3;
  Matrix matrix{};
  for (std::size_t row = 0; row < kColours; ++row) {
    matrix.at(row).at(row) = along + std::cos(angle);
    matrix.at(row).at((row + 1) % kColours) = along - across;
    matrix.at(row).at((row + 2) % kColours) = along + across;
  }
  return matrix;
}

void apply_matrix(const Matrix& matrix, Picture& picture) {
  for (std::size_t i = 0; i + 2 < picture.rgb.size(); i += kColours) {
    std::uint8_t* const rgb = &picture.rgb[i];
    const std::array<double, kColours> from = {
        static_cast<double>(rgb[0]), static_cast<double>(rgb[1]), static_cast<double>(rgb[2])};
    for (std::size_t row = 0; row < kColours; ++row) {
      const auto& weights = matrix.at(row);
      rgb[row] = to_byte(weights[0] * from[0] + weights[1] * from[1] + weights[2] * from[2]);
    }
  }
}

}  // namespace

void turn_grey(std::uint8_t* rgb, std::size_t pixels) {
  constexpr double kHalf = 0.5;
  for (std::size_t i = 0; i < pixels; ++i, rgb += kColours) {
    const double bright = kLuma[0] * rgb[0] + kLuma[1] * rgb[1] + kLuma[2] * rgb[2];
    std::fill_n(rgb, kColours, static_cast<std::uint8_t>(bright + kHalf));
  }
}

void apply_tones(const JobWishes& wishes, Picture& picture) {
  if (wishes.grey) {
    turn_grey(picture.rgb.data(), picture.rgb.size() / kColours);
  } else {
    if (wishes.saturation != kUnchanged) {
      apply_matrix(make_saturation(static_cast<double>(wishes.saturation) / kUnchanged), picture);
    }
    if (wishes.hue != 0) {
      apply_matrix(make_hue(wishes.hue), picture);
    }
  }
  if (wishes.gamma != 1 || wishes.brightness != 1) {
    const Curve curve = make_curve(wishes.gamma, wishes.brightness);
    for (std::uint8_t& sample : picture.rgb) {
      sample = curve.at(sample);
    }
  }
}

}  // namespace photo
