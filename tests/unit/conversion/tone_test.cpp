// SPDX-License-Identifier: Apache-2.0
//
// The properties of the tone curves over every slider position: they keep the order of tones, each
// step of a slider is seen, and a picture is left at the extremes.
#include "conversion/tone.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <set>

#include "conversion/engine_sample.h"
#include "tests/unit/conversion/fine_levels.h"

namespace {

using Samples = std::array<int, 256>;

/// What each 8-bit value's level becomes.
std::array<double, 256> levels_of(const ChannelTone& tone) {
  const ToneFactors factors = tone_factors(tone);
  std::array<double, 256> levels{};
  for (std::size_t value = 0; value < 256; ++value) {
    levels[value] = shaped_level(factors, static_cast<double>(value) / 255.0);
  }
  return levels;
}

Samples samples_of(const ChannelTone& tone) {
  const std::array<double, 256> levels = levels_of(tone);
  Samples samples{};
  for (std::size_t value = 0; value < 256; ++value) {
    samples[value] = static_cast<int>(std::lround(levels[value] * kEngineWhite));
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
  const ToneFactors factors = tone_factors(tone);
  double before = 0.0;
  for (int i = 0; i <= kFineLevels; ++i) {
    const double level = shaped_level(factors, fine_level(i));
    ASSERT_GE(level, before) << tone.gamma << ' ' << tone.contrast << ' ' << tone.brightness
                             << " at " << i;
    before = level;
  }
  ASSERT_LE(before, 1.0);
}

/// The largest change of any of the 256 values, in samples of 14 bits.
int largest_change(const ChannelTone& before, const ChannelTone& after) {
  const Samples first = samples_of(before);
  const Samples second = samples_of(after);
  int largest = 0;
  for (std::size_t value = 0; value < 256; ++value) {
    largest = std::max(largest, std::abs(second[value] - first[value]));
  }
  return largest;
}

/// The lower end, the middle and the upper end of a slider.
std::array<int, 3> stops(int end) {
  return {-end, 0, end};
}

/// How many of the 256 values are neither nearly black nor nearly white.
long midtones(const ChannelTone& tone) {
  const std::array<double, 256> levels = levels_of(tone);
  return std::count_if(levels.begin(), levels.end(),
                       [](double level) { return level > 0.05 && level < 0.95; });
}

std::size_t distinct_samples(const ChannelTone& tone) {
  const Samples samples = samples_of(tone);
  return std::set<int>(samples.begin(), samples.end()).size();
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

// A step of 16 samples is a thousandth of full scale, a quarter of an 8-bit value: 256 of them are
// all of a photo's tones.

TEST(Tone, EachStepOfGammaShowsWhateverTheOtherSlidersAre) {
  for (const int c : stops(kContrastEnd)) {
    for (const int b : stops(kBrightnessEnd)) {
      for (int g = -5; g < 5; ++g) {
        ASSERT_GE(largest_change({g, c, b}, {g + 1, c, b}), 60) << g << ' ' << c << ' ' << b;
      }
    }
  }
}

TEST(Tone, EachStepOfContrastShowsWhateverTheOtherSlidersAre) {
  for (const int g : stops(kGammaEnd)) {
    for (const int b : stops(kBrightnessEnd)) {
      for (int c = -128; c < 128; ++c) {
        ASSERT_GE(largest_change({g, c, b}, {g, c + 1, b}), 16) << g << ' ' << c << ' ' << b;
      }
    }
  }
}

TEST(Tone, EachStepOfBrightnessShowsWhateverTheOtherSlidersAre) {
  for (const int g : stops(kGammaEnd)) {
    for (const int c : stops(kContrastEnd)) {
      for (int b = -128; b < 128; ++b) {
        ASSERT_GE(largest_change({g, c, b}, {g, c, b + 1}), 32) << g << ' ' << c << ' ' << b;
      }
    }
  }
}

TEST(Tone, GammaAndBrightnessKeepAll256ValuesApartAtEverySetting) {
  for (int g = -5; g <= 5; ++g) {
    for (int b = -128; b <= 128; b += 4) {
      ASSERT_EQ(distinct_samples({g, 0, b}), 256U) << g << ' ' << b;
    }
  }
}

TEST(Tone, LowerContrastKeepsAll256ValuesApart) {
  for (int c = -128; c <= 0; ++c) {
    ASSERT_EQ(distinct_samples(contrast(c)), 256U) << c;
  }
}

TEST(Tone, HigherContrastJoinsValuesOnlyNearBlackAndNearWhite) {
  const Samples samples = samples_of(contrast(128));
  for (std::size_t value = 48; value <= 207; ++value) {
    EXPECT_GT(samples[value], samples[value - 1]) << value;
  }
  EXPECT_GE(distinct_samples(contrast(128)), 200U);
}

TEST(Tone, TheExtremesOfAllThreeTogetherStillShowAPicture) {
  for (const int g : stops(kGammaEnd)) {
    for (const int c : stops(kContrastEnd)) {
      for (const int b : stops(kBrightnessEnd)) {
        const ChannelTone tone{g, c, b};
        EXPECT_GE(distinct_samples(tone), 176U) << g << ' ' << c << ' ' << b;
        EXPECT_GE(midtones(tone), 72) << g << ' ' << c << ' ' << b;
        EXPECT_GE(tone_level(tone, 1.0) - tone_level(tone, 0.0), 0.16) << g << ' ' << c << ' ' << b;
        expect_never_falling_within_range(tone);
      }
    }
  }
}

}  // namespace
