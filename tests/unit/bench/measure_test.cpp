// SPDX-License-Identifier: Apache-2.0
//
// The measuring itself: spreads, distances from neutral, Little CMS's transforms as the truth.
#include <gtest/gtest.h>

#include <numeric>
#include <set>
#include <vector>

#include "bench/colour/colour_figures.h"
#include "bench/colour/test_pictures.h"

namespace {

TEST(Spread, SaysMeanLargestAndTheValueThatNinetyFiveOfAHundredDoNotExceed) {
  std::vector<double> values(100);
  std::iota(values.rbegin(), values.rend(), 1.0);
  const bench::Spread spread = bench::spread_of(values);
  EXPECT_EQ(spread.count, 100U);
  EXPECT_EQ(spread.mean, 50.5);
  EXPECT_EQ(spread.percentile95, 95.0);
  EXPECT_EQ(spread.largest, 100.0);
}

TEST(Spread, OfNothingIsWithinNoLimits) {
  EXPECT_FALSE(bench::within(bench::spread_of({}), bench::kRoundTripMost));
}

TEST(Spread, IsNotWithinLimitsWhenOneColourIsTooFarOff) {
  EXPECT_TRUE(bench::within({10, 0.1, 0.2, 2.0}, bench::kRoundTripMost));
  EXPECT_FALSE(bench::within({10, 0.1, 0.2, 2.1}, bench::kRoundTripMost));
}

TEST(FromNeutral, SaysTheFarthestChannelInThousandthsOfFullScale) {
  // The mean is 9010; 9030 is 20 of 16383 away.
  const std::vector<std::uint16_t> samples = {1, 1, 1, 9000, 9000, 9030};
  EXPECT_NEAR(bench::from_neutral(samples), 1.2489, 0.0001);
}

/// sRGB itself stands in for a printer: its colours can be worked out by hand.
class PrinterColours : public testing::Test {
 protected:
  const bench::PrinterColours screen_{cms::Profile(cmsCreate_sRGBProfile())};
};

TEST_F(PrinterColours, OnAnSrgbPrinterAreThePhotosOwn) {
  const std::vector<bench::Rgb8> colours = {{51, 102, 204}};
  const bench::DeviceColour device = screen_.device_of(colours).front();
  EXPECT_NEAR(device[0], 0.2, 1e-4);
  EXPECT_NEAR(device[1], 0.4, 1e-4);
  EXPECT_NEAR(device[2], 0.8, 1e-4);
}

TEST_F(PrinterColours, LookAsLabUnderD50SaysIt) {
  const std::vector<bench::DeviceColour> red = {{1.0, 0.0, 0.0}};
  const cmsCIELab look = screen_.look_of(red).front();
  EXPECT_NEAR(look.L, 54.29, 0.05);
  EXPECT_NEAR(look.a, 80.81, 0.05);
  EXPECT_NEAR(look.b, 69.89, 0.05);
}

TEST_F(PrinterColours, BeyondTheDeviceAreNotClippedAndNotPrintable) {
  const bench::DeviceColour cyan = screen_.device_for({50.0, -80.0, 0.0});
  EXPECT_LT(cyan[0], -0.1);
  EXPECT_FALSE(bench::printable(cyan));
  EXPECT_TRUE(bench::printable(bench::clipped(cyan)));
}

TEST(TestPictures, ThePhotoHasSkyAboveAndIsGrainy) {
  const bench::Picture photo = bench::photo(300, 200);
  EXPECT_GT(photo.pixels[1530][2], photo.pixels[1530][0]);
  EXPECT_GT(std::set<bench::Rgb8>(photo.pixels.begin(), photo.pixels.end()).size(), 10000U);
}

}  // namespace
