// SPDX-License-Identifier: Apache-2.0
//
// The record of print settings: the order and the types of its fields.
#include "job/print_setting.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

static_assert(std::is_same_v<PRINTSETTING, tagPRINTSETTING>);
static_assert(std::is_trivially_copyable_v<tagPRINTSETTING>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::nReserved), std::int32_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::nPaperWidth), std::int32_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::nPaperHeight), std::int32_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::nImageWidth), std::int32_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::nImageHeight), std::int32_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::nImageLeft), std::int32_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::nImageTop), std::int32_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::byTwoUpMode), std::uint8_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::nTwoUpSplit), std::uint32_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::byTwoUpOption), std::uint8_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::nJoinPages), std::int32_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::nJoinGap), std::int32_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::bHalfSheetLast), bool>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::bySharpness), std::uint8_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::byReserved), std::uint8_t[3]>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::byPrintMode), std::uint8_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::byPrintFinish), std::uint8_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::byColorConversion), std::uint8_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::byMarginCutOff), std::uint8_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::byWaitNextImage), std::uint8_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::byWaitTime), std::uint8_t>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::nGamma), std::int16_t[3]>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::nContrast), std::int16_t[3]>);
static_assert(std::is_same_v<decltype(tagPRINTSETTING::nBrightness), std::int16_t[3]>);

TEST(PrintSetting, FieldsStandInTheirOrder) {
  EXPECT_EQ(offsetof(tagPRINTSETTING, nReserved), 0U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, nPaperWidth), 4U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, nPaperHeight), 8U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, nImageWidth), 12U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, nImageHeight), 16U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, nImageLeft), 20U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, nImageTop), 24U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, byTwoUpMode), 28U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, nTwoUpSplit), 32U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, byTwoUpOption), 36U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, nJoinPages), 40U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, nJoinGap), 44U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, bHalfSheetLast), 48U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, bySharpness), 49U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, byReserved), 50U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, byPrintMode), 53U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, byPrintFinish), 54U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, byColorConversion), 55U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, byMarginCutOff), 56U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, byWaitNextImage), 57U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, byWaitTime), 58U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, nGamma), 60U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, nContrast), 66U);
  EXPECT_EQ(offsetof(tagPRINTSETTING, nBrightness), 72U);
  EXPECT_EQ(sizeof(tagPRINTSETTING), 80U);
}

TEST(PrintSetting, TheNineToneValuesAreOneRun) {
  const std::array<std::int16_t, 9> run = {11, 12, 13, 21, 22, 23, 31, 32, 33};
  tagPRINTSETTING settings = {};
  std::memcpy(reinterpret_cast<unsigned char*>(&settings) + offsetof(tagPRINTSETTING, nGamma),
              run.data(), sizeof(run));
  EXPECT_EQ(settings.nGamma[0], 11);
  EXPECT_EQ(settings.nGamma[1], 12);
  EXPECT_EQ(settings.nGamma[2], 13);
  EXPECT_EQ(settings.nContrast[0], 21);
  EXPECT_EQ(settings.nContrast[1], 22);
  EXPECT_EQ(settings.nContrast[2], 23);
  EXPECT_EQ(settings.nBrightness[0], 31);
  EXPECT_EQ(settings.nBrightness[1], 32);
  EXPECT_EQ(settings.nBrightness[2], 33);
}

TEST(PrintSetting, MatteIsThree) {
  EXPECT_EQ(kFinishMatte, 3);
}
