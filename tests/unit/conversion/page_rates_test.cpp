// SPDX-License-Identifier: Apache-2.0
//
// The rates that a call reports.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/unit/conversion/test_page.h"

namespace {

TEST(PageRates, AWhitePageHasRgbRateZeroAndABlackOneHundred) {
  const auto white = [](std::size_t, std::size_t) {
    return std::array<unsigned char, 3>{255, 255, 255};
  };
  const auto black = [](std::size_t, std::size_t) { return std::array<unsigned char, 3>{0, 0, 0}; };
  EXPECT_EQ(convert(5, 4, plain_params(), white).rgbRate, 0);
  EXPECT_EQ(convert(5, 4, plain_params(), black).rgbRate, 100);
}

TEST(PageRates, AllThreeChannelsCountAlike) {
  const auto red = [](std::size_t, std::size_t) { return std::array<unsigned char, 3>{255, 0, 0}; };
  EXPECT_EQ(convert(5, 4, plain_params(), red).rgbRate, 67);
}

TEST(PageRates, TheRateIsOfTheSamplesSentNotOfThePictureThatCame) {
  const auto grey = [](std::size_t, std::size_t) {
    return std::array<unsigned char, 3>{128, 128, 128};
  };
  tagMVChangeParams lighter = plain_params();
  lighter.nTone[6] = lighter.nTone[7] = lighter.nTone[8] = 128;
  EXPECT_EQ(convert(5, 4, plain_params(), grey).rgbRate, 50);  // 8224 of 16383
  EXPECT_EQ(convert(5, 4, lighter, grey).rgbRate, 20);         // 13127 of 16383
}

TEST(PageRates, SharpenedPagesCountTheirSharpenedSamples) {
  // A black dot on light grey: its surroundings are lightened up to white at most.
  const auto dot = [](std::size_t x, std::size_t y) {
    return x == 2 && y == 2 ? std::array<unsigned char, 3>{0, 0, 0}
                            : std::array<unsigned char, 3>{200, 200, 200};
  };
  tagMVChangeParams params = plain_params();
  params.dwFlags |= kChangeFlagSharpness;
  params.nSharpness = 6;
  const Converted page = convert(5, 5, params, dot);
  double sum = 0;
  for (const std::uint16_t sample : page.samples) {
    sum += 1.0 - sample / 16383.0;
  }
  EXPECT_NEAR(page.rgbRate, 100.0 * sum / 75.0, 0.5);
  EXPECT_NE(page.rgbRate, convert(5, 5, plain_params(), dot).rgbRate);
}

TEST(PageRates, WithoutAMatteBandTheOvercoatIsFull) {
  EXPECT_EQ(convert(3, 3, plain_params(), busy_picture).opRate, 100);
}

TEST(PageRates, WithAMatteBandTheOvercoatRateIsItsMean) {
  TestBand source(40, 30, 3);
  TestBand destination(40, 30, 6);
  TestBand matte(40, 42, 1);
  const tagMVChangeParams params = plain_params();
  unsigned char rgbRate = 0;
  unsigned char opRate = 0;
  ASSERT_EQ(
      MVChangeImage(&source.record, &params, &destination.record, &matte.record, &rgbRate, &opRate),
      0);
  double sum = 0;
  for (const unsigned char byte : matte.pixels()) {
    sum += byte / 255.0;
  }
  EXPECT_NEAR(opRate, 100.0 * sum / (40.0 * 42.0), 0.5);
  EXPECT_EQ(opRate, 63);
}

}  // namespace
