// SPDX-License-Identifier: Apache-2.0
//
// Linear light as sRGB bytes.
#include "decoder/screen_encoding.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

const decoder::ScreenEncoding encode;

// IEC 61966-2-1, in 255 steps.
double encoded(double light) {
  return 255.0 * (light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055);
}

TEST(ScreenEncoding, GivesTheValuesOfTheStandard) {
  EXPECT_EQ(encode(0.0F), 0);
  EXPECT_EQ(encode(0.0015F), 5);      // 4.94
  EXPECT_EQ(encode(0.0033F), 11);     // 10.8
  EXPECT_EQ(encode(0.018F), 36);      // 36.4
  EXPECT_EQ(encode(0.18F), 118);      // 117.6
  EXPECT_EQ(encode(0.214041F), 127);  // 127.5 less a hair
  EXPECT_EQ(encode(0.5F), 188);       // 187.5 and a hair
  EXPECT_EQ(encode(1.0F), 255);
}

TEST(ScreenEncoding, RoundsToTheNearestEverywhere) {
  for (int i = 0; i <= 1'000'000; ++i) {
    const double light = i / 1e6;
    const double exact = encoded(static_cast<double>(static_cast<float>(light)));
    ASSERT_LE(std::fabs(encode(static_cast<float>(light)) - exact), 0.5 + 1e-4) << light;
  }
}

TEST(ScreenEncoding, ShowsLightOutsideTheScreensAsTheNearestItHas) {
  EXPECT_EQ(encode(-0.2F), 0);
  EXPECT_EQ(encode(-std::numeric_limits<float>::infinity()), 0);
  EXPECT_EQ(encode(1.5F), 255);
  EXPECT_EQ(encode(std::numeric_limits<float>::infinity()), 255);
}

TEST(ScreenEncoding, ShowsWhatIsNoNumberAsBlack) {
  EXPECT_EQ(encode(std::numeric_limits<float>::quiet_NaN()), 0);
}

}  // namespace
