// SPDX-License-Identifier: Apache-2.0
//
// Several sheets in one job, and the scheduler's reasons that are cleared before each.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

TEST(TwoPages, AreTwoSheetsAndOnePrintOut) {
  const Outcome outcome = Print({.input = SmallRaster(2)});

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + Sheet(kSettings, SmallImage(1)) +
                                             Sheet(kSettings, SmallImage(2), 1, kFirstSecond + 5) +
                                             PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + SmallPage(1) + SmallSheet(kSettings, 1) +
                                       SmallPage(2) + SmallSheet(kSettings, 2)));
  EXPECT_EQ(outcome.status, 0);
}

TEST(TwoMattePages, EachCarryTheirOwnMattePlane) {
  const Outcome outcome = Print({.input = SmallRaster(2), .options = "RQPrintFinish=Matte"});

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + Sheet(kMattePage, SmallImage(1), 1) +
                                             Sheet(kMattePage, SmallImage(2), 2, kFirstSecond + 5) +
                                             PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + SmallPage(1) + SmallSheet(kMattePage, 1) +
                                       SmallPage(2) + SmallSheet(kMattePage, 2)));
  EXPECT_EQ(outcome.status, 0);
}

TEST(Rates, StartAfreshWithEachSheet) {
  const Outcome outcome =
      Print({.input = SmallRaster(2), .environment = {{"FILTER_TEST_RATES", "10 40 20 45"}}});

  const Settings first = kSettings.WithRates(10, 40);
  const Settings second = kSettings.WithRates(20, 45);
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + Sheet(first, SmallImage(1)) +
                                             Sheet(second, SmallImage(2), 1, kFirstSecond + 5) +
                                             PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + PageRead(1, "0") + Conversion(10, 10, 40, 40) +
                                       SmallSheet(first, 1) + PageRead(2, "0") +
                                       Conversion(20, 20, 45, 45) + SmallSheet(second, 2)));
}

TEST(PrinterInError, AtTheSecondSheetEndsTheJobWithoutAPrintOut) {
  const std::string reply = StatusReply(0x21, 0x10);

  const Outcome outcome =
      Print({.input = SmallRaster(3),
             .printer = {.status = {Answer(kGood), Answer(kGood), Answer(reply)}}});

  EXPECT_TRUE(SameStream(outcome.stream,
                         StatusRequest() + Sheet(kSettings, SmallImage(1)) + StatusRequest()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + SmallPage(1) + SmallSheet(kSettings, 1) +
                                       SmallPage(2) + StatusExchange(reply) +
                                       KnownError("0x2110", "com.corvantiel-error0007_2110") +
                                       kStop));
  EXPECT_EQ(outcome.status, 1);
}

TEST(SilentPrinter, AtTheFirstSheetEndsTheJobWithoutAPrintOut) {
  const Outcome outcome = Print({.input = SmallRaster(),
                                 .environment = kRealWaits,
                                 .printer = {.status = {Answer(kGood), kSilence}}});

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + StatusRequest()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + SmallPage(1) + FailedStatusExchange() +
                                       UnknownError("UNAVAILABLE") + kStop));
  EXPECT_EQ(outcome.status, 1);
}

TEST(TimeStamp, OfALeapSecondIsTheLastOrdinaryOne) {
  const Outcome outcome =
      Print({.input = SmallRaster(), .environment = {{"FILTER_TEST_CLOCK", "2026 3 4 5 6 60"}}});

  const std::string sheet = Sheet(kSettings, SmallImage(), 1, 59);
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + sheet + PrintOut()));
}

TEST(TimeStamp, CountsMonthsFromOne) {
  const Outcome outcome = Print(
      {.input = SmallRaster(), .environment = {{"FILTER_TEST_CLOCK", "1999 12 31 23 58 59"}}});

  const std::size_t image_header = 8 + 8 + 512 + 512;
  ASSERT_GE(outcome.stream.size(), image_header + 512);
  EXPECT_EQ(outcome.stream.substr(image_header + 32, 8), "\x07\xCF\x0C\x1F\x17\x3A\x3B\x00"s);
}

/// The log of a job of one sheet whose default destination makes `cleaning` be written.
std::string LogWithCleaning(const std::string& cleaning) {
  std::string log = SmallLog();
  const std::string lines =
      "clean_printer_state() START\n" + cleaning + "clean_printer_state() END\n";
  for (std::size_t at = 0; (at = log.find(kCleaned, at)) != std::string::npos;) {
    log.replace(at, kCleaned.size(), lines);
    at += lines.size();
  }
  return log;
}

void ExpectCleaning(const std::map<std::string, std::string>& environment,
                    const std::string& cleaning) {
  const Outcome outcome = Print({.input = SmallRaster(), .environment = environment});

  EXPECT_TRUE(SameLog(outcome.log, LogWithCleaning(cleaning)));
  EXPECT_EQ(outcome.status, 0);
}

TEST(StaleReasons, OfTheDefaultDestinationAreAllWithdrawnInTheirOrder) {
  ExpectCleaning({{"FILTER_TEST_REASONS", "com.corvantiel-error0004,toner-low-report"}},
                 "STATE: -com.corvantiel-error0004\nSTATE: -toner-low-report\n");
}

TEST(StaleReasons, ThatAreNoneAreWithdrawnByThatName) {
  ExpectCleaning({{"FILTER_TEST_REASONS", "none"}}, "STATE: -none\n");
}

TEST(StaleReasons, BetweenTwoCommasAreNotThere) {
  ExpectCleaning({{"FILTER_TEST_REASONS", "alpha,,beta"}}, "STATE: -alpha\nSTATE: -beta\n");
}

TEST(StaleReasons, KeepTheirBlanks) {
  ExpectCleaning({{"FILTER_TEST_REASONS", "alpha, beta"}}, "STATE: -alpha\nSTATE: - beta\n");
}

TEST(StaleReasons, InAnEmptyTextAreWithdrawnOnceWithoutAName) {
  ExpectCleaning({{"FILTER_TEST_REASONS", ""}}, "STATE: -(null)\n");
}

TEST(StaleReasons, OfCommasOnlyAreWithdrawnOnceWithoutAName) {
  ExpectCleaning({{"FILTER_TEST_REASONS", ",,,"}}, "STATE: -(null)\n");
}

TEST(StaleReasons, ThatTheDestinationDoesNotTellAreWithdrawnOnceWithoutAName) {
  ExpectCleaning({{"FILTER_TEST_DEFAULT", "bare"}}, "STATE: -(null)\n");
}

TEST(StaleReasons, StayWhenThePrinterIsInError) {
  const std::string reply = StatusReply(0x21, 0x10);

  const Outcome outcome = Print({.input = SmallRaster(),
                                 .environment = {{"FILTER_TEST_REASONS", "alpha"}},
                                 .printer = {.status = {Answer(reply)}}});

  EXPECT_TRUE(SameLog(outcome.log, kBanner + kTwoWays + StatusExchange(reply) +
                                       KnownError("0x2110", "com.corvantiel-error0007_2110") +
                                       kStop));
}

}  // namespace
}  // namespace filter_test
