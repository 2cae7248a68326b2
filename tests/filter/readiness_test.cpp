// SPDX-License-Identifier: Apache-2.0
//
// What the printer's answer to the readiness query brings about, at once and after it was busy.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

const std::string kBusyPass = "DEBUG: CMD_GET_ENABLE[01 + 00]\n[sleep 2]\n";

struct Refusal {
  const char* name;
  unsigned char high;
  unsigned char low;
  const char* lines;  ///< how it is logged
  const char* text;   ///< how the sheet's end is logged
};

class RefusedSheet : public testing::TestWithParam<Refusal> {};

TEST_P(RefusedSheet, IsReportedAndNotSent) {
  const Refusal& refusal = GetParam();
  const std::string reply = EnableReply(refusal.high, refusal.low);

  const Outcome outcome =
      Print({.input = SmallRaster(), .printer = {.readiness = {Answer(reply)}}});

  EXPECT_TRUE(SameLog(outcome.log, UpToExamination() + ReadinessExchange(kSettings, reply) +
                                       refusal.lines + "DEBUG: " + refusal.text + "\n[sleep 1]\n"));
  EXPECT_TRUE(
      SameStream(outcome.stream, StatusRequest() + StatusRequest() + ReadinessQuery(kSettings)));
  EXPECT_EQ(outcome.status, 1);
}

TEST_P(RefusedSheet, IsReportedTheSameWayAfterThePrinterWasBusy) {
  const Refusal& refusal = GetParam();
  const std::string reply = EnableReply(refusal.high, refusal.low);

  const Outcome outcome =
      Print({.input = SmallRaster(), .printer = {.readiness = {Answer(kBusy), Answer(reply)}}});

  EXPECT_TRUE(SameLog(outcome.log, UpToExamination() + ReadinessExchange(kSettings, kBusy) +
                                       kBusyPass + ReadinessExchange(kSettings, reply) +
                                       refusal.lines + "DEBUG: " + refusal.text + "\n[sleep 1]\n"));
  EXPECT_TRUE(SameStream(
      outcome.stream,
      StatusRequest() + StatusRequest() + ReadinessQuery(kSettings) + ReadinessQuery(kSettings)));
  EXPECT_EQ(outcome.status, 1);
}

const Refusal kRefusals[] = {
    {"PaperAndRibbonMismatchWithoutPausingTheQueue", 0x00, 0x01,
     "DEBUG: CMD_GET_ENABLE[00 + 01]\n"
     "ERROR: pagesize-inkribbon-unmuch 0x0001\n",
     "ERROR CMD_GET_ENABLE[00 + 01]"},
    {"PaperAndRibbonMismatchOf0101", 0x01, 0x01,
     "DEBUG: CMD_GET_ENABLE[01 + 01]\n"
     "STATE: +paused\n"
     "ERROR: pagesize-inkribbon-unmuch 0x0101\n",
     "ERROR CMD_GET_ENABLE[01 + 01]"},
    {"SettingsNotAccepted", 0x02, 0x00,
     "DEBUG: CMD_GET_ENABLE[02 + 00]\n"
     "STATE: +paused\n"
     "ERROR: driver-setting-unmuch 0x0200\n",
     "ERROR CMD_GET_ENABLE[02 + 00]"},
    {"PaperAndRibbonMismatchOf0201", 0x02, 0x01,
     "DEBUG: CMD_GET_ENABLE[02 + 01]\n"
     "STATE: +paused\n"
     "ERROR: pagesize-inkribbon-unmuch 0x0201\n",
     "ERROR CMD_GET_ENABLE[02 + 01]"},
    {"OutOfRange", 0xFF, 0xFF,
     "DEBUG: CMD_GET_ENABLE[FF + FF]\n"
     "STATE: +paused\n"
     "ERROR: out-of-range 0xffff\n",
     "ERROR CMD_GET_ENABLE[FF + FF]"},
    {"UnknownAnswer", 0x03, 0x02,
     "DEBUG: PROTOCOL ERROR\n"
     "STATE: +paused\n"
     "ERROR: protocol-error 0x0302\n",
     "protocol-error"},
    {"UnknownAnswerNextToReady", 0x00, 0x02,
     "DEBUG: PROTOCOL ERROR\n"
     "STATE: +paused\n"
     "ERROR: protocol-error 0x0002\n",
     "protocol-error"},
    {"UnknownAnswerNextToBusy", 0x01, 0x02,
     "DEBUG: PROTOCOL ERROR\n"
     "STATE: +paused\n"
     "ERROR: protocol-error 0x0102\n",
     "protocol-error"},
    {"UnknownAnswerNextToSettings", 0x02, 0x02,
     "DEBUG: PROTOCOL ERROR\n"
     "STATE: +paused\n"
     "ERROR: protocol-error 0x0202\n",
     "protocol-error"},
    {"UnknownAnswerNextToOutOfRange", 0xFF, 0xFE,
     "DEBUG: PROTOCOL ERROR\n"
     "STATE: +paused\n"
     "ERROR: protocol-error 0xfffe\n",
     "protocol-error"},
    {"UnknownAnswerWithBothHighBits", 0x80, 0x80,
     "DEBUG: PROTOCOL ERROR\n"
     "STATE: +paused\n"
     "ERROR: protocol-error 0x8080\n",
     "protocol-error"},
};

