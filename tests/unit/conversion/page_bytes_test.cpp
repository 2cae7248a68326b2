// SPDX-License-Identifier: Apache-2.0
//
// Whole pages by their sums: every kind of processor and every compiler makes the same bytes. The
// sums are those that a processor of the x86 family gave.
#include <gtest/gtest.h>

#include <cstdint>

#include "tests/unit/conversion/test_page.h"

namespace {

/// Fowler, Noll and Vo's sum of 64 bits (FNV-1a) over the low and the high byte of each number.
class Sum {
 public:
  void add(unsigned byte) { value_ = (value_ ^ byte) * 0x100000001B3U; }
  void add(const Converted& page) {
    for (const std::uint16_t sample : page.samples) {
      add(sample & 0xFFU);
      add(unsigned{sample} >> 8U);
    }
    add(page.rgbRate);
    add(page.opRate);
  }
  std::uint64_t value() const { return value_; }

 private:
  std::uint64_t value_ = 0xCBF29CE484222325U;
};

/// Ramps of grey with the three numbers from `first` on at each value that a job can give them.
std::uint64_t sum_of_tones(std::size_t first, int lowest, int highest, int step) {
  Sum sum;
  for (int value = lowest; value <= highest; value += step) {
    tagMVChangeParams params = plain_params();
    for (std::size_t channel = 0; channel < 3; ++channel) {
      params.nTone[first + channel] = static_cast<std::int16_t>(value);
    }
    sum.add(convert_grey_ramp(params));
  }
  return sum.value();
}

std::uint64_t sum_of_busy_page(const tagMVChangeParams& params) {
  Sum sum;
  sum.add(convert(211, 97, params, busy_picture));
  return sum.value();
}

TEST(PageBytes, OfEachGammaAreTheSameOnEveryProcessor) {
  EXPECT_EQ(sum_of_tones(0, -5, 5, 1), 0xA0BBCBB9F4F74146U);
}

TEST(PageBytes, OfEachContrastAreTheSameOnEveryProcessor) {
  EXPECT_EQ(sum_of_tones(3, -128, 128, 16), 0xAE156D8AAE49A40BU);
}

TEST(PageBytes, OfEachBrightnessAreTheSameOnEveryProcessor) {
  EXPECT_EQ(sum_of_tones(6, -128, 128, 16), 0xFE23117F425917D6U);
}

TEST(PageBytes, OfEachSharpnessAreTheSameOnEveryProcessor) {
  Sum sum;
  for (std::int16_t level = 0; level <= 6; ++level) {
    tagMVChangeParams params = plain_params();
    params.dwFlags |= kChangeFlagSharpness;
    params.nSharpness = level;
    sum.add(convert(211, 97, params, busy_picture));
  }
  EXPECT_EQ(sum.value(), 0x6534D75AC8679B75U);
}

TEST(PageBytes, InThePrintersColoursAreTheSameOnEveryProcessor) {
  tagMVChangeParams params = plain_params();
  params.dwFlags |= kChangeFlagColorConversion;
  params.byOption[2] = 1;
  EXPECT_EQ(sum_of_busy_page(params), 0xDA9E90201B58234FU);
}

TEST(PageBytes, InThePrintersColoursSharpAndTonedAreTheSameOnEveryProcessor) {
  tagMVChangeParams params = plain_params();
  params.dwFlags |= kChangeFlagColorConversion | kChangeFlagSharpness;
  params.byOption[2] = 1;
  params.nSharpness = 5;
  std::int16_t number = -4;
  for (std::int16_t& tone : params.nTone) {
    tone = number++;
  }
  EXPECT_EQ(sum_of_busy_page(params), 0x9D2EABBBDCE51D70U);
}

TEST(PageBytes, OfTheMatteBandAreTheSameOnEveryProcessor) {
  TestBand source(4, 4, 3);
  TestBand destination(4, 4, 6);
  TestBand matte(640, 300, 1, {.canary = 0xFF});
  const tagMVChangeParams params = plain_params();
  unsigned char rates[2] = {};
  ASSERT_EQ(MVChangeImage(&source.record, &params, &destination.record, &matte.record, &rates[0],
                          &rates[1]),
            0);
  Sum sum;
  for (const unsigned char byte : matte.pixels()) {
    sum.add(byte);
  }
  sum.add(rates[1]);
  EXPECT_EQ(sum.value(), 0xABC77AC887954E8BU);
}

}  // namespace
