// SPDX-License-Identifier: Apache-2.0
//
// The matte band of a call: all of it is textured, and the image does not depend on it.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/unit/conversion/test_page.h"

namespace {

constexpr std::size_t kWidth = 20;
constexpr std::size_t kHeight = 10;

/// What a call with a matte band left in its two bands.
struct MattePage {
  std::vector<unsigned char> image;
  std::vector<unsigned char> matte;
};

MattePage convert_matte(std::size_t matteWidth, std::size_t matteHeight, unsigned char picture,
                        const tagMVChangeParams& params = plain_params()) {
  TestBand source(kWidth, kHeight, 3, {.canary = picture});
  TestBand destination(kWidth, kHeight, 6);
  // As the filter makes it: every byte 0xFF.
  TestBand matte(matteWidth, matteHeight, 1, {.padding = 3, .canary = 0xFF});
  unsigned char rates[2] = {};
  EXPECT_EQ(MVChangeImage(&source.record, &params, &destination.record, &matte.record, &rates[0],
                          &rates[1]),
            0);
  EXPECT_TRUE(matte.surroundingsUntouched());
  return {destination.pixels(), matte.pixels()};
}

TEST(PageMatte, EachLineOfTheBandIsTexturedAlsoThoseBelowTheImage) {
  const auto matte = convert_matte(30, kHeight + 12, 77).matte;
  for (std::size_t y = 0; y < kHeight + 12; ++y) {
    const auto [low, high] = std::minmax_element(&matte[y * 30], &matte[y * 30] + 30);
    EXPECT_LT(int{*low}, 150) << "line " << y;
    EXPECT_GT(int{*high}, 168) << "line " << y;
  }
}

TEST(PageMatte, EachColumnOfTheBandIsTexturedAlsoThoseBesideTheImage) {
  const auto matte = convert_matte(30, kHeight + 12, 77).matte;
  for (std::size_t x = 0; x < 30; ++x) {
    int low = 255;
    for (std::size_t y = 0; y < kHeight + 12; ++y) {
      low = std::min(low, int{matte[y * 30 + x]});
    }
    EXPECT_LT(low, 150) << "column " << x;
  }
}

TEST(PageMatte, TheTextureDoesNotDependOnThePicture) {
  EXPECT_EQ(convert_matte(30, 22, 0).matte, convert_matte(30, 22, 255).matte);
}

TEST(PageMatte, TheTextureDoesNotDependOnTheSettings) {
  tagMVChangeParams params = plain_params();
  params.dwFlags |= kChangeFlagSharpness | kChangeFlagColorConversion;
  params.nSharpness = 6;
  params.nTone[0] = 5;
  params.nTone[6] = -100;
  EXPECT_EQ(convert_matte(30, 22, 90, params).matte, convert_matte(30, 22, 90).matte);
}

TEST(PageMatte, TwoPrintsInARowGetTheSameTexture) {
  EXPECT_EQ(convert_matte(30, 22, 90).matte, convert_matte(30, 22, 90).matte);
}

TEST(PageMatte, ABandSmallerThanTheImageIsFilledAsWell) {
  const auto small = convert_matte(5, 4, 90).matte;
  const auto large = convert_matte(30, 22, 90).matte;
  for (std::size_t y = 0; y < 4; ++y) {
    EXPECT_TRUE(std::equal(&small[y * 5], &small[y * 5] + 5, &large[y * 30])) << "row " << y;
  }
}

TEST(PageMatte, TheImageIsTheSameWithAndWithoutAMatteBand) {
  TestBand source(kWidth, kHeight, 3, {.canary = 90});
  TestBand destination(kWidth, kHeight, 6);
  tagMVChangeParams params = plain_params();
  params.dwFlags |= kChangeFlagSharpness;
  unsigned char rates[2] = {};
  ASSERT_EQ(
      MVChangeImage(&source.record, &params, &destination.record, nullptr, &rates[0], &rates[1]),
      0);
  EXPECT_EQ(destination.pixels(), convert_matte(30, 22, 90, params).image);
}

}  // namespace
