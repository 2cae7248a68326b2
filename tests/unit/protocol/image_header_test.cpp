// SPDX-License-Identifier: Apache-2.0
//
// The image header, every byte of it.
#include "protocol/image_header.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "job/job_state.h"
#include "tests/unit/bytes.h"
#include "tests/unit/scripted_clock.h"
#include "tests/unit/settings.h"
#include "tests/unit/single_writes.h"

using testing::ElementsAre;

namespace {

std::string Block(const tagPRINTSETTING& settings, const MV_TYPEDEF::tagRECT& rect) {
  std::array<unsigned char, 512> block{};
  block.fill(0xEE);
  tagMVBandImageParams image = {nullptr, -6, rect};
  create_header_zt(block.data(), &settings, &image);
  return Bytes(block.data(), block.size());
}

class ImageHeader : public testing::Test {
 protected:
  void SetUp() override {
    SetLocalTime(2026, 7, 8, 9, 10, 11);
    gMatteImage = {};
  }
  void TearDown() override { gMatteImage = {}; }
};

}  // namespace

TEST_F(ImageHeader, WithEveryFieldAtAValueOfItsOwn) {
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.nImageLeft = 0x1122;
  settings.nImageTop = 0x3344;
  settings.byPrintFinish = 3;
  gMatteImage.rcBand = {10, 20, 10 + 0x5566, 20 + 0x7788};
  const std::string block = Block(settings, {100, 200, 100 + 0x2143, 200 + 0x6587});
  EXPECT_EQ(block.substr(0, 40), Bytes({0xEE, 0xEE, 0xEE, 0xEE, 0x00, 0x09, 0x11, 0x22,     // 0
                                        0x33, 0x44, 0x21, 0x43, 0x65, 0x87, 0x00, 0x00,     // 8
                                        0x00, 0x00, 0x00, 0x00, 0x55, 0x66, 0x77, 0x88,     // 16
                                        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,     // 24
                                        0x07, 0xEA, 0x07, 0x08, 0x09, 0x0A, 0x0B, 0x00}));  // 32
  EXPECT_EQ(block.substr(40), Zeros(472));
}

TEST_F(ImageHeader, TheSizeIsThatOfTheBandAndNotOfTheSettings) {
  EXPECT_EQ(Block(SettingsOf10x15(), {5, 6, 8, 10}).substr(10, 4), Bytes({0x00, 0x03, 0x00, 0x04}));
}

TEST_F(ImageHeader, ThePlaceIsThatOfTheSettingsAndNotOfTheBand) {
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.nImageLeft = 84;
  settings.nImageTop = 74;
  EXPECT_EQ(Block(settings, {5, 6, 1689, 1090}).substr(6, 8),
            Bytes({0x00, 0x54, 0x00, 0x4A, 0x06, 0x94, 0x04, 0x3C}));
}

TEST_F(ImageHeader, AnInvertedBandSendsTheLowBitsOfItsNegativeSize) {
  EXPECT_EQ(Block(SettingsOf10x15(), {1, 2, 0, 0}).substr(10, 4), Bytes({0xFF, 0xFF, 0xFF, 0xFE}));
}

TEST_F(ImageHeader, NumbersBeyond16BitsSendTheirLowBits) {
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.nImageLeft = 0x10054;
  settings.nImageTop = -1;
  EXPECT_EQ(Block(settings, {0, 0, 0x12345, 0x16789}).substr(6, 8),
            Bytes({0x00, 0x54, 0xFF, 0xFF, 0x23, 0x45, 0x67, 0x89}));
}

TEST_F(ImageHeader, NoFinishButThreeIsMatte) {
  gMatteImage.rcBand = {0, 0, 1852, 1244};
  for (const int finish : {1, 2, 4, 7, 255}) {
    tagPRINTSETTING settings = SettingsOf10x15();
    settings.byPrintFinish = static_cast<std::uint8_t>(finish);
    EXPECT_EQ(Block(settings, {0, 0, 1852, 1232}).substr(20, 4), Zeros(4)) << finish;
  }
}

TEST_F(ImageHeader, CarriesAnyFlag) {
  SingleWrites out;
  const tagPRINTSETTING settings = SettingsOf10x15();
  tagMVBandImageParams image = {nullptr, -6, {0, 0, 1852, 1232}};
  wr_esc_ZT(out.stream(), &settings, &image, 0xA5);
  EXPECT_EQ(out.bytes().substr(0, 6), Bytes({0x1B, 0x5A, 0x54, 0xA5, 0x00, 0x09}));
}
