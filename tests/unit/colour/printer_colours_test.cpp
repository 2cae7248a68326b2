// SPDX-License-Identifier: Apache-2.0
//
// Little CMS's floating-point transforms as the truth: they do not clip, and both ways agree.
#include "bench/printer_colours.h"

#include <gtest/gtest.h>

#include "bench/table_profile.h"
#include "bench/test_colours.h"

namespace {

using bench::DeviceColour;
using bench::Rgb8;

/// sRGB itself stands in for a printer: its colours can be worked out by hand.
class PrinterColours : public testing::Test {
 protected:
  const bench::PrinterColours screen{bench::saved(bench::srgb_profile())};
};

TEST_F(PrinterColours, OnAnSrgbPrinterAreThePhotosOwn) {
  const std::vector<Rgb8> colours = {{255, 255, 255}, {0, 0, 0}, {51, 102, 204}};
  const std::vector<DeviceColour> devices = screen.device_of(colours);
  EXPECT_NEAR(devices[0][1], 1.0, 1e-4);
  EXPECT_NEAR(devices[1][1], 0.0, 1e-4);
  EXPECT_NEAR(devices[2][0], 0.2, 1e-4);
  EXPECT_NEAR(devices[2][1], 0.4, 1e-4);
  EXPECT_NEAR(devices[2][2], 0.8, 1e-4);
}

TEST_F(PrinterColours, PrintAsLabUnderD50) {
  const std::vector<DeviceColour> red = {{1.0, 0.0, 0.0}};
  const bench::Lab print = screen.print_of(red).front();
  EXPECT_NEAR(print.lightness, 54.29, 0.05);
  EXPECT_NEAR(print.a, 80.81, 0.05);
  EXPECT_NEAR(print.b, 69.89, 0.05);
}

TEST_F(PrinterColours, BeyondThePrinterAreNotClipped) {
  const std::vector<bench::Lab> cyan = {{50.0, -80.0, 0.0}};
  EXPECT_LT(screen.device_for(cyan).front()[0], -0.1);
}

TEST(Printable, IsWhatLiesWithinTheDevicesEnds) {
  EXPECT_TRUE(bench::printable({0.0, 0.5, 1.0}));
  EXPECT_TRUE(bench::printable({-0.000001, 0.5, 1.000001}));
  EXPECT_FALSE(bench::printable({-0.001, 0.5, 1.0}));
  EXPECT_FALSE(bench::printable({0.0, 0.5, 1.001}));
}

TEST(DeviceOfSamples, CountsFromBlackToTheEnginesWhite) {
  const std::uint16_t samples[] = {0, 0x3FFF, 8192};
  const DeviceColour device = bench::device_of_samples(samples);
  EXPECT_EQ(device[0], 0.0);
  EXPECT_EQ(device[1], 1.0);
  EXPECT_NEAR(device[2], 0.50003, 0.00001);
}

TEST(TableProfile, IsATableBothWaysAndNoMatrix) {
  const bench::Profile profile = bench::opened(bench::table_profile());
  EXPECT_EQ(cmsGetColorSpace(profile.get()), cmsSigRgbData);
  EXPECT_NE(cmsIsCLUT(profile.get(), INTENT_RELATIVE_COLORIMETRIC, LCMS_USED_AS_INPUT), 0);
  EXPECT_NE(cmsIsCLUT(profile.get(), INTENT_RELATIVE_COLORIMETRIC, LCMS_USED_AS_OUTPUT), 0);
  EXPECT_EQ(cmsIsMatrixShaper(profile.get()), 0);
}

TEST(TableProfile, PrintsWhiteAsPaperAndFullDyesAsADeepNeutral) {
  const bench::PrinterColours printer(bench::table_profile());
  const std::vector<DeviceColour> ends = {{1.0, 1.0, 1.0}, {0.0, 0.0, 0.0}};
  const std::vector<bench::Lab> prints = printer.print_of(ends);
  EXPECT_NEAR(prints[0].lightness, 100.0, 0.01);
  // Each band reflects 10^(−1.9 × 1.26), a light of 0.0040: L* 3.6.
  EXPECT_NEAR(prints[1].lightness, 3.62, 0.05);
  EXPECT_NEAR(prints[1].a, 0.0, 0.05);
}

}  // namespace
