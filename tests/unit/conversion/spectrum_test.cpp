// SPDX-License-Identifier: Apache-2.0
//
// The measuring instrument itself, on squares whose spectrum is known.
#include "tests/unit/conversion/spectrum.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace {

/// Random bytes, the same in each run.
std::vector<unsigned char> white_noise(std::size_t side) {
  std::mt19937 random(20);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same in each run on purpose
  std::vector<unsigned char> plane(side * side);
  for (unsigned char& value : plane) {
    value = static_cast<unsigned char>(random() >> 24);
  }
  return plane;
}

Square wave(std::size_t side, double cyclesAcross, double cyclesDown) {
  Square square(side);
  for (std::size_t y = 0; y < side; ++y) {
    for (std::size_t x = 0; x < side; ++x) {
      square.at(x, y) =
          std::cos(2 * std::numbers::pi / static_cast<double>(side) *
                   (cyclesAcross * static_cast<double>(x) + cyclesDown * static_cast<double>(y)));
    }
  }
  return square;
}

TEST(Spectrum, AWaveHasItsEnergyAtItsOwnFrequencyAndNowhereElse) {
  const Square power = power_of(wave(16, 3, 2));
  for (std::size_t y = 0; y < 16; ++y) {
    for (std::size_t x = 0; x < 16; ++x) {
      // Half of 16 × 16 at (3, 2) and at its mirror place (−3, −2), squared.
      const bool here = (x == 3 && y == 2) || (x == 13 && y == 14);
      EXPECT_NEAR(power.at(x, y), here ? 16384.0 : 0.0, 1e-6) << x << ", " << y;
    }
  }
}

TEST(Spectrum, WhiteNoiseMeasuresAsOneAtEveryFrequency) {
  const std::vector<unsigned char> noise = white_noise(768);
  Square sum(256);
  for (std::size_t window = 0; window < 9; ++window) {
    const Square power =
        power_of(faded(cut_out(noise, 768, window % 3 * 256, window / 3 * 256, 256)));
    for (std::size_t i = 0; i < sum.values.size(); ++i) {
      sum.values[i] += power.values[i];
    }
  }
  EXPECT_NEAR(energy_against_white(sum, 0, 1.0 / 16), 1.0, 0.08);
  EXPECT_NEAR(energy_against_white(sum, 1.0 / 16, 1.0 / 8), 1.0, 0.04);
  EXPECT_NEAR(energy_against_white(sum, 1.0 / 8, 1.0 / 4), 1.0, 0.02);
  EXPECT_NEAR(energy_against_white(sum, 1.0 / 4, 1.0), 1.0, 0.02);
}

TEST(Spectrum, AWaveOfThirteenDotsCountsBelowATwelfthAndNotBelowASixteenth) {
  const Square power = power_of(faded(wave(256, 0, 256.0 / 13)));
  EXPECT_GT(energy_against_white(power, 0, 1.0 / 12), 40.0);
  EXPECT_LT(energy_against_white(power, 0, 1.0 / 16), 0.001);
}

TEST(Spectrum, WhiteNoiseIsLikeItselfOnlyWhereItIsNotMoved) {
  const Square likeness = likeness_of(cut_out(white_noise(256), 256, 0, 0, 256));
  EXPECT_NEAR(likeness.at(0, 0), 1.0, 1e-9);
  EXPECT_NEAR(likeness.at(1, 0), 0.0, 0.02);
  EXPECT_NEAR(likeness.at(100, 127), 0.0, 0.03);
}

TEST(Spectrum, APatternOfFiveColumnsAndSevenRowsIsFoundAgainThere) {
  std::vector<unsigned char> pattern(4096);
  for (std::size_t y = 0; y < 64; ++y) {
    for (std::size_t x = 0; x < 64; ++x) {
      pattern[y * 64 + x] = (x % 5 == 0 && y % 7 == 0) ? 255 : 0;
    }
  }
  const Square likeness = likeness_of(cut_out(pattern, 64, 0, 0, 64));
  EXPECT_GT(likeness.at(5, 7), 0.95);
  EXPECT_GT(likeness.at(128 - 5, 7), 0.95);
  EXPECT_LT(likeness.at(4, 7), 0.1);
}

}  // namespace
