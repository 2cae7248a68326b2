// SPDX-License-Identifier: Apache-2.0
//
// The tone sliders as the filter sends them: nine numbers in the parameter block.
#include <gtest/gtest.h>

#include <set>

#include "tests/unit/conversion/test_page.h"

namespace {

constexpr std::size_t kGamma = 0;
constexpr std::size_t kContrast = 3;
constexpr std::size_t kBrightness = 6;

Converted ramp_with(std::size_t tone, std::int16_t value) {
  tagMVChangeParams params = plain_params();
  params.nTone[tone] = value;
  return convert_grey_ramp(params);
}

TEST(PageTone, EachOfTheNineNumbersMovesItsOwnChannelOnly) {
  const auto plain = convert_grey_ramp(plain_params()).samples;
  for (std::size_t tone = 0; tone < 9; ++tone) {
    const auto toned = ramp_with(tone, 3).samples;
    for (std::size_t channel = 0; channel < 3; ++channel) {
      EXPECT_EQ(channel_of(toned, channel) != channel_of(plain, channel), channel == tone % 3)
          << "number " << tone << ", channel " << channel;
    }
  }
}

TEST(PageTone, TheFirstThreeNumbersAreGamma) {
  const auto red = channel_of(ramp_with(kGamma, 5).samples, 0);
  EXPECT_EQ(red[0], 0);
  EXPECT_EQ(red[48], 5030);
  EXPECT_EQ(red[128], 10063);
  EXPECT_EQ(red[208], 14185);
  EXPECT_EQ(red[255], 16383);
}

TEST(PageTone, TheNextThreeNumbersAreContrast) {
  const auto green = channel_of(ramp_with(kContrast + 1, 64).samples, 1);
  EXPECT_EQ(green[0], 0);
  EXPECT_EQ(green[48], 836);
  EXPECT_EQ(green[128], 8256);
  EXPECT_EQ(green[208], 15587);
  EXPECT_EQ(green[255], 16383);
}

TEST(PageTone, TheLastThreeNumbersAreBrightness) {
  const auto blue = channel_of(ramp_with(kBrightness + 2, -64).samples, 2);
  EXPECT_EQ(blue[0], 0);
  EXPECT_EQ(blue[48], 1702);
  EXPECT_EQ(blue[128], 5490);
  EXPECT_EQ(blue[208], 11284);
  EXPECT_EQ(blue[255], 16383);
}

TEST(PageTone, NumbersBeyondAnEndCountAsThatEnd) {
  EXPECT_EQ(ramp_with(kGamma, 6).samples, ramp_with(kGamma, 5).samples);
  EXPECT_EQ(ramp_with(kGamma, 32767).samples, ramp_with(kGamma, 5).samples);
  EXPECT_EQ(ramp_with(kGamma, -32768).samples, ramp_with(kGamma, -5).samples);
  EXPECT_EQ(ramp_with(kContrast, 129).samples, ramp_with(kContrast, 128).samples);
  EXPECT_EQ(ramp_with(kContrast, 32767).samples, ramp_with(kContrast, 128).samples);
  EXPECT_EQ(ramp_with(kContrast, -32768).samples, ramp_with(kContrast, -128).samples);
  EXPECT_EQ(ramp_with(kBrightness, 129).samples, ramp_with(kBrightness, 128).samples);
  EXPECT_EQ(ramp_with(kBrightness, 32767).samples, ramp_with(kBrightness, 128).samples);
  EXPECT_EQ(ramp_with(kBrightness, -32768).samples, ramp_with(kBrightness, -128).samples);
}

TEST(PageTone, TheEndsThemselvesAreNotCutShort) {
  EXPECT_NE(ramp_with(kGamma, 4).samples, ramp_with(kGamma, 5).samples);
  EXPECT_NE(ramp_with(kGamma, -4).samples, ramp_with(kGamma, -5).samples);
  EXPECT_NE(ramp_with(kContrast, 127).samples, ramp_with(kContrast, 128).samples);
  EXPECT_NE(ramp_with(kContrast, -127).samples, ramp_with(kContrast, -128).samples);
  EXPECT_NE(ramp_with(kBrightness, 127).samples, ramp_with(kBrightness, 128).samples);
  EXPECT_NE(ramp_with(kBrightness, -127).samples, ramp_with(kBrightness, -128).samples);
}

TEST(PageTone, AllThreeTogetherFollowTheOrderGammaContrastBrightness) {
  tagMVChangeParams params = plain_params();
  params.nTone[kGamma] = 3;
  params.nTone[kContrast] = 40;
  params.nTone[kBrightness] = -20;
  const auto red = channel_of(convert_grey_ramp(params).samples, 0);
  EXPECT_EQ(red[0], 0);
  EXPECT_EQ(red[48], 2227);
  EXPECT_EQ(red[128], 9114);
  EXPECT_EQ(red[208], 15055);
  EXPECT_EQ(red[255], 16383);
}

TEST(PageTone, SlidersWorkWithColourConversionOnToo) {
  // Halfway up, a gamma of 5 gives what an unchanged photo has at 157.
  tagMVChangeParams params = plain_params();
  params.dwFlags |= kChangeFlagColorConversion;
  params.byOption[2] = 1;
  const auto plain = channel_of(convert_grey_ramp(params).samples, 0);
  params.nTone[kGamma] = params.nTone[kGamma + 1] = params.nTone[kGamma + 2] = 5;
  const auto toned = channel_of(convert_grey_ramp(params).samples, 0);
  EXPECT_GT(toned[128], plain[156]);
  EXPECT_LT(toned[128], plain[158]);
}

std::size_t distinct(const std::vector<std::uint16_t>& samples) {
  return std::set<std::uint16_t>(samples.begin(), samples.end()).size();
}

TEST(PageTone, All256ValuesStayApartWhereTheCurveIsSteepEnoughForFourteenBits) {
  EXPECT_EQ(distinct(channel_of(ramp_with(kGamma, 5).samples, 0)), 256U);
  EXPECT_EQ(distinct(channel_of(ramp_with(kGamma, -5).samples, 0)), 256U);
  EXPECT_EQ(distinct(channel_of(ramp_with(kBrightness, 128).samples, 0)), 256U);
  EXPECT_EQ(distinct(channel_of(ramp_with(kBrightness, -128).samples, 0)), 256U);
  EXPECT_EQ(distinct(channel_of(ramp_with(kContrast, -128).samples, 0)), 256U);
  EXPECT_EQ(distinct(channel_of(ramp_with(kContrast, 32).samples, 0)), 256U);
}

TEST(PageTone, TheStrongestContrastStillHasTwoHundredTones) {
  EXPECT_EQ(distinct(channel_of(ramp_with(kContrast, 128).samples, 0)), 206U);
}

TEST(PageTone, ASettingOfZeroIsTheExactScaleOfFourteenBits) {
  const auto red = channel_of(convert_grey_ramp(plain_params()).samples, 0);
  EXPECT_EQ(red[0], 0);
  EXPECT_EQ(red[1], 64);       // 64.25
  EXPECT_EQ(red[2], 128);      // 128.49
  EXPECT_EQ(red[3], 193);      // 192.74
  EXPECT_EQ(red[127], 8159);   // 8159.38
  EXPECT_EQ(red[254], 16319);  // 16318.75
  EXPECT_EQ(red[255], 16383);
}

}  // namespace
