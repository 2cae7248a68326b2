// SPDX-License-Identifier: Apache-2.0
//
// What each tone slider does to a level, by its formula, and which of the nine numbers it takes.
#include <gtest/gtest.h>

#include "conversion/tone.h"
#include "tests/unit/conversion/fine_levels.h"

namespace {

TEST(ToneFormula, ZeroLeavesEveryLevelExactlyAsItIs) {
  for (int i = 0; i <= kFineLevels; ++i) {
    EXPECT_EQ(tone_level({0, 0, 0}, fine_level(i)), fine_level(i));
  }
  for (const double level : {1e-300, 0.1, 1.0 / 3.0, 0.7, 1.0 - 0x1p-53}) {
    EXPECT_EQ(tone_level({0, 0, 0}, level), level);
  }
}

TEST(ToneFormula, GammaIsAPowerLaw) {
  // 0.5^(1/√2), 0.25^(1/√2), 0.5^√2, 0.25^√2; γ = 2^(2/10) for 2.
  EXPECT_NEAR(tone_level({5, 0, 0}, 0.5), 0.6125473265360659, 1e-12);
  EXPECT_NEAR(tone_level({5, 0, 0}, 0.25), 0.37521422724648174, 1e-12);
  EXPECT_NEAR(tone_level({-5, 0, 0}, 0.5), 0.37521422724648174, 1e-12);
  EXPECT_NEAR(tone_level({-5, 0, 0}, 0.25), 0.14078571632817444, 1e-12);
  EXPECT_NEAR(tone_level({2, 0, 0}, 0.5), 0.546938087521949, 1e-12);
}

TEST(ToneFormula, HigherContrastRaisesTheOddsOfLightToDarkToAPower) {
  // Odds of 1 to 3 become 1 to 9 at a power of 2, and 1 to 81 at a power of 4.
  EXPECT_NEAR(tone_level({0, 64, 0}, 0.25), 1.0 / 10.0, 1e-12);
  EXPECT_NEAR(tone_level({0, 64, 0}, 0.75), 9.0 / 10.0, 1e-12);
  EXPECT_NEAR(tone_level({0, 128, 0}, 0.25), 1.0 / 82.0, 1e-12);
  EXPECT_NEAR(tone_level({0, 128, 0}, 0.5), 0.5, 1e-12);
  EXPECT_EQ(tone_level({0, 128, 0}, 0.0), 0.0);
  EXPECT_EQ(tone_level({0, 128, 0}, 1.0), 1.0);
}

TEST(ToneFormula, LowerContrastIsAStraightLineThroughTheMiddle) {
  EXPECT_NEAR(tone_level({0, -64, 0}, 0.0), 0.25, 1e-12);
  EXPECT_NEAR(tone_level({0, -64, 0}, 1.0), 0.75, 1e-12);
  EXPECT_NEAR(tone_level({0, -128, 0}, 0.0), 0.375, 1e-12);
  EXPECT_NEAR(tone_level({0, -128, 0}, 0.1), 0.4, 1e-12);
  EXPECT_NEAR(tone_level({0, -128, 0}, 0.5), 0.5, 1e-12);
}

TEST(ToneFormula, BrightnessMultipliesTheOddsOfLightToDark) {
  // Odds of 1 to 1 become 4, 2, ½ and ¼ to 1; odds of 1 to 3 become 4 to 3.
  EXPECT_NEAR(tone_level({0, 0, 128}, 0.5), 4.0 / 5.0, 1e-12);
  EXPECT_NEAR(tone_level({0, 0, 64}, 0.5), 2.0 / 3.0, 1e-12);
  EXPECT_NEAR(tone_level({0, 0, -64}, 0.5), 1.0 / 3.0, 1e-12);
  EXPECT_NEAR(tone_level({0, 0, -128}, 0.5), 1.0 / 5.0, 1e-12);
  EXPECT_NEAR(tone_level({0, 0, 128}, 0.25), 4.0 / 7.0, 1e-12);
  EXPECT_EQ(tone_level({0, 0, -128}, 0.0), 0.0);
  EXPECT_EQ(tone_level({0, 0, -128}, 1.0), 1.0);
}

TEST(ToneFormula, GammaAndBrightnessAreUndoneByTheOppositeSetting) {
  for (int i = 0; i <= kFineLevels; i += 17) {
    EXPECT_NEAR(tone_level({4, 0, 0}, tone_level({-4, 0, 0}, fine_level(i))), fine_level(i), 1e-12);
    EXPECT_NEAR(tone_level({0, 0, 90}, tone_level({0, 0, -90}, fine_level(i))), fine_level(i),
                1e-12);
  }
}

TEST(ToneFormula, TheOrderIsGammaThenContrastThenBrightness) {
  // 0.25 by γ = ½√2 to 0.14078571632817444, its odds squared, then halved.
  const double odds = 0.14078571632817444 / (1.0 - 0.14078571632817444);
  EXPECT_NEAR(tone_level({-5, 64, -64}, 0.25), odds * odds / 2 / (1.0 + odds * odds / 2), 1e-12);
}

TEST(ToneFormula, LevelsBeyondBlackAndWhiteCountAsBlackAndWhite) {
  for (const ChannelTone& tone :
       {ChannelTone{0, 0, 0}, ChannelTone{3, 40, -20}, ChannelTone{-2, -90, 128}}) {
    EXPECT_EQ(tone_level(tone, -0.25), tone_level(tone, 0.0));
    EXPECT_EQ(tone_level(tone, 1.25), tone_level(tone, 1.0));
  }
}

TEST(ToneFormula, EachChannelTakesItsOwnThreeOfTheNineNumbers) {
  tagMVChangeParams params{};
  for (std::int16_t i = 0; i < 9; ++i) {
    params.nTone[i] = static_cast<std::int16_t>(i - 4);
  }
  const ChannelTone red = tone_of_channel(params, 0);
  EXPECT_EQ(red.gamma, -4);
  EXPECT_EQ(red.contrast, -1);
  EXPECT_EQ(red.brightness, 2);
  const ChannelTone blue = tone_of_channel(params, 2);
  EXPECT_EQ(blue.gamma, -2);
  EXPECT_EQ(blue.contrast, 1);
  EXPECT_EQ(blue.brightness, 4);
}

TEST(ToneFormula, NumbersBeyondAnEndBecomeThatEnd) {
  tagMVChangeParams params{};
  params.nTone[0] = -6;
  params.nTone[3] = 129;
  params.nTone[6] = -32768;
  const ChannelTone red = tone_of_channel(params, 0);
  EXPECT_EQ(red.gamma, -5);
  EXPECT_EQ(red.contrast, 128);
  EXPECT_EQ(red.brightness, -128);
}

}  // namespace
