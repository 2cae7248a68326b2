// SPDX-License-Identifier: Apache-2.0
//
// The matte band of a call: all of it is textured as an eye would have it, with grain but no
// clouds, no repeat and no direction, and the image does not depend on it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

#include "tests/unit/conversion/spectrum.h"
#include "tests/unit/conversion/test_page.h"

namespace {

constexpr std::size_t kWidth = 20;
constexpr std::size_t kHeight = 10;

/// What a call with a matte band left in its two bands.
struct MattePage {
  std::vector<unsigned char> image;
  std::vector<unsigned char> matte;
};

MattePage convert_matte(std::size_t matteWidth, std::size_t matteHeight, unsigned char picture,
                        const tagMVChangeParams& params = plain_params()) {
  TestBand source(kWidth, kHeight, 3, {.canary = picture});
  TestBand destination(kWidth, kHeight, 6);
  // As the filter makes it: every byte 0xFF.
  TestBand matte(matteWidth, matteHeight, 1, {.padding = 3, .canary = 0xFF});
  unsigned char rates[2] = {};
  EXPECT_EQ(MVChangeImage(&source.record, &params, &destination.record, &matte.record, &rates[0],
                          &rates[1]),
            0);
  EXPECT_TRUE(matte.surroundingsUntouched());
  return {destination.pixels(), matte.pixels()};
}

/// A texture of 640 × 640 dots, as a call with a picture far smaller leaves it.
constexpr std::size_t kSheet = 640;
const std::vector<unsigned char>& sheet() {
  static const std::vector<unsigned char> made = convert_matte(kSheet, kSheet, 77).matte;
  return made;
}

/// The mean periodogram of five windows of 256 × 256 dots, each faded out towards its edges, at
/// places that have nothing to do with the texture's own size.
const Square& spectrum() {
  static const Square mean = [] {
    Square sum(256);
    const std::size_t places[5][2] = {{0, 0}, {131, 57}, {384, 384}, {29, 301}, {333, 190}};
    for (const auto& place : places) {
      const Square power = power_of(faded(cut_out(sheet(), kSheet, place[0], place[1], 256)));
      for (std::size_t i = 0; i < sum.values.size(); ++i) {
        sum.values[i] += power.values[i] / 5;
      }
    }
    return sum;
  }();
  return mean;
}

/// How alike 256 × 256 dots of the sheet are to themselves moved by each distance.
const Square& likeness() {
  static const Square made = likeness_of(cut_out(sheet(), kSheet, 70, 200, 256));
  return made;
}

/// The mean energy from 1/4 to 1/2 cycle a dot of the directions within 15° of `degrees`.
double energy_towards(double degrees) {
  double sum = 0;
  double count = 0;
  for (std::size_t y = 0; y < 128; ++y) {
    for (std::size_t x = 0; x < 256; ++x) {
      const double across = x < 128 ? static_cast<double>(x) : static_cast<double>(x) - 256;
      const double f = std::hypot(across, static_cast<double>(y)) / 256;
      const double angle = std::atan2(static_cast<double>(y), across) * 180 / std::numbers::pi;
      const double away = std::fabs(angle - degrees);
      if (f >= 0.25 && f < 0.5 && std::min(away, 180 - away) <= 15) {
        sum += spectrum().at(x, y);
        ++count;
      }
    }
  }
  return sum / count;
}

TEST(PageMatte, BelowASixteenthCycleADotThereIsNextToNothingOfWhiteNoisesEnergy) {
  // 0.35 would do for a matte sheet without clouds; the void-and-cluster method reaches 0.00008.
  EXPECT_LE(energy_against_white(spectrum(), 0, 1.0 / 16), 0.0002);
}

TEST(PageMatte, EnergyRisesFromTheCoarseToTheFine) {
  EXPECT_LT(energy_against_white(spectrum(), 1.0 / 16, 1.0 / 8), 0.001);
  EXPECT_LT(energy_against_white(spectrum(), 1.0 / 8, 3.0 / 16), 0.005);
  EXPECT_LT(energy_against_white(spectrum(), 3.0 / 16, 1.0 / 4), 0.03);
  EXPECT_LT(energy_against_white(spectrum(), 1.0 / 4, 5.0 / 16), 0.2);
  EXPECT_GT(energy_against_white(spectrum(), 3.0 / 8, 1.0 / 2), 1.5);
}

TEST(PageMatte, NoFrequencyStandsOutAsALine) {
  // The largest of 65536 values of a random texture lies about 11 times above their mean.
  const auto& all = spectrum().values;
  const double mean = std::accumulate(all.begin(), all.end(), 0.0) / 65536;
  EXPECT_LT(*std::max_element(all.begin(), all.end()), 15 * mean);
}

TEST(PageMatte, NoDirectionStandsOut) {
  const double across = energy_towards(0);
  EXPECT_NEAR(energy_towards(30) / across, 1.0, 0.1);
  EXPECT_NEAR(energy_towards(60) / across, 1.0, 0.1);
  EXPECT_NEAR(energy_towards(90) / across, 1.0, 0.1);
  EXPECT_NEAR(energy_towards(120) / across, 1.0, 0.1);
  EXPECT_NEAR(energy_towards(150) / across, 1.0, 0.1);
}

TEST(PageMatte, NeighboursAreContraryAsFineGrainHasIt) {
  EXPECT_LT(likeness().at(1, 0), -0.2);
  EXPECT_LT(likeness().at(0, 1), -0.2);
}

TEST(PageMatte, TheTextureIsLikeItselfMovedByNoDistanceFromTwoTo127DotsAnyWay) {
  for (int dy = 0; dy <= 127; ++dy) {
    for (int dx = -127; dx <= 127; ++dx) {
      if (std::max(std::abs(dx), dy) >= 2) {
        const auto x = static_cast<std::size_t>((dx + 512) % 512);
        ASSERT_LT(std::fabs(likeness().at(x, static_cast<std::size_t>(dy))), 0.1)
            << dx << " columns, " << dy << " rows";
      }
    }
  }
}

TEST(PageMatte, EachLineOfTheBandIsTexturedAlsoThoseBelowTheImage) {
  const auto matte = convert_matte(30, kHeight + 12, 77).matte;
  for (std::size_t y = 0; y < kHeight + 12; ++y) {
    const auto [low, high] = std::minmax_element(&matte[y * 30], &matte[y * 30] + 30);
    EXPECT_LT(int{*low}, 150) << "line " << y;
    EXPECT_GT(int{*high}, 168) << "line " << y;
  }
}

TEST(PageMatte, EachColumnOfTheBandIsTexturedAlsoThoseBesideTheImage) {
  const auto matte = convert_matte(30, kHeight + 12, 77).matte;
  for (std::size_t x = 0; x < 30; ++x) {
    int low = 255;
    for (std::size_t y = 0; y < kHeight + 12; ++y) {
      low = std::min(low, int{matte[y * 30 + x]});
    }
    EXPECT_LT(low, 150) << "column " << x;
  }
}

TEST(PageMatte, TheTextureDoesNotDependOnThePicture) {
  EXPECT_EQ(convert_matte(30, 22, 0).matte, convert_matte(30, 22, 255).matte);
}

TEST(PageMatte, TheTextureDoesNotDependOnTheSettings) {
  tagMVChangeParams params = plain_params();
  params.dwFlags |= kChangeFlagSharpness | kChangeFlagColorConversion;
  params.nSharpness = 6;
  params.nTone[0] = 5;
  params.nTone[6] = -100;
  EXPECT_EQ(convert_matte(30, 22, 90, params).matte, convert_matte(30, 22, 90).matte);
}

TEST(PageMatte, TwoPrintsInARowGetTheSameTexture) {
  EXPECT_EQ(convert_matte(30, 22, 90).matte, convert_matte(30, 22, 90).matte);
}

TEST(PageMatte, ABandSmallerThanTheImageIsFilledAsWell) {
  const auto small = convert_matte(5, 4, 90).matte;
  const auto large = convert_matte(30, 22, 90).matte;
  for (std::size_t y = 0; y < 4; ++y) {
    EXPECT_TRUE(std::equal(&small[y * 5], &small[y * 5] + 5, &large[y * 30])) << "row " << y;
  }
}

TEST(PageMatte, TheImageIsTheSameWithAndWithoutAMatteBand) {
  TestBand source(kWidth, kHeight, 3, {.canary = 90});
  TestBand destination(kWidth, kHeight, 6);
  tagMVChangeParams params = plain_params();
  params.dwFlags |= kChangeFlagSharpness;
  unsigned char rates[2] = {};
  ASSERT_EQ(
      MVChangeImage(&source.record, &params, &destination.record, nullptr, &rates[0], &rates[1]),
      0);
  EXPECT_EQ(destination.pixels(), convert_matte(30, 22, 90, params).image);
}

}  // namespace
