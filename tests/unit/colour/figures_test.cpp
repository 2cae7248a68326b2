// SPDX-License-Identifier: Apache-2.0
//
// The figures that the colours are held to, through the shared library and the profile that lies
// beside it. bench/run-colour prints the same figures of more colours.
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

#include "bench/colour_figures.h"
#include "bench/little_cms.h"
#include "bench/module_folder.h"
#include "bench/page_conversion.h"
#include "bench/table_profile.h"
#include "bench/test_colours.h"
#include "bench/test_pictures.h"

namespace {

namespace target = bench::target;
using bench::Rgb8;
using bench::Spread;

constexpr std::array<std::uint16_t, 3> kWhite = {0x3FFF, 0x3FFF, 0x3FFF};
const std::string kModuleFolder = TQR7_MODULE_FOLDER;

/// The printer as it is delivered.
class ColourFigures : public testing::Test {
 protected:
  const bench::ProfileBytes profile = bench::read_profile(kModuleFolder + "tqr7.icc");
  const bench::MeasuredPrinter printer{kModuleFolder, bench::PrinterColours(profile)};

  void expect_round_trip(const std::vector<Rgb8>& colours, std::size_t leastPrintable) const {
    std::string why;
    const auto proof = decoder::SoftProof::Through(profile, why);
    ASSERT_NE(proof, nullptr) << why;
    const Spread spread = bench::round_trip(colours, printer, *proof);
    EXPECT_GE(spread.count, leastPrintable);
    EXPECT_LE(spread.mean, target::kRoundTripMean);
    EXPECT_LE(spread.percentile95, target::kRoundTripPercentile95);
    EXPECT_LE(spread.largest, target::kRoundTripLargest);
  }

  void expect_profile(const std::vector<Rgb8>& colours) const {
    const Spread spread = bench::against_profile(colours, printer);
    EXPECT_EQ(spread.count, colours.size());
    EXPECT_LE(spread.mean, target::kProfileMean);
    EXPECT_LE(spread.largest, target::kProfileLargest);
  }
};

TEST_F(ColourFigures, AColourCheckerComesBackFromThePrint) {
  expect_round_trip(bench::colour_checker(), 20);
}

TEST_F(ColourFigures, GreysComeBackFromThePrint) {
  expect_round_trip(bench::grey_ramp(), 256);
}

TEST_F(ColourFigures, APhotoComesBackFromThePrint) {
  expect_round_trip(bench::photo(72, 48).pixels, 3000);
}

TEST_F(ColourFigures, AllPrintableColoursComeBackFromThePrint) {
  expect_round_trip(bench::random_colours(8000), 4000);
}

TEST_F(ColourFigures, AColourCheckerIsPrintedAsTheProfileAsks) {
  expect_profile(bench::colour_checker());
}

TEST_F(ColourFigures, GreysArePrintedAsTheProfileAsks) {
  expect_profile(bench::grey_ramp());
}

TEST_F(ColourFigures, APhotoIsPrintedAsTheProfileAsks) {
  expect_profile(bench::photo(72, 48).pixels);
}

TEST_F(ColourFigures, AllColoursArePrintedAsTheProfileAsks) {
  expect_profile(bench::random_colours(8000));
}

TEST_F(ColourFigures, AnOwnersTableProfileIsFollowed) {
  const bench::ProfileBytes own = bench::table_profile();
  const bench::ModuleFolder folder(own);
  const Spread spread = bench::against_profile(bench::random_colours(8000),
                                               {folder.path(), bench::PrinterColours(own)});
  EXPECT_EQ(spread.count, 8000U);
  EXPECT_LE(spread.mean, target::kProfileMean);
  EXPECT_LE(spread.largest, target::kTableProfileLargest);
}

TEST(GreyFigures, ConversionOnKeepsWhiteWhiteAndGreysRisingAndNeutral) {
  const bench::GreyAxis axis = bench::grey_axis(true, kModuleFolder);
  EXPECT_EQ(axis.white, kWhite);
  EXPECT_TRUE(axis.rising);
  EXPECT_LE(axis.fromNeutral, target::kFromNeutral);
}

TEST(GreyFigures, ConversionOffKeepsWhiteWhiteAndGreysRisingAndNeutral) {
  const bench::GreyAxis axis = bench::grey_axis(false, kModuleFolder);
  EXPECT_EQ(axis.white, kWhite);
  EXPECT_TRUE(axis.rising);
  EXPECT_LE(axis.fromNeutral, target::kFromNeutral);
}

TEST(GreyFigures, AnOwnersTableProfileKeepsWhiteWhite) {
  const bench::ModuleFolder folder(bench::table_profile());
  EXPECT_EQ(bench::grey_axis(true, folder.path()).white, kWhite);
}

double sharpened_from_neutral(const bench::Picture& picture) {
  bench::PrintSettings settings;
  settings.sharpness = bench::kSharpnessNormal;
  settings.moduleFolder = kModuleFolder;
  return bench::from_neutral(bench::converted(picture, settings));
}

TEST(GreyFigures, SharpenedTextStaysNeutral) {
  EXPECT_LE(sharpened_from_neutral(bench::text()), target::kFromNeutral);
}

TEST(GreyFigures, ASharpenedZonePlateStaysNeutral) {
  EXPECT_LE(sharpened_from_neutral(bench::zone_plate(256)), target::kFromNeutral);
}

TEST(DetailFigures, NormalSharpeningHardlyRaisesNoise) {
  EXPECT_LE(bench::noise_gain(bench::kSharpnessNormal), target::kNoiseGain);
}

TEST(DetailFigures, TheMatteTextureHasLittlePowerWhereTheEyeWouldSeeClouds) {
  EXPECT_LE(bench::texture_low_power(), target::kTextureLowPower);
}

}  // namespace
