// SPDX-License-Identifier: Apache-2.0
//
// The tone sliders as the filter sends them: nine numbers in the parameter block.
#include <gtest/gtest.h>

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
