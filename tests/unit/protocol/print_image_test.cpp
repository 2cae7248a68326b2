// SPDX-License-Identifier: Apache-2.0
//
// One sheet from end to end: the bytes in their order, the checks that come first, the pause.
#include "protocol/print_image.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>

#include "job/job_state.h"
#include "tests/reason_keywords.h"
#include "tests/unit/bytes.h"
#include "tests/unit/capture.h"
#include "tests/unit/protocol/query_log.h"
#include "tests/unit/scripted_clock.h"
#include "tests/unit/scripted_connection.h"
#include "tests/unit/scripted_destinations.h"
#include "tests/unit/settings.h"

using testing::ElementsAre;

namespace {

constexpr const char* kStatusRequested =
    "DEBUG: [CMD] size=8\n"
    "DEBUG: [CMD] 0000: 1b 47 44 30 00 00 01 16\n"
    "DEBUG: CUPS_SC_CMD_DRAIN_OUTPUT=CUPS_SC_STATUS_OK(1)\n";

const std::string kGoodStatus = std::string(kStatusRequested) +
                                "DEBUG: [STS] size=15\n"
                                "DEBUG: [STS] 0000: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
                                "DEBUG: =======> printer_state=GOOD\n" +
                                Withdrawals() +
                                "clean_printer_state() START\n"
                                "STATE: -none\n"
                                "clean_printer_state() END\n";

struct Outcome {
  bool result = false;
  std::string out;
  std::string err;
};

/// Prints two pixels in a line: AAAAAA and BBBBBB.
Outcome Print(const tagPRINTSETTING& settings) {
  std::array<unsigned char, 12> bits = {'A', 'A', 'A', 'A', 'A', 'A', 'B', 'B', 'B', 'B', 'B', 'B'};
  tagMVBandImageParams image = {bits.data(), -12, {0, 0, 2, 1}};
  Outcome outcome;
  Capture out(stdout);
  Capture err(stderr);
  outcome.result = print_image(&settings, &image);
  outcome.out = out.Arrived();
  outcome.err = err.Text();
  return outcome;
}

/// The header bytes of a default sheet of 10x15 behind the code, with the rates 0x4D and 0x5E.
std::string JobHeaderBody(unsigned char finish) {
  return Bytes({0x00, 0x33, 0x07, 0x3C, 0x04, 0xD0, 0x05, 0x00}) + Zeros(36) +
         Bytes({finish, 0x00, 0x01, 0, 0, 0, 0, 0, 0, 0, 0x02}) + Zeros(21) +
         Bytes({0x01, 0x4D, 0x5E}) + Zeros(429);
}

/// The header of the two pixels with a matte plane of the given size, at 2026-07-08 09:10:11.
std::string ImageHeader(unsigned char matte_width, unsigned char matte_height) {
  return Bytes(
             {0x1B, 0x5A, 0x54, 0x01, 0x00, 0x09, 0x00, 0x00, 0x00, 0x00, 0x00, 0x02, 0x00, 0x01}) +
         Zeros(6) + Bytes({0x00, matte_width, 0x00, matte_height}) + Zeros(8) +
         Bytes({0x07, 0xEA, 7, 8, 9, 10, 11}) + Zeros(473);
}

const std::string kStatusRequest = Bytes({0x1B, 0x47, 0x44, 0x30, 0x00, 0x00, 0x01, 0x16});
const std::string kQueryCode = Bytes({0x1B, 0x47, 0x44, 0x33});
const std::string kHeaderCode = Bytes({0x1B, 0x53, 0x50, 0x30});

class PrintImage : public testing::Test {
 protected:
  void SetUp() override {
    ResetConnection();
    SetDefaultReasons("none");
    SetLocalTime(2026, 7, 8, 9, 10, 11);
    page = 3;
    gRgbRate = 0x4D;
    gOpRate = 0x5E;
    gMatteImage = {};
  }
  void TearDown() override {
    page = 0;
    gRgbRate = 0;
    gOpRate = 0;
    gMatteImage = {};
  }
};

}  // namespace