INSTANTIATE_TEST_SUITE_P(As, RefusedSheet, testing::ValuesIn(kRefusals),
                         [](const testing::TestParamInfo<Refusal>& refusal) {
                           return std::string(refusal.param.name);
                         });

TEST(SecondSheet, ThatIsRefusedEndsTheJobWithoutAPrintOut) {
  const std::string refusal = EnableReply(0x02, 0x01);

  const Outcome outcome =
      Print({.input = SmallRaster(3), .printer = {.readiness = {Answer(kReady), Answer(refusal)}}});

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + Sheet(kSettings, SmallImage(1)) +
                                             StatusRequest() + ReadinessQuery(kSettings)));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + SmallPage(1) + SmallSheet(kSettings, 1) +
                                       SmallPage(2) + StatusExchange() + GoodState() + kCleaned +
                                       kExamine + ReadinessExchange(kSettings, refusal) +
                                       "DEBUG: CMD_GET_ENABLE[02 + 01]\n"
                                       "STATE: +paused\n"
                                       "ERROR: pagesize-inkribbon-unmuch 0x0201\n"
                                       "DEBUG: ERROR CMD_GET_ENABLE[02 + 01]\n"
                                       "[sleep 1]\n"));
  EXPECT_EQ(outcome.status, 1);
}

TEST(FailedExchange, OnTheFirstQueryIsNotClassified) {
  const Outcome outcome = Print(
      {.input = SmallRaster(), .environment = kRealWaits, .printer = {.readiness = {kSilence}}});

  EXPECT_TRUE(SameLog(outcome.log, UpToExamination() + ReadinessQuestion(kSettings) +
                                       "DEBUG: cupsBackChannelRead() failed. ret=-1\n"
                                       "DEBUG: wr_esc_enable() Error\n"
                                       "[sleep 1]\n"));
  EXPECT_TRUE(
      SameStream(outcome.stream, StatusRequest() + StatusRequest() + ReadinessQuery(kSettings)));
  EXPECT_EQ(outcome.status, 1);
}

TEST(FailedExchange, WhileThePrinterIsBusyIsAProtocolError) {
  const Outcome outcome = Print({.input = SmallRaster(),
                                 .environment = kRealWaits,
                                 .printer = {.readiness = {Answer(kBusy), kSilence}}});

  EXPECT_TRUE(SameLog(outcome.log, UpToExamination() + ReadinessExchange(kSettings, kBusy) +
                                       kBusyPass + ReadinessQuestion(kSettings) +
                                       "DEBUG: cupsBackChannelRead() failed. ret=-1\n"
                                       "DEBUG: PROTOCOL ERROR\n"
                                       "STATE: +paused\n"
                                       "ERROR: protocol-error 0xffffffff\n"
                                       "DEBUG: protocol-error\n"
                                       "[sleep 1]\n"));
  EXPECT_EQ(outcome.status, 1);
}

