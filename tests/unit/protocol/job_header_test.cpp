// SPDX-License-Identifier: Apache-2.0
//
// The job header and the print-out command, every byte of them.
#include "protocol/job_header.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <string>

#include "job/job_state.h"
#include "tests/unit/bytes.h"
#include "tests/unit/settings.h"
#include "tests/unit/single_writes.h"

using testing::ElementsAre;

namespace {

/// The block that the settings give; what it held before is 0xEE.
std::string Block(const tagPRINTSETTING& settings) {
  std::array<unsigned char, 512> block{};
  block.fill(0xEE);
  create_header_sp(block.data(), &settings);
  return Bytes(block.data(), block.size());
}

class JobHeader : public testing::Test {
 protected:
  void SetUp() override {
    gRgbRate = 0;
    gOpRate = 0;
  }
  void TearDown() override { SetUp(); }
};

}  // namespace

TEST_F(JobHeader, WithEveryFieldAtAValueOfItsOwn) {
  tagPRINTSETTING settings = {};
  settings.nReserved = 0x7F7F7F7F;
  settings.nPaperWidth = 0x1122;
  settings.nPaperHeight = 0x3344;
  settings.nImageWidth = 0x7F01;
  settings.nImageHeight = 0x7F02;
  settings.nImageLeft = 0x7F03;
  settings.nImageTop = 0x7F04;
  settings.byTwoUpMode = 0x55;
  settings.nTwoUpSplit = 0x6677;
  settings.byTwoUpOption = 0x88;
  settings.nJoinPages = 0x7F05;
  settings.nJoinGap = 0x7F06;
  settings.bHalfSheetLast = true;
  settings.bySharpness = 0x7F;
  settings.byReserved[0] = 0x7F;
  settings.byReserved[1] = 0x7F;
  settings.byReserved[2] = 0x7F;
  settings.byPrintMode = 0x99;
  settings.byPrintFinish = 0xAA;
  settings.byColorConversion = 0x7F;
  settings.byMarginCutOff = 0x01;
  settings.byWaitNextImage = 0x01;
  settings.byWaitTime = 0xBB;
  settings.nGamma[0] = 0x7F7F;
  settings.nContrast[1] = 0x7F7F;
  settings.nBrightness[2] = 0x7F7F;
  gRgbRate = 0xCC;
  gOpRate = 0xDD;
  const std::string block = Block(settings);
  EXPECT_EQ(block.substr(0, 96), Bytes({0xEE, 0xEE, 0xEE, 0xEE, 0x00, 0x33, 0x11, 0x22,     // 0
                                        0x33, 0x44, 0xBB, 0x00, 0x00, 0x00, 0x01, 0x55,     // 8
                                        0x66, 0x77, 0x88, 0x00, 0x00, 0x00, 0x00, 0x00,     // 16
                                        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,     // 24
                                        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,     // 32
                                        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,     // 40
                                        0xAA, 0x99, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00,     // 48
                                        0x00, 0x00, 0x02, 0x00, 0x00, 0x00, 0x00, 0x00,     // 56
                                        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,     // 64
                                        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,     // 72
                                        0x01, 0xCC, 0xDD, 0x00, 0x00, 0x00, 0x00, 0x00,     // 80
                                        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}));  // 88
  EXPECT_EQ(block.substr(96), Zeros(416));
}

TEST_F(JobHeader, WaitingSwitchedOffIsFFWhateverTheTime) {
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.byWaitNextImage = 0;
  settings.byWaitTime = 7;
  EXPECT_EQ(Block(settings).substr(10, 1), Bytes({0xFF}));
  settings.byWaitTime = 0;
  EXPECT_EQ(Block(settings).substr(10, 1), Bytes({0xFF}));
}

TEST_F(JobHeader, OnlyTheLowestBitSwitchesWaiting) {
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.byWaitNextImage = 2;
  EXPECT_EQ(Block(settings).substr(10, 1), Bytes({0xFF}));
  settings.byWaitNextImage = 3;
  EXPECT_EQ(Block(settings).substr(10, 1), Bytes({0x05}));
}

TEST_F(JobHeader, OnlyTheLowestBitSwitchesTheMarginCutOff) {
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.byMarginCutOff = 2;
  EXPECT_EQ(Block(settings).substr(14, 1), Bytes({0x00}));
  settings.byMarginCutOff = 255;
  EXPECT_EQ(Block(settings).substr(14, 1), Bytes({0x01}));
}

TEST_F(JobHeader, NumbersBeyond16BitsSendTheirLowBits) {
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.nPaperWidth = 0x12345;
  settings.nPaperHeight = -2;
  settings.nTwoUpSplit = 0xFFFF0102;
  const std::string block = Block(settings);
  EXPECT_EQ(block.substr(6, 4), Bytes({0x23, 0x45, 0xFF, 0xFE}));
  EXPECT_EQ(block.substr(16, 2), Bytes({0x01, 0x02}));
}

TEST(PrintOutCommand, WaitingSwitchedOffIsFFWhateverTheTime) {
  SingleWrites out;
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.byWaitNextImage = 2;
  settings.byWaitTime = 9;
  wr_esc_printout(out.stream(), &settings);
  EXPECT_EQ(out.bytes(), Bytes({0x1B, 0x42, 0x51, 0x31, 0x00, 0xFF}));
}