TEST_F(PrintImage, AGlossSheetIsRequestQueryHeadersAndPixels) {
  Connection().Answer(Zeros(15));
  Connection().Answer(Zeros(6));
  const Outcome outcome = Print(SettingsOf10x15());
  EXPECT_TRUE(outcome.result);
  EXPECT_EQ(outcome.out, kStatusRequest + kQueryCode + JobHeaderBody(0) + kHeaderCode +
                             JobHeaderBody(0) + ImageHeader(0, 0) + "AAAAAABBBBBB");
}

TEST_F(PrintImage, AMatteSheetEndsWithItsMattePlane) {
  std::array<unsigned char, 9> matte = {'m', 'a', 't', 't', 'e', 'p', 'l', 'a', 'n'};
  gMatteImage = {matte.data(), -3, {0, 0, 3, 3}};
  Connection().Answer(Zeros(15));
  Connection().Answer(Zeros(6));
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.byPrintFinish = 3;
  const Outcome outcome = Print(settings);
  EXPECT_TRUE(outcome.result);
  EXPECT_EQ(outcome.out, kStatusRequest + kQueryCode + JobHeaderBody(3) + kHeaderCode +
                             JobHeaderBody(3) + ImageHeader(3, 3) + "AAAAAABBBBBB" + "matteplan");
}

TEST_F(PrintImage, AFinishThatIsNeitherGlossNorMatteHasNoMattePlane) {
  std::array<unsigned char, 1> matte = {'m'};
  gMatteImage = {matte.data(), -1, {0, 0, 1, 1}};
  Connection().Answer(Zeros(15));
  Connection().Answer(Zeros(6));
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.byPrintFinish = 4;
  EXPECT_EQ(Print(settings).out, kStatusRequest + kQueryCode + JobHeaderBody(4) + kHeaderCode +
                                     JobHeaderBody(4) + ImageHeader(0, 0) + "AAAAAABBBBBB");
}

TEST_F(PrintImage, LogsEveryStep) {
  Connection().Answer(Zeros(15));
  Connection().Answer(Zeros(6));
  EXPECT_EQ(Print(SettingsOf10x15()).err, kGoodStatus + "DEBUG: ExaminePage() START\n" +
                                              QueryAnswered("00 00") +
                                              "DEBUG: CMD_GET_ENABLE[00 + 00]\n"
                                              "INFO: Printing page 3, 99% complete...\n"
                                              "INFO: Printing page 3, 100% complete...\n");
}

TEST_F(PrintImage, PausesFiveSecondsBeforeTheTailOfTheImageLeaves) {
  Connection().Answer(Zeros(15));
  Connection().Answer(Zeros(6));
  const Outcome outcome = Print(SettingsOf10x15());
  EXPECT_THAT(Connection().journal,
              ElementsAre("drain 512 5.0, 8 sent", "read 512 1.0, 8 sent",      //
                          "drain 512 5.0, 520 sent", "read 512 1.0, 520 sent",  //
                          "sleep 5 0.0, 520 sent"));
  EXPECT_EQ(outcome.out.size(), 8U + 512U + 512U + 512U + 12U);
}

TEST_F(PrintImage, APrinterInErrorGetsNothingButTheRequest) {
  Connection().Answer(Bytes({0, 0, 0, 0, 0x26, 0x65}) + Zeros(9));
  const Outcome outcome = Print(SettingsOf10x15());
  EXPECT_FALSE(outcome.result);
  EXPECT_EQ(outcome.out, kStatusRequest);
  EXPECT_EQ(outcome.err, std::string(kStatusRequested) +
                             "DEBUG: [STS] size=15\n"
                             "DEBUG: [STS] 0000: 00 00 00 00 26 65 00 00 00 00 00 00 00 00 00\n"
                             "DEBUG: =======> printer_state=0x2665\n"
                             "STATE: +com.corvantiel-error0008_2665\n"
                             "DEBUG: com.corvantiel-error0008_2665 0x2665\n" +
                             Withdrawals("com.corvantiel-error0008_2665") +
                             "DEBUG: =======> exit(1) Because printer has error\n");
  EXPECT_TRUE(DestinationCalls().empty());
  EXPECT_THAT(Connection().journal, ElementsAre("drain 512 5.0, 8 sent", "read 512 1.0, 8 sent"));
}

