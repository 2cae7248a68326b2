// SPDX-License-Identifier: Apache-2.0
//
// SIGTERM at every stage of a job.
#include <gtest/gtest.h>

#include <chrono>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/seeded_random.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

const std::string kFirstProgress = "PAGE: 1 1\nINFO: Printing page 1, 0% complete...\n";

/// Part of a page that the rest of does not come: its header and a few lines.
std::string StartOfPage(const std::string& pages_before = "") {
  const std::string page = RasterStream({RasterPage(Pixels::Pattern(10, 100))});
  return (pages_before.empty() ? page : pages_before + page.substr(4))
      .substr(0, pages_before.size() + 4 + sizeof(cups_page_header2_t) + 90);
}

TEST(Cancel, BeforeTheFirstPageKillsTheFilter) {
  FilterProcess filter({.input = RasterStream({}), .more_input = true});
  filter.WaitForLog("clean_printer_state() END\n");
  filter.Terminate();

  const Outcome outcome = filter.Finish();

  EXPECT_EQ(outcome.signal, SIGTERM);
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart()));
}

TEST(Cancel, WhileAPageIsReadDropsThePage) {
  FilterProcess filter({.input = StartOfPage(), .more_input = true});
  filter.WaitForLog("0% complete");
  filter.Terminate();

  const Outcome outcome = filter.Finish();

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + kFirstProgress));
}

TEST(Cancel, WhileTheSecondPageIsReadLeavesThePrintOutAway) {
  FilterProcess filter({.input = StartOfPage(SmallRaster()), .more_input = true});
  filter.WaitForLog("page 2, 0% complete");
  filter.Terminate();

  const Outcome outcome = filter.Finish();

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + Sheet(kSettings, SmallImage())));
  EXPECT_TRUE(
      SameLog(outcome.log, SmallLog() + "PAGE: 2 1\nINFO: Printing page 2, 0% complete...\n"));
}

TEST(Cancel, WhileTheSecondHalfIsReadDropsTheWaitingHalf) {
  FilterProcess filter(
      {.input = StartOfPage(SmallRaster()), .more_input = true, .options = "PageSize=RQ_5x15x2_2"});
  filter.WaitForLog("page 2, 0% complete");
  filter.Terminate();

  const Outcome outcome = filter.Finish();

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest()));
}

TEST(Cancel, WithinTheConversionDropsThePage) {
  const Outcome outcome =
      Print({.input = SmallRaster(), .environment = {{"FILTER_TEST_TERM_CALL", "1"}}});

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest()));
  EXPECT_TRUE(SameLog(outcome.log,
                      GoodStart() + PageRead(1, "0") + "DEBUG: Params=" + kDefaultParams + "\n"));
}

TEST(Cancel, WhileThePrinterIsBusySendsNothingMore) {
  const Outcome outcome = Print({.input = SmallRaster(),
                                 .environment = {{"FILTER_TEST_TERM_SLEEP", "1"}},
                                 .printer = {.readiness = {Answer(kBusy)}}});

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(
      SameStream(outcome.stream, StatusRequest() + StatusRequest() + ReadinessQuery(kSettings)));
  EXPECT_TRUE(SameLog(outcome.log, UpToExamination() + ReadinessExchange(kSettings, kBusy) +
                                       "DEBUG: CMD_GET_ENABLE[01 + 00]\n[sleep 2]\n"));
}

TEST(Cancel, InThePauseAfterASheetSendsTheRestOfTheSheetAndNoPrintOut) {
  const Outcome outcome =
      Print({.input = SmallRaster(2), .environment = {{"FILTER_TEST_TERM_SLEEP", "1"}}});

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + Sheet(kSettings, SmallImage())));
  EXPECT_TRUE(SameLog(outcome.log, SmallLog()));
}

TEST(Cancel, InThePauseAfterARefusalEndsTheJobWithoutAnError) {
  const std::string refusal = EnableReply(0x00, 0x01);

  const Outcome outcome = Print({.input = SmallRaster(),
                                 .environment = {{"FILTER_TEST_TERM_SLEEP", "1"}},
                                 .printer = {.readiness = {Answer(refusal)}}});

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(
      SameStream(outcome.stream, StatusRequest() + StatusRequest() + ReadinessQuery(kSettings)));
}

TEST(Cancel, InATransferThatIsHeldUpEndsTheStreamWhereItStands) {
  FilterProcess filter({.input = SmallRaster(),
                        .printer = {.readiness = {{.pieces = {kReady}, .then_hold_stream = true}}},
                        .stream_end = StreamEnd::Cut});
  filter.WaitUntilStuck();
  filter.Terminate();

  const Outcome outcome = filter.Finish();

  const std::string whole = StatusRequest() + Sheet(kSettings, SmallImage());
  EXPECT_EQ(outcome.status, 0);
  EXPECT_LT(outcome.stream.size(), whole.size());
  EXPECT_TRUE(SameStream(outcome.stream, whole.substr(0, outcome.stream.size())));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + SmallPage() + ReadySheet(kSettings)));
}

TEST(Cancel, BetweenTwoPagesIsIgnored) {
  FilterProcess filter({.input = SmallRaster(), .more_input = true});
  filter.WaitUntilTermIsIgnored();
  filter.Terminate();
  filter.CloseInput();

  const Outcome outcome = filter.Finish();

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(SameStream(outcome.stream, SmallStream()));
  EXPECT_TRUE(SameLog(outcome.log, SmallLog()));
}

TEST(Cancel, WhileTheLastHalfSheetIsPrintedIsIgnored) {
  const Settings settings{.paper = &kJoined, .op_rate = 88};

  const Outcome outcome = Print({.input = SmallRaster(),
                                 .options = "PageSize=RQ_5x15x2_2",
                                 .environment = {{"FILTER_TEST_TERM_SLEEP", "1"}}});

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(SameStream(outcome.stream,
                         StatusRequest() +
                             Sheet(settings, BlankData(1852, 616) + SmallImage(1, kJoined)) +
                             PrintOut()));
}

TEST(Cancel, AtAnyMomentLeavesTheBeginningOfTheJob) {
  const std::string whole = StatusRequest() + Sheet(kSettings, SmallImage(1)) +
                            Sheet(kSettings, SmallImage(2), 1, kFirstSecond + 5) + PrintOut();
  std::mt19937 random = SeededRandom(19);
  for (int round = 0; round < 25; ++round) {
    SCOPED_TRACE(round);
    FilterProcess filter({.input = SmallRaster(2), .stream_end = StreamEnd::Anywhere});
    filter.PlayFor(std::chrono::milliseconds(random() % 120));
    filter.Terminate();

    const Outcome outcome = filter.Finish();

    EXPECT_TRUE(outcome.status == 0 || outcome.signal == SIGTERM) << outcome.status;
    EXPECT_TRUE(SameStream(outcome.stream, whole.substr(0, outcome.stream.size())));
  }
}

}  // namespace
}  // namespace filter_test
