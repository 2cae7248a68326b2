// SPDX-License-Identifier: Apache-2.0
//
// What a job starts from.
#include "job/job_state.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <type_traits>

static_assert(std::is_same_v<decltype(page), std::int32_t>);
static_assert(std::is_same_v<decltype(curLine), std::int32_t>);
static_assert(std::is_same_v<decltype(gImageCount), std::int16_t>);
static_assert(std::is_same_v<decltype(gRgbRate), std::uint8_t>);
static_assert(std::is_same_v<decltype(gOpRate), std::uint8_t>);
static_assert(std::extent_v<decltype(Planes)> == 2);

TEST(JobState, ThePrintersStreamIsStandardOutput) {
  EXPECT_EQ(fpOut, stdout);
}

TEST(JobState, NoPageHasBeenRead) {
  EXPECT_EQ(page, 0);
  EXPECT_EQ(Planes[0], nullptr);
  EXPECT_EQ(Planes[1], nullptr);
}

TEST(JobState, NoSheetWaits) {
  EXPECT_EQ(gImageCount, 0);
  EXPECT_EQ(gImageCache.pBits, nullptr);
  EXPECT_EQ(gImageCache.lStride, 0);
  EXPECT_EQ(gMatteImage.pBits, nullptr);
  EXPECT_EQ(gMatteImage.lStride, 0);
  EXPECT_EQ(gRgbRate, 0);
  EXPECT_EQ(gOpRate, 0);
}