TEST_F(PrintImage, AnUnavailablePrinterGetsNothingButTheRequest) {
  const Outcome outcome = Print(SettingsOf10x15());
  EXPECT_FALSE(outcome.result);
  EXPECT_EQ(outcome.out, kStatusRequest);
  EXPECT_EQ(outcome.err, std::string(kStatusRequested) +
                             "DEBUG: cupsBackChannelRead() failed. ret=-1\n"
                             "DEBUG: =======> printer_state=UNAVAILABLE\n"
                             "STATE: +com.corvantiel-error0004\n"
                             "DEBUG: com.corvantiel-error0004 UNAVAILABLE\n"
                             "DEBUG: error_number part mismatch processing \n" +
                             Withdrawals("com.corvantiel-error0004") +
                             "DEBUG: =======> exit(1) Because printer has error\n");
  EXPECT_TRUE(DestinationCalls().empty());
}

TEST_F(PrintImage, ARefusedSheetIsNotSentAndWaitsASecond) {
  Connection().Answer(Zeros(15));
  Connection().Answer(Bytes({0, 0, 0, 0, 0x00, 0x01}));
  const Outcome outcome = Print(SettingsOf10x15());
  EXPECT_FALSE(outcome.result);
  EXPECT_EQ(outcome.out, kStatusRequest + kQueryCode + JobHeaderBody(0));
  EXPECT_EQ(outcome.err, kGoodStatus + "DEBUG: ExaminePage() START\n" + QueryAnswered("00 01") +
                             "DEBUG: CMD_GET_ENABLE[00 + 01]\n"
                             "ERROR: pagesize-inkribbon-unmuch 0x0001\n"
                             "DEBUG: ERROR CMD_GET_ENABLE[00 + 01]\n");
  EXPECT_EQ(Connection().journal.back(), "sleep 1 0.0, 520 sent");
}

TEST_F(PrintImage, AReadinessCheckThatFailsNamesItselfInTheLog) {
  Connection().Answer(Zeros(15));
  const Outcome outcome = Print(SettingsOf10x15());
  EXPECT_FALSE(outcome.result);
  EXPECT_EQ(outcome.err, kGoodStatus + "DEBUG: ExaminePage() START\n" + kQuerySent +
                             "DEBUG: cupsBackChannelRead() failed. ret=-1\n"
                             "DEBUG: wr_esc_enable() Error\n");
  EXPECT_EQ(Connection().journal.back(), "sleep 1 0.0, 520 sent");
}

TEST_F(PrintImage, WritesThatFailWhileTheImageIsSentGoUnnoticed) {
  // The exchanges go to standard output; the image goes to the job's stream, which is full.
  std::array<unsigned char, 12> bits = {};
  tagMVBandImageParams image = {bits.data(), -12, {0, 0, 2, 1}};
  const tagPRINTSETTING settings = SettingsOf10x15();
  Connection().Answer(Zeros(15));
  Connection().Answer(Zeros(6));
  std::FILE* const before = fpOut;
  std::FILE* full = std::fopen("/dev/full", "w");
  ASSERT_NE(full, nullptr);
  std::setvbuf(full, nullptr, _IONBF, 0);
  fpOut = full;
  Capture out(stdout);
  Capture err(stderr);
  const bool result = print_image(&settings, &image);
  const std::string messages = err.Text();
  out.Text();
  fpOut = before;
  std::fclose(full);
  EXPECT_TRUE(result);
  EXPECT_EQ(messages.substr(messages.find("DEBUG: CMD_GET_ENABLE[00 + 00]\n")),
            "DEBUG: CMD_GET_ENABLE[00 + 00]\n"
            "INFO: Printing page 3, 100% complete...\n");
}

TEST_F(PrintImage, ABusyPrinterIsAskedAgainBeforeTheHeaders) {
  Connection().Answer(Zeros(15));
  Connection().Answer(Bytes({0, 0, 0, 0, 0x01, 0x00}));
  Connection().Answer(Zeros(6));
  const Outcome outcome = Print(SettingsOf10x15());
  EXPECT_TRUE(outcome.result);
  const std::string query = kQueryCode + JobHeaderBody(0);
  EXPECT_EQ(outcome.out, kStatusRequest + query + query + kHeaderCode + JobHeaderBody(0) +
                             ImageHeader(0, 0) + "AAAAAABBBBBB");
}
