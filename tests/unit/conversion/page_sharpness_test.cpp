// SPDX-License-Identifier: Apache-2.0
//
// Sharpness as the filter asks for it: a flag and a level.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "tests/unit/conversion/test_page.h"

namespace {

tagMVChangeParams sharpened(std::int16_t level) {
  tagMVChangeParams params = plain_params();
  params.dwFlags |= kChangeFlagSharpness;
  params.nSharpness = level;
  return params;
}

/// Two greys that meet between columns 7 and 8 of 16.
std::array<unsigned char, 3> edge_picture(std::size_t x, std::size_t) {
  return x < 8 ? std::array<unsigned char, 3>{100, 100, 100}
               : std::array<unsigned char, 3>{156, 156, 156};
}

/// The step between the two pixels at the edge, in the middle row.
int step_at_edge(const tagMVChangeParams& params) {
  const auto grey = channel_of(convert(16, 9, params, edge_picture).samples, 0);
  return grey[4 * 16 + 8] - grey[4 * 16 + 7];
}

/// The standard deviation of the red samples.
double spread(const Converted& page) {
  const auto samples = channel_of(page.samples, 0);
  const auto count = static_cast<double>(samples.size());
  double sum = 0;
  double squares = 0;
  for (const double sample : samples) {
    sum += sample;
    squares += sample * sample;
  }
  return std::sqrt(squares / count - (sum / count) * (sum / count));
}

/// Grey 128 with noise of up to ±2, the same in each channel.
Picture noisy_sky() {
  auto generator = std::make_shared<std::mt19937>(2);
  return [generator](std::size_t, std::size_t) {
    const auto grey = static_cast<unsigned char>(126 + (*generator)() % 5);
    return std::array<unsigned char, 3>{grey, grey, grey};
  };
}

TEST(PageSharpness, WithoutTheFlagNoLevelSharpens) {
  tagMVChangeParams params = plain_params();
  params.nSharpness = 6;
  EXPECT_EQ(convert(16, 9, params, busy_picture).samples,
            convert(16, 9, plain_params(), busy_picture).samples);
}

TEST(PageSharpness, TheLevelsMakeAnEdgeSteeperInEqualSteps) {
  // 56 of 255 is 3598 steps; each level adds an eighth of twice 278 / 16 of 255: 279 steps.
  EXPECT_EQ(step_at_edge(plain_params()), 3598);
  for (std::int16_t level = 0; level <= 6; ++level) {
    EXPECT_NEAR(step_at_edge(sharpened(level)), 3598 + 279 * (level + 1), 7) << "level " << level;
  }
}

TEST(PageSharpness, TheNoiseOfASkyIsLeftAlone) {
  const double before = spread(convert(100, 100, plain_params(), noisy_sky()));
  EXPECT_NEAR(before, 16383.0 / 255.0 * std::sqrt(2.0), 3.0);
  EXPECT_LE(spread(convert(100, 100, sharpened(3), noisy_sky())), 1.01 * before);
  EXPECT_LE(spread(convert(100, 100, sharpened(6), noisy_sky())), 1.02 * before);
}

TEST(PageSharpness, NoSampleLeavesTheFourteenBitsOnAHardCheckerboard) {
  const auto checks = [](std::size_t x, std::size_t y) {
    return (x / 2 + y / 3) % 2 == 0 ? std::array<unsigned char, 3>{0, 255, 10}
                                    : std::array<unsigned char, 3>{255, 0, 240};
  };
  for (const std::uint64_t flag : {std::uint64_t{0}, kChangeFlagColorConversion}) {
    for (std::int16_t level = 0; level <= 6; ++level) {
      tagMVChangeParams params = sharpened(level);
      params.dwFlags |= flag;
      for (const std::uint16_t sample : convert(24, 24, params, checks).samples) {
        ASSERT_LE(sample, 0x3FFF);
      }
    }
  }
}

TEST(PageSharpness, ThePhotoIsSharpenedBeforeItsTonesAreSet) {
  // Contrast at its lowest makes everything a quarter as strong, the overshoot too.
  tagMVChangeParams params = sharpened(6);
  params.nTone[3] = params.nTone[4] = params.nTone[5] = -128;
  EXPECT_NEAR(step_at_edge(params), step_at_edge(sharpened(6)) / 4.0, 1.5);
}

}  // namespace
