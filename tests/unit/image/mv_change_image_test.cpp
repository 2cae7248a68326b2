// SPDX-License-Identifier: Apache-2.0
//
// The records that cross into the conversion library: each byte of them, written at its offset and
// read back through its field.
#include "image/mv_change_image.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace {

/// A record whose byte at each offset is that offset plus one.
template <typename Record>
Record CountingRecord() {
  std::array<unsigned char, sizeof(Record)> bytes{};
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes[i] = static_cast<unsigned char>(i + 1);
  }
  Record record;
  std::memcpy(&record, bytes.data(), sizeof(record));
  return record;
}

}  // namespace

TEST(BandRecord, Has48BytesWithoutGaps) {
  ASSERT_EQ(sizeof(tagMVBandImageParams), 48U);
  EXPECT_EQ(alignof(tagMVBandImageParams), 8U);
  const auto record = CountingRecord<tagMVBandImageParams>();
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(record.pBits), 0x0807060504030201U);
  EXPECT_EQ(record.lStride, 0x100F0E0D0C0B0A09);
  EXPECT_EQ(record.rcBand.left, 0x1817161514131211);
  EXPECT_EQ(record.rcBand.top, 0x201F1E1D1C1B1A19);
  EXPECT_EQ(record.rcBand.right, 0x2827262524232221);
  EXPECT_EQ(record.rcBand.bottom, 0x302F2E2D2C2B2A29);
}

TEST(BandRecord, StrideAndEdgesAreSigned) {
  tagMVBandImageParams record;
  std::memset(&record, 0xFF, sizeof(record));
  EXPECT_EQ(record.lStride, -1);
  EXPECT_EQ(record.rcBand.left, -1);
  EXPECT_EQ(record.rcBand.top, -1);
  EXPECT_EQ(record.rcBand.right, -1);
  EXPECT_EQ(record.rcBand.bottom, -1);
}

TEST(ParameterBlock, Has64BytesInTheLibrarysOrder) {
  ASSERT_EQ(sizeof(tagMVChangeParams), 64U);
  EXPECT_EQ(alignof(tagMVChangeParams), 8U);
  const auto block = CountingRecord<tagMVChangeParams>();
  EXPECT_EQ(block.lParam0, 0x0807060504030201);
  EXPECT_EQ(block.nParam8, 0x0C0B0A09);
  EXPECT_EQ(block.dwFlags, 0x1817161514131211U);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block.pszModulePath), 0x201F1E1D1C1B1A19U);
  EXPECT_EQ(block.wParam32, 0x2221);
  EXPECT_EQ(block.nTone[0], 0x2423);
  EXPECT_EQ(block.nTone[1], 0x2625);
  EXPECT_EQ(block.nTone[2], 0x2827);
  EXPECT_EQ(block.nTone[3], 0x2A29);
  EXPECT_EQ(block.nTone[4], 0x2C2B);
  EXPECT_EQ(block.nTone[5], 0x2E2D);
  EXPECT_EQ(block.nTone[6], 0x302F);
  EXPECT_EQ(block.nTone[7], 0x3231);
  EXPECT_EQ(block.nTone[8], 0x3433);
  EXPECT_EQ(block.byOption[0], 0x35);
  EXPECT_EQ(block.byOption[1], 0x36);
  EXPECT_EQ(block.byOption[2], 0x37);
  EXPECT_EQ(block.byOption[3], 0x38);
  EXPECT_EQ(block.nSharpness, 0x3A39);
}

TEST(ParameterBlock, ToneAndSharpnessAreSignedAndOptionsAreNot) {
  tagMVChangeParams block;
  std::memset(&block, 0xFF, sizeof(block));
  EXPECT_EQ(block.lParam0, -1);
  EXPECT_EQ(block.nTone[0], -1);
  EXPECT_EQ(block.nTone[8], -1);
  EXPECT_EQ(block.nSharpness, -1);
  EXPECT_EQ(block.byOption[0], 255);
  EXPECT_EQ(block.byOption[3], 255);
}
