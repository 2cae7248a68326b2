// SPDX-License-Identifier: Apache-2.0
//
// The tone sliders as tables.
#include "conversion/tone_tables.h"

#include <gtest/gtest.h>

#include <set>

namespace {

/// What the three tables make of every number from 0 to `white`.
std::array<std::vector<std::uint16_t>, 3> tabled(const tagMVChangeParams& params,
                                                 std::uint16_t white, std::uint16_t toneWhite) {
  ToneTables tables;
  EXPECT_TRUE(tables.make(params, white, toneWhite));
  const std::size_t numbers = std::size_t{white} + 1;
  LineMemory memory;
  EXPECT_TRUE(memory.reserve(3, numbers));
  const LinePlanes line{memory.line(0), memory.line(1), memory.line(2)};
  for (std::uint16_t* plane : line) {
    for (std::size_t i = 0; i < numbers; ++i) {
      plane[i] = static_cast<std::uint16_t>(i);
    }
  }
  tables.apply(line, numbers);
  std::array<std::vector<std::uint16_t>, 3> all;
  for (std::size_t channel = 0; channel < 3; ++channel) {
    all[channel].assign(line[channel], line[channel] + numbers);
  }
  return all;
}

TEST(ToneTables, WithoutSlidersEveryNumberGoesToTheNearestOfTheOtherScale) {
  const auto tables = tabled(tagMVChangeParams{}, 4080, 16383);
  for (int i = 0; i <= 4080; ++i) {
    for (std::size_t channel = 0; channel < 3; ++channel) {
      // Half a step or less from i × 16383 / 4080, in 4080ths of a step.
      ASSERT_LE(std::abs(4080 * tables[channel][static_cast<std::size_t>(i)] - 16383 * i) * 2, 4080)
          << "number " << i;
    }
  }
}

TEST(ToneTables, EachChannelHasItsOwnSliders) {
  tagMVChangeParams params{};
  params.nTone[1] = 5;  // gamma of green
  const auto tables = tabled(params, 255, 16383);
  EXPECT_EQ(tables[0][128], 8224);
  EXPECT_EQ(tables[1][128], 10063);
  EXPECT_EQ(tables[2][128], 8224);
}

TEST(ToneTables, TheSteepestSettingsKeepAllBytesApart) {
  for (const std::int16_t gamma : {std::int16_t{-5}, std::int16_t{5}}) {
    tagMVChangeParams params{};
    params.nTone[0] = gamma;
    const auto red = tabled(params, 255, 16383)[0];
    EXPECT_EQ(std::set<std::uint16_t>(red.begin(), red.end()).size(), 256U) << "gamma " << gamma;
  }
}

TEST(ToneTables, NeutralMeansAllNineAreZero) {
  tagMVChangeParams params{};
  EXPECT_TRUE(tone_is_neutral(params));
  for (std::int16_t& tone : params.nTone) {
    tone = -1;
    EXPECT_FALSE(tone_is_neutral(params));
    tone = 0;
  }
}

}  // namespace
