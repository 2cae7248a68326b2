// SPDX-License-Identifier: Apache-2.0
//
// The figures that the colours are held to, through the shared library and the profile that lies
// beside it. bench/run-colour prints the same figures of more colours.
#include "bench/colour/colour_figures.h"

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <ostream>
#include <string>

#include "bench/colour/page_conversion.h"
#include "bench/colour/test_pictures.h"
#include "tests/unit/profile_maker.h"
#include "tests/unit/temp_file.h"

namespace bench {

void PrintTo(const Spread& spread, std::ostream* out) {
  *out << spread.count << " colours, mean " << spread.mean << ", 95 % within "
       << spread.percentile95 << ", largest " << spread.largest;
}

}  // namespace bench

namespace {

using bench::Rgb8;
using bench::Spread;

const std::string kModuleFolder = TQR7_MODULE_FOLDER;

/// The printer as it is delivered.
class ColourFigures : public testing::Test {
 protected:
  Spread round_trip(const std::vector<Rgb8>& colours) const {
    std::string why;
    const auto proof = decoder::SoftProof::Through(profile_, why);
    EXPECT_NE(proof, nullptr) << why;
    return proof == nullptr ? Spread{} : bench::round_trip(colours, printer_, *proof);
  }

  Spread against_profile(const std::vector<Rgb8>& colours) const {
    return bench::against_profile(colours, printer_);
  }

 private:
  const ProfileBytes profile_ = bench::read_profile(kModuleFolder + "tqr7.icc");
  const bench::MeasuredPrinter printer_{kModuleFolder,
                                        bench::PrinterColours(bench::profile_of(profile_))};
};

void expect_within(const Spread& spread, const Spread& most, std::size_t least_count) {
  EXPECT_GE(spread.count, least_count);
  EXPECT_PRED2(bench::within, spread, most);
}

TEST_F(ColourFigures, AColourCheckerComesBackFromThePrint) {
  expect_within(round_trip(bench::colour_checker()), bench::kRoundTripMost, 20);
}

TEST_F(ColourFigures, GreysComeBackFromThePrint) {
  expect_within(round_trip(bench::grey_ramp()), bench::kRoundTripMost, 256);
}

TEST_F(ColourFigures, APhotoComesBackFromThePrint) {
  expect_within(round_trip(bench::photo(72, 48).pixels), bench::kRoundTripMost, 3000);
}

TEST_F(ColourFigures, AllPrintableColoursComeBackFromThePrint) {
  expect_within(round_trip(bench::random_colours(8000)), bench::kRoundTripMost, 4000);
}

TEST_F(ColourFigures, AColourCheckerIsPrintedAsTheProfileAsks) {
  expect_within(against_profile(bench::colour_checker()), bench::kProfileMost, 24);
}

TEST_F(ColourFigures, GreysArePrintedAsTheProfileAsks) {
  expect_within(against_profile(bench::grey_ramp()), bench::kProfileMost, 256);
}

TEST_F(ColourFigures, APhotoIsPrintedAsTheProfileAsks) {
  expect_within(against_profile(bench::photo(72, 48).pixels), bench::kProfileMost, 3456);
}

TEST_F(ColourFigures, AllColoursArePrintedAsTheProfileAsks) {
  expect_within(against_profile(bench::random_colours(8000)), bench::kProfileMost, 8000);
}

/// A folder with the table profile of an owner who has measured the printer.
class OwnersProfile : public testing::Test {
 protected:
  OwnersProfile() {
    std::ofstream(owners_ / "tqr7.icc", std::ios::binary)
        .write(reinterpret_cast<const char*>(profile_.data()),
               static_cast<std::streamsize>(profile_.size()));
  }

  const ProfileBytes profile_ = dye_profile({.grid = 33});
  const TempFolder owners_;
  const std::string folder_ = owners_ / "";
};

TEST_F(OwnersProfile, IsFollowed) {
  const Spread spread = bench::against_profile(
      bench::random_colours(8000), {folder_, bench::PrinterColours(bench::profile_of(profile_))});
  expect_within(spread, bench::kTableProfileMost, 8000);
}

TEST_F(OwnersProfile, KeepsWhiteWhite) {
  EXPECT_EQ(bench::grey_axis(true, folder_).white, 0);
}

TEST(GreyFigures, KeepWhiteWhiteAndGreysRisingAndNeutralWithAndWithoutConversion) {
  for (const bool conversion : {true, false}) {
    const bench::GreyAxis axis = bench::grey_axis(conversion, kModuleFolder);
    EXPECT_EQ(axis.white, 0);
    EXPECT_EQ(axis.level, 0);
    EXPECT_LE(axis.from_neutral, bench::kFromNeutralMost);
  }
}

TEST(GreyFigures, StayNeutralThroughSharpening) {
  EXPECT_LE(bench::sharpened_from_neutral(kModuleFolder), bench::kFromNeutralMost);
}

TEST(DetailFigures, NormalSharpeningHardlyRaisesNoise) {
  EXPECT_LE(bench::noise_gain(), bench::kNoiseGainMost);
}

}  // namespace
