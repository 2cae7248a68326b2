// SPDX-License-Identifier: Apache-2.0
//
// A back channel that reads as empty while the printer's readiness is awaited: for a while, and
// for ever, as one does whose other end has been closed.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

/// How often a line stands in the notes.
int Count(const std::string& notes, const std::string& line) {
  int count = 0;
  for (std::size_t at = 0; (at = notes.find(line, at)) != std::string::npos; at += line.size()) {
    ++count;
  }
  return count;
}

const std::string kNap = "nap 20 ms\n";
constexpr int kNaps = 9000;  // as long as a busy printer is waited for: 180 s
const std::string kAnyRead = "back channel, room ";

std::string BeforeTheReply() {
  return UpToExamination() + ReadinessQuestion(kSettings);
}

const std::string kChannelClosed =
    "DEBUG: cupsBackChannelRead() failed. ret=0\n"
    "DEBUG: wr_esc_enable() Error\n"
    "[sleep 1]\n";

void ExpectClosed(const Outcome& outcome) {
  EXPECT_TRUE(SameLog(outcome.log, BeforeTheReply() + kChannelClosed));
  EXPECT_TRUE(
      SameStream(outcome.stream, StatusRequest() + StatusRequest() + ReadinessQuery(kSettings)));
  EXPECT_EQ(outcome.status, 1);
}

TEST(EmptyReads, FourThousandOfThemAreReadAgainAtOnce) {
  const Outcome outcome =
      Print({.input = SmallRaster(), .environment = {{"FILTER_TEST_READS", "real real 0*4000"}}});

  ExpectPrinted(outcome);
  EXPECT_EQ(Count(outcome.notes, kNap), 0);
  EXPECT_EQ(Count(outcome.notes, kAnyRead), 1 + 1 + 4000 + 1);
}

TEST(EmptyReads, AreReadAgainAfterANapFromTheFourThousandAndNinetySixthOn) {
  const Outcome outcome =
      Print({.input = SmallRaster(), .environment = {{"FILTER_TEST_READS", "real real 0*4098"}}});

  ExpectPrinted(outcome);
  EXPECT_EQ(Count(outcome.notes, kNap), 3);
}

TEST(EmptyReads, EndInAnAnswerAfterTheLastNap) {
  const Outcome outcome =
      Print({.input = SmallRaster(), .environment = {{"FILTER_TEST_READS", "real real 0*13095"}}});

  ExpectPrinted(outcome);
  EXPECT_EQ(Count(outcome.notes, kNap), kNaps);
}

TEST(EmptyReads, MeanAClosedChannelWhenTheLastNapBroughtNothing) {
  const Outcome outcome =
      Print({.input = SmallRaster(), .environment = {{"FILTER_TEST_READS", "real real 0*13096"}}});

  ExpectClosed(outcome);
  EXPECT_EQ(Count(outcome.notes, kNap), kNaps);
}

TEST(EmptyReads, AreCountedAnewAfterAByte) {
  const Outcome outcome =
      Print({.input = SmallRaster(),
             .environment = {{"FILTER_TEST_READS", "real real 0*13090 real 0*13090"}},
             .printer = {.readiness = {{.pieces = {kReady.substr(0, 1), kReady.substr(1)}}}}});

  ExpectPrinted(outcome);
  EXPECT_EQ(Count(outcome.notes, kNap), kNaps - 5 + kNaps - 5);
}

TEST(ClosedBackChannel, BeforeTheReadinessReplyEndsTheJobInThreeMinutes) {
  const Outcome outcome = Print(
      {.input = SmallRaster(), .printer = {.readiness = {{.then_close_back_channel = true}}}});

  ExpectClosed(outcome);
  EXPECT_EQ(Count(outcome.notes, kNap), kNaps);
}

TEST(ClosedBackChannel, InTheMidstOfTheReadinessReplyEndsTheJob) {
  const Outcome outcome = Print(
      {.input = SmallRaster(),
       .printer = {.readiness = {{.pieces = {"\xA1\xB2"}, .then_close_back_channel = true}}}});

  ExpectClosed(outcome);
}

TEST(ClosedBackChannel, OfABusyPrinterIsAProtocolError) {
  const Outcome outcome =
      Print({.input = SmallRaster(),
             .printer = {.readiness = {Answer(kBusy), {.then_close_back_channel = true}}}});

  EXPECT_TRUE(SameLog(outcome.log, UpToExamination() + ReadinessExchange(kSettings, kBusy) +
                                       "DEBUG: CMD_GET_ENABLE[01 + 00]\n[sleep 2]\n" +
                                       ReadinessQuestion(kSettings) +
                                       "DEBUG: cupsBackChannelRead() failed. ret=0\n"
                                       "DEBUG: PROTOCOL ERROR\n"
                                       "STATE: +paused\n"
                                       "ERROR: protocol-error 0xffffffff\n"
                                       "DEBUG: protocol-error\n"
                                       "[sleep 1]\n"));
  EXPECT_EQ(outcome.status, 1);
}

}  // namespace
}  // namespace filter_test
