// SPDX-License-Identifier: Apache-2.0
//
// The tone sliders as tables.
#include "conversion/tone_tables.h"

#include <gtest/gtest.h>

#include <algorithm>
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

TEST(ToneTables, EqualSlidersGiveEqualTablesBesideAnothersOwn) {
  tagMVChangeParams params{};
  params.nTone[0] = 5;  // gamma of red
  params.nTone[2] = 5;  // and of blue
  const auto tables = tabled(params, 255, 16383);
  EXPECT_EQ(tables[0][128], 10063);
  EXPECT_EQ(tables[1][128], 8224);
  EXPECT_EQ(tables[2], tables[0]);
}

TEST(ToneTables, EachPageHasTheTablesOfItsOwnSlidersWhateverThePageBeforeHad) {
  tagMVChangeParams none{};
  for (std::size_t slider = 0; slider < 9; ++slider) {
    tagMVChangeParams one{};
    one.nTone[slider] = 5;
    const auto before = tabled(one, 255, 16383);
    EXPECT_EQ(tabled(none, 255, 16383)[slider % 3][128], 8224);
    EXPECT_GT(before[slider % 3][140], tabled(none, 255, 16383)[slider % 3][140]);
    EXPECT_EQ(tabled(one, 255, 16383), before);
    EXPECT_EQ(tabled(one, 255, 16383), before);
  }
}

TEST(ToneTables, EachPageHasTheTablesOfItsOwnScales) {
  const tagMVChangeParams none{};
  EXPECT_EQ(tabled(none, 255, 16383)[0][255], 16383);
  EXPECT_EQ(tabled(none, 255, 16384)[0][255], 16384);
  EXPECT_EQ(tabled(none, 4080, 16384)[0][255], 1024);
  EXPECT_EQ(tabled(none, 4080, 16384)[2][4080], 16384);
  EXPECT_EQ(tabled(none, 255, 16383)[2][255], 16383);
}

TEST(ToneTables, ALineOfAnyLengthIsTurnedToItsEndAndNoFurther) {
  ToneTables tables;
  ASSERT_TRUE(tables.make(tagMVChangeParams{}, 1, 1000));
  for (std::size_t pixels = 1; pixels <= 20; ++pixels) {
    LineMemory memory;
    ASSERT_TRUE(memory.reserve(3, 24));
    const LinePlanes line{memory.line(0), memory.line(1), memory.line(2)};
    for (std::uint16_t* plane : line) {
      std::fill_n(plane, 24, std::uint16_t{1});
    }
    tables.apply(line, pixels);
    for (const std::uint16_t* plane : line) {
      EXPECT_EQ(std::count(plane, plane + pixels, 1000), static_cast<std::ptrdiff_t>(pixels));
      EXPECT_EQ(plane[pixels], 1) << pixels << " pixels";
    }
  }
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