TEST(FailedExchange, AfterFiveBytesIsStillOne) {
  const Outcome outcome = Print({.input = SmallRaster(),
                                 .environment = kRealWaits,
                                 .printer = {.readiness = {Answer("\x01\x02\x03\x04\x00"s)}}});

  EXPECT_TRUE(SameLog(outcome.log, UpToExamination() + ReadinessQuestion(kSettings) +
                                       "DEBUG: cupsBackChannelRead() failed. ret=-1\n"
                                       "DEBUG: wr_esc_enable() Error\n"
                                       "[sleep 1]\n"));
  EXPECT_EQ(outcome.status, 1);
}

TEST(BusyPrinter, IsAskedAgainAfterTwoSecondsEach) {
  const Outcome outcome =
      Print({.input = SmallRaster(),
             .printer = {.readiness = {Answer(kBusy), Answer(kBusy), Answer(kReady)}}});

  EXPECT_TRUE(SameLog(outcome.log, UpToExamination() + ReadinessExchange(kSettings, kBusy) +
                                       kBusyPass + ReadinessExchange(kSettings, kBusy) + kBusyPass +
                                       ReadinessExchange(kSettings, kReady) +
                                       "DEBUG: CMD_GET_ENABLE[00 + 00]\n" +
                                       Transfer(1, 1550, 1082) + SheetDone(1)));
  const std::string query = ReadinessQuery(kSettings);
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + StatusRequest() + query + query + query +
                                             JobHeader(kSettings) +
                                             ImageHeader(kSettings, kFirstSecond + 4) +
                                             SmallImage() + PrintOut()));
  EXPECT_EQ(outcome.status, 0);
}

std::string Repeated(const std::string& text, int times) {
  std::string result;
  for (int i = 0; i < times; ++i) {
    result += text;
  }
  return result;
}

TEST(BusyPrinter, IsGivenUpAfterThreeMinutes) {
  const std::string busy = ReadinessExchange(kSettings, kBusy);

  const Outcome outcome = Print(
      {.input = SmallRaster(), .printer = {.readiness = std::deque<Reply>(200, Answer(kBusy))}});

  EXPECT_TRUE(SameLog(outcome.log, UpToExamination() + busy + Repeated(kBusyPass + busy, 91) +
                                       "STATE: +paused\n"
                                       "ERROR: memory-timeout 0x0100\n"
                                       "DEBUG: Timeout Error\n"
                                       "[sleep 1]\n"));
  EXPECT_TRUE(SameStream(
      outcome.stream, StatusRequest() + StatusRequest() + Repeated(ReadinessQuery(kSettings), 92)));
  EXPECT_EQ(outcome.status, 1);
}

TEST(BusyPrinter, ThatIsReadyAtTheLastQueryPrints) {
  const std::string busy = ReadinessExchange(kSettings, kBusy);

  const Outcome outcome = Print(
      {.input = SmallRaster(), .printer = {.readiness = std::deque<Reply>(91, Answer(kBusy))}});

  EXPECT_TRUE(SameLog(outcome.log, UpToExamination() + Repeated(busy + kBusyPass, 91) +
                                       ReadinessExchange(kSettings, kReady) +
                                       "DEBUG: CMD_GET_ENABLE[00 + 00]\n" +
                                       Transfer(1, 1550, 1082) + SheetDone(1)));
  EXPECT_EQ(outcome.status, 0);
}

TEST(BusyPrinter, StartsAFreshWaitWithEachSheet) {
  const std::string busy = ReadinessExchange(kSettings, kBusy);
  std::deque<Reply> replies(60, Answer(kBusy));
  replies.push_back(Answer(kReady));
  replies.insert(replies.end(), 60, Answer(kBusy));

  const Outcome outcome = Print({.input = SmallRaster(2), .printer = {.readiness = replies}});

  const std::string sheet = StatusExchange() + GoodState() + kCleaned + kExamine +
                            Repeated(busy + kBusyPass, 60) + ReadinessExchange(kSettings, kReady) +
                            "DEBUG: CMD_GET_ENABLE[00 + 00]\n";
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + SmallPage(1) + sheet + Transfer(1, 1550, 1082) +
                                       SheetDone(1) + SmallPage(2) + sheet +
                                       Transfer(2, 1550, 1082) + SheetDone(2)));
  EXPECT_EQ(outcome.status, 0);
}

}  // namespace
}  // namespace filter_test
