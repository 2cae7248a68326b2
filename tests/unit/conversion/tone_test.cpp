// SPDX-License-Identifier: Apache-2.0
//
// The properties of the tone curves over every slider position and every pixel value.
#include "conversion/tone.h"

#include <gtest/gtest.h>

#include <set>

#include "conversion/colour.h"

namespace {

using Samples = std::array<int, 256>;

Samples samples_of(const ChannelTone& tone) {
  const ToneCurve curve = make_tone_curve(tone);
  Samples samples{};
  for (std::size_t value = 0; value < 256; ++value) {
    samples[value] = sample_of_level(curve[value]);
  }
  return samples;
}

ChannelTone gamma(int value) {
  return {value, 0, 0};
}
ChannelTone contrast(int value) {
  return {0, value, 0};
}
ChannelTone brightness(int value) {
  return {0, 0, value};
}

void expect_never_falling_within_range(const ChannelTone& tone) {
  const ToneCurve curve = make_tone_curve(tone);
  EXPECT_GE(curve[0], 0.0);
  EXPECT_LE(curve[255], 1.0);
  for (std::size_t value = 1; value < 256; ++value) {
    ASSERT_GE(curve[value], curve[value - 1])
        << tone.gamma << ' ' << tone.contrast << ' ' << tone.brightness << " at " << value;
  }
}

std::size_t distinct_samples(const ChannelTone& tone) {
  const Samples samples = samples_of(tone);
  return std::set<int>(samples.begin(), samples.end()).size();
}

TEST(Tone, ZeroLeavesEveryLevelExactlyAsItIs) {
  const ToneCurve curve = make_tone_curve({0, 0, 0});
  for (std::size_t value = 0; value < 256; ++value) {
    EXPECT_EQ(curve[value], static_cast<double>(value) / 255.0);
  }
}

TEST(Tone, ALighterPixelNeverComesOutDarkerAtAnyGamma) {
  for (int value = -5; value <= 5; ++value) {
    expect_never_falling_within_range(gamma(value));
  }
}

TEST(Tone, ALighterPixelNeverComesOutDarkerAtAnyContrast) {
  for (int value = -128; value <= 128; ++value) {
    expect_never_falling_within_range(contrast(value));
  }
}

TEST(Tone, ALighterPixelNeverComesOutDarkerAtAnyBrightness) {
  for (int value = -128; value <= 128; ++value) {
    expect_never_falling_within_range(brightness(value));
  }
}

TEST(Tone, HigherGammaNeverDarkensAnyPixel) {
  for (int value = -5; value < 5; ++value) {
    const Samples before = samples_of(gamma(value));
    const Samples after = samples_of(gamma(value + 1));
    for (std::size_t pixel = 0; pixel < 256; ++pixel) {
      ASSERT_GE(after[pixel], before[pixel]) << "gamma " << value + 1 << ", pixel " << pixel;
    }
  }
}

TEST(Tone, EachStepOfGammaLightensEveryPixelBetweenBlackAndWhite) {
  for (int value = -5; value < 5; ++value) {
    const Samples before = samples_of(gamma(value));
    const Samples after = samples_of(gamma(value + 1));
    for (std::size_t pixel = 1; pixel < 255; ++pixel) {
      ASSERT_GT(after[pixel], before[pixel]) << "gamma " << value + 1 << ", pixel " << pixel;
    }
  }
}

TEST(Tone, GammaKeepsBlackAndWhite) {
  for (int value = -5; value <= 5; ++value) {
    const Samples samples = samples_of(gamma(value));
    EXPECT_EQ(samples[0], 0);
    EXPECT_EQ(samples[255], 16383);
  }
}

TEST(Tone, HigherBrightnessNeverDarkensAnyPixel) {
  for (int value = -128; value < 128; ++value) {
    const Samples before = samples_of(brightness(value));
    const Samples after = samples_of(brightness(value + 1));
    for (std::size_t pixel = 0; pixel < 256; ++pixel) {
      ASSERT_GE(after[pixel], before[pixel]) << "brightness " << value + 1 << ", pixel " << pixel;
    }
  }
}

TEST(Tone, EachStepOfBrightnessLightensThePixelsFromEightTo247) {
  for (int value = -128; value < 128; ++value) {
    const Samples before = samples_of(brightness(value));
    const Samples after = samples_of(brightness(value + 1));
    for (std::size_t pixel = 8; pixel <= 247; ++pixel) {
      ASSERT_GT(after[pixel], before[pixel]) << "brightness " << value + 1 << ", pixel " << pixel;
    }
  }
}

TEST(Tone, HigherContrastNeverLightensTheDarkHalfNorDarkensTheLightHalf) {
  for (int value = -128; value < 128; ++value) {
    const Samples before = samples_of(contrast(value));
    const Samples after = samples_of(contrast(value + 1));
    for (std::size_t pixel = 0; pixel < 128; ++pixel) {
      ASSERT_LE(after[pixel], before[pixel]) << "contrast " << value + 1 << ", pixel " << pixel;
      ASSERT_GE(after[255 - pixel], before[255 - pixel])
          << "contrast " << value + 1 << ", pixel " << 255 - pixel;
    }
  }
}

TEST(Tone, EachStepOfContrastParts48To112From143To207) {
  for (int value = -128; value < 128; ++value) {
    const Samples before = samples_of(contrast(value));
    const Samples after = samples_of(contrast(value + 1));
    for (std::size_t pixel = 48; pixel <= 112; ++pixel) {
      ASSERT_LT(after[pixel], before[pixel]) << "contrast " << value + 1 << ", pixel " << pixel;
      ASSERT_GT(after[255 - pixel], before[255 - pixel])
          << "contrast " << value + 1 << ", pixel " << 255 - pixel;
    }
  }
}

TEST(Tone, HigherContrastLowers48AndRaises208) {
  EXPECT_EQ(samples_of(contrast(-128))[48], 6915);
  EXPECT_EQ(samples_of(contrast(-1))[48], 3139);
  EXPECT_EQ(samples_of(contrast(1))[48], 3044);
  EXPECT_EQ(samples_of(contrast(128))[48], 47);
  EXPECT_EQ(samples_of(contrast(-128))[208], 9484);
  EXPECT_EQ(samples_of(contrast(-1))[208], 13308);
  EXPECT_EQ(samples_of(contrast(1))[208], 13403);
  EXPECT_EQ(samples_of(contrast(128))[208], 16340);
}

TEST(Tone, LowerContrastLiftsBlackAndGreysWhite) {
  EXPECT_EQ(samples_of(contrast(-64))[0], 4096);
  EXPECT_EQ(samples_of(contrast(-64))[255], 12287);
}

TEST(Tone, EachEndOfEachSliderKeepsAtLeastAHundredTones) {
  EXPECT_GE(distinct_samples(gamma(-5)), 100U);
  EXPECT_GE(distinct_samples(gamma(5)), 100U);
  EXPECT_GE(distinct_samples(contrast(-128)), 100U);
  EXPECT_GE(distinct_samples(contrast(128)), 100U);
  EXPECT_GE(distinct_samples(brightness(-128)), 100U);
  EXPECT_GE(distinct_samples(brightness(128)), 100U);
}

TEST(Tone, AllEndsTogetherStillKeepAtLeastSixtyFourTonesAndTheirOrder) {
  for (const int g : {-5, 0, 5}) {
    for (const int c : {-128, 0, 128}) {
      for (const int b : {-128, 0, 128}) {
        EXPECT_GE(distinct_samples({g, c, b}), 64U) << g << ' ' << c << ' ' << b;
        expect_never_falling_within_range({g, c, b});
      }
    }
  }
}

TEST(Tone, EachChannelTakesItsOwnThreeOfTheNineNumbers) {
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

TEST(Tone, NumbersBeyondAnEndBecomeThatEnd) {
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
