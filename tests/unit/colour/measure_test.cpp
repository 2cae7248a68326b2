// SPDX-License-Identifier: Apache-2.0
//
// The measuring itself: spreads, spectra, distances from neutral, the plain unsharp mask.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include "bench/colour_figures.h"
#include "bench/plain_unsharp_mask.h"
#include "bench/spread.h"
#include "bench/texture_spectrum.h"

namespace {

TEST(Spread, TellsMeanLargestAndTheValueThatNinetyFiveOfAHundredDoNotExceed) {
  std::vector<double> values;
  for (int i = 100; i > 0; --i) {
    values.push_back(i);
  }
  const bench::Spread spread = bench::spread_of(values);
  EXPECT_EQ(spread.count, 100U);
  EXPECT_EQ(spread.mean, 50.5);
  EXPECT_EQ(spread.percentile95, 95.0);
  EXPECT_EQ(spread.largest, 100.0);
}

TEST(Spread, OfNothingIsZero) {
  EXPECT_EQ(bench::spread_of({}).count, 0U);
}

TEST(Median, IsTheMiddleOfAnOddNumberOfValues) {
  EXPECT_EQ(bench::median_of({9, 1, 5}), 5.0);
}

TEST(Median, IsBetweenTheMiddleTwoOfAnEvenNumber) {
  EXPECT_EQ(bench::median_of({9, 1, 5, 2}), 3.5);
}

TEST(FromNeutral, IsZeroForEqualChannels) {
  EXPECT_EQ(bench::from_neutral(std::vector<std::uint16_t>{5, 5, 5, 900, 900, 900}), 0.0);
}

TEST(FromNeutral, TellsTheFarthestChannelInThousandthsOfFullScale) {
  // The mean is 9010; 9030 is 20 of 16383 away.
  const std::vector<std::uint16_t> samples = {1, 1, 1, 9000, 9000, 9030};
  EXPECT_NEAR(bench::from_neutral(samples), 1.2489, 0.0001);
}

constexpr std::size_t kSide = 2 * bench::kSpectrumTile;

TEST(TextureSpectrum, OfWhiteNoiseIsFlat) {
  std::mt19937 random(7);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same noise in every run
  std::vector<unsigned char> plane(kSide * kSide);
  for (unsigned char& value : plane) {
    value = static_cast<unsigned char>(random() >> 24);
  }
  const auto spectrum = bench::radial_spectrum(plane, kSide, kSide);
  EXPECT_NEAR(bench::power_below(spectrum, 1.0 / 16.0), 1.0, 0.15);
  EXPECT_NEAR(bench::power_below(spectrum, 0.5), 1.0, 0.03);
}

TEST(TextureSpectrum, OfAWaveStandsAtItsFrequency) {
  std::vector<unsigned char> plane(kSide * kSide);
  for (std::size_t i = 0; i < plane.size(); ++i) {
    const double phase = 2.0 * std::numbers::pi * 32.0 / bench::kSpectrumTile;
    plane[i] = static_cast<unsigned char>(
        std::lround(128.0 + 100.0 * std::sin(phase * static_cast<double>(i % kSide))));
  }
  const auto spectrum = bench::radial_spectrum(plane, kSide, kSide);
  EXPECT_EQ(spectrum[31].frequency, 0.125);
  EXPECT_GT(spectrum[31].power, 50.0);
  EXPECT_LT(spectrum[40].power, 0.01);
  EXPECT_LT(bench::power_below(spectrum, 1.0 / 16.0), 0.01);
}

TEST(PlainUnsharpMask, LeavesAFlatPictureAlone) {
  const bench::Picture flat = bench::painted(9, 7, [](std::size_t, std::size_t) {
    return bench::Rgb8{10, 128, 250};
  });
  bench::Picture sharpened;
  bench::plain_unsharp_mask(flat, sharpened);
  EXPECT_EQ(sharpened.pixels, flat.pixels);
}

TEST(PlainUnsharpMask, RaisesALineByFiveEighthsOfItsDifferenceToTheBlur) {
  const bench::Picture line = bench::painted(9, 5, [](std::size_t x, std::size_t) {
    return x == 4 ? bench::Rgb8{116, 116, 116} : bench::Rgb8{100, 100, 100};
  });
  bench::Picture sharpened;
  bench::plain_unsharp_mask(line, sharpened);
  // The blur of the line is 100 + 16 × 6/16 = 106 on it, 104 beside it and 101 next to that.
  EXPECT_EQ(sharpened.pixels[2 * 9 + 4], (bench::Rgb8{122, 122, 122}));
  EXPECT_EQ(sharpened.pixels[2 * 9 + 3], (bench::Rgb8{98, 98, 98}));
  EXPECT_EQ(sharpened.pixels[2 * 9 + 2], (bench::Rgb8{100, 100, 100}));
  EXPECT_EQ(sharpened.pixels[2 * 9 + 1], (bench::Rgb8{100, 100, 100}));
}

}  // namespace
