// SPDX-License-Identifier: Apache-2.0
//
// Sharpness as the filter asks for it: a flag and a level.
#include <gtest/gtest.h>

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

TEST(PageSharpness, WithoutTheFlagNoLevelSharpens) {
  tagMVChangeParams params = plain_params();
  params.nSharpness = 6;
  EXPECT_EQ(convert(16, 9, params, busy_picture).samples,
            convert(16, 9, plain_params(), busy_picture).samples);
}

TEST(PageSharpness, EachLevelMakesAnEdgeSteeper) {
  // 56 of 255 is 3598 steps; each level adds twice 5/16 of it, by 10/64.
  EXPECT_EQ(step_at_edge(plain_params()), 3598);
  EXPECT_EQ(step_at_edge(sharpened(0)), 3598 + 352);
  EXPECT_EQ(step_at_edge(sharpened(1)), 3598 + 702);
  EXPECT_EQ(step_at_edge(sharpened(2)), 3598 + 1054);
  EXPECT_EQ(step_at_edge(sharpened(3)), 3598 + 1406);
  EXPECT_EQ(step_at_edge(sharpened(4)), 3598 + 1756);
  EXPECT_EQ(step_at_edge(sharpened(5)), 3598 + 2108);
  EXPECT_EQ(step_at_edge(sharpened(6)), 3598 + 2460);
}

TEST(PageSharpness, LevelsBeyondAnEndCountAsThatEnd) {
  EXPECT_EQ(convert(16, 9, sharpened(7), busy_picture).samples,
            convert(16, 9, sharpened(6), busy_picture).samples);
  EXPECT_EQ(convert(16, 9, sharpened(32767), busy_picture).samples,
            convert(16, 9, sharpened(6), busy_picture).samples);
  EXPECT_EQ(convert(16, 9, sharpened(-32768), busy_picture).samples,
            convert(16, 9, sharpened(0), busy_picture).samples);
}

TEST(PageSharpness, AFlatPageOfAnyGreyStaysAsItIsAtEveryLevel) {
  for (unsigned value = 0; value < 256; ++value) {
    const auto byte = static_cast<unsigned char>(value);
    const auto flat = [byte](std::size_t, std::size_t) {
      return std::array<unsigned char, 3>{byte, byte, byte};
    };
    const auto plain = convert(6, 6, plain_params(), flat).samples;
    for (std::int16_t level = 0; level <= 6; ++level) {
      ASSERT_EQ(convert(6, 6, sharpened(level), flat).samples, plain)
          << "value " << value << ", level " << level;
    }
  }
}

TEST(PageSharpness, NoSampleLeavesTheFourteenBitsOnAHardCheckerboard) {
  const auto checks = [](std::size_t x, std::size_t y) {
    return (x / 2 + y / 3) % 2 == 0 ? std::array<unsigned char, 3>{0, 255, 10}
                                    : std::array<unsigned char, 3>{255, 0, 240};
  };
  for (std::int16_t level = 0; level <= 6; ++level) {
    for (const std::uint16_t sample : convert(24, 24, sharpened(level), checks).samples) {
      ASSERT_LE(sample, 0x3FFF);
    }
  }
}

TEST(PageSharpness, PixelsThreeAwayFromAnEdgeAreLeftAlone) {
  const auto plain = channel_of(convert(16, 9, plain_params(), edge_picture).samples, 0);
  const auto sharp = channel_of(convert(16, 9, sharpened(6), edge_picture).samples, 0);
  EXPECT_EQ(sharp[5], plain[5]);
  EXPECT_LT(sharp[6], plain[6]);
  EXPECT_GT(sharp[9], plain[9]);
  EXPECT_EQ(sharp[10], plain[10]);
}

TEST(PageSharpness, ThePictureMirroredSharpensMirrored) {
  const auto upright = channel_of(convert(16, 9, sharpened(6), busy_picture).samples, 1);
  const auto turned =
      channel_of(convert(16, 9, sharpened(6),
                         [](std::size_t x, std::size_t y) { return busy_picture(15 - x, 8 - y); })
                     .samples,
                 1);
  EXPECT_EQ(std::vector<std::uint16_t>(turned.rbegin(), turned.rend()), upright);
}

TEST(PageSharpness, TonesAreSetBeforeTheSharpening) {
  // The darkest tones are lifted to 6144 first, so that the overshoot has room below them.
  tagMVChangeParams params = sharpened(6);
  params.nTone[3] = params.nTone[4] = params.nTone[5] = -128;
  const auto grey = channel_of(convert(16, 1, params,
                                       [](std::size_t x, std::size_t) {
                                         return x < 8 ? std::array<unsigned char, 3>{0, 0, 0}
                                                      : std::array<unsigned char, 3>{255, 255, 255};
                                       })
                                   .samples,
                               0);
  EXPECT_EQ(grey[0], 6144);
  EXPECT_EQ(grey[7], 4744);  // 6144 − 5/16 × 4095 × 70/64
  EXPECT_EQ(grey[8], 11639);
  EXPECT_EQ(grey[15], 10239);
}

}  // namespace
