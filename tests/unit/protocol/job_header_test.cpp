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

TEST_F(JobHeader, OfADefaultSheetOf10x15) {
  gRgbRate = 0x4D;
  gOpRate = 0x5E;
  const std::string block = Block(SettingsOf10x15());
  EXPECT_EQ(block.substr(0, 96), Bytes({0xEE, 0xEE, 0xEE, 0xEE, 0x00, 0x33, 0x07, 0x3C,     // 0
                                        0x04, 0xD0, 0x05, 0x00, 0x00, 0x00, 0x00, 0x00,     // 8
                                        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,     // 16
                                        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,     // 24
                                        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,     // 32
                                        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,     // 40
                                        0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00,     // 48
                                        0x00, 0x00, 0x02, 0x00, 0x00, 0x00, 0x00, 0x00,     // 56
                                        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,     // 64
                                        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,     // 72
                                        0x01, 0x4D, 0x5E, 0x00, 0x00, 0x00, 0x00, 0x00,     // 80
                                        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}));  // 88
  EXPECT_EQ(block.substr(96), Zeros(416));
}

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

TEST_F(JobHeader, WaitTimeZeroIsSentAsItIs) {
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.byWaitTime = 0;
  EXPECT_EQ(Block(settings).substr(10, 1), Bytes({0x00}));
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

TEST_F(JobHeader, TwoPrintsOnASheetHaveTheirSplit) {
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.byTwoUpMode = 1;
  settings.nTwoUpSplit = 616;
  settings.byTwoUpOption = 1;
  EXPECT_EQ(Block(settings).substr(15, 4), Bytes({0x01, 0x02, 0x68, 0x01}));
  EXPECT_EQ(Block(SettingsOf10x15()).substr(15, 4), Bytes({0x00, 0x00, 0x00, 0x00}));
}

TEST_F(JobHeader, FinishComesBeforeMode) {
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.byPrintFinish = 3;
  settings.byPrintMode = 5;
  EXPECT_EQ(Block(settings).substr(48, 2), Bytes({0x03, 0x05}));
  EXPECT_EQ(Block(SettingsOf10x15()).substr(48, 2), Bytes({0x00, 0x00}));
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

TEST_F(JobHeader, ReadsTheRatesAtEachCall) {
  gRgbRate = 1;
  gOpRate = 2;
  EXPECT_EQ(Block(SettingsOf10x15()).substr(80, 4), Bytes({0x01, 0x01, 0x02, 0x00}));
  gRgbRate = 254;
  gOpRate = 255;
  EXPECT_EQ(Block(SettingsOf10x15()).substr(80, 4), Bytes({0x01, 0xFE, 0xFF, 0x00}));
}

TEST_F(JobHeader, IsWrittenWithItsCodeInOneWrite) {
  SingleWrites out;
  const tagPRINTSETTING settings = SettingsOf10x15();
  wr_esc_SP(out.stream(), &settings);
  EXPECT_THAT(out.sizes(), ElementsAre(512U));
  EXPECT_EQ(out.bytes(), Bytes({0x1B, 0x53, 0x50, 0x30}) + Block(settings).substr(4));
}

TEST_F(JobHeader, AWriteThatFailsIsLeftToTheNextExchange) {
  SingleWrites out(1);
  const tagPRINTSETTING settings = SettingsOf10x15();
  wr_esc_SP(out.stream(), &settings);
  EXPECT_EQ(out.attempts(), 1U);
}

TEST(PrintOutCommand, EndsWithTheWaitTime) {
  SingleWrites out;
  const tagPRINTSETTING settings = SettingsOf10x15();
  wr_esc_printout(out.stream(), &settings);
  EXPECT_THAT(out.sizes(), ElementsAre(6U));
  EXPECT_EQ(out.bytes(), Bytes({0x1B, 0x42, 0x51, 0x31, 0x00, 0x05}));
}

TEST(PrintOutCommand, WaitingSwitchedOffIsFFWhateverTheTime) {
  SingleWrites out;
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.byWaitNextImage = 2;
  settings.byWaitTime = 9;
  wr_esc_printout(out.stream(), &settings);
  EXPECT_EQ(out.bytes(), Bytes({0x1B, 0x42, 0x51, 0x31, 0x00, 0xFF}));
}

TEST(PrintOutCommand, WaitTimeZeroIsSentAsItIs) {
  SingleWrites out;
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.byWaitTime = 0;
  wr_esc_printout(out.stream(), &settings);
  EXPECT_EQ(out.bytes(), Bytes({0x1B, 0x42, 0x51, 0x31, 0x00, 0x00}));
}

TEST(PrintOutCommand, ItsTemplateStaysAsItIs) {
  SingleWrites out;
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.byWaitTime = 0xBB;
  wr_esc_printout(out.stream(), &settings);
  settings.byWaitTime = 0x01;
  wr_esc_printout(out.stream(), &settings);
  EXPECT_EQ(out.bytes(), Bytes({0x1B, 0x42, 0x51, 0x31, 0x00, 0xBB,  //
                                0x1B, 0x42, 0x51, 0x31, 0x00, 0x01}));
}
