// SPDX-License-Identifier: Apache-2.0
//
// The paper size that joins two raster pages in one sheet.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

constexpr int kWidth = 1852;
constexpr int kHalf = 616;
constexpr int kWhole = 1232;
const std::string kJoinedOption = "PageSize=RQ_5x15x2_2";
const std::string kHalfPageProgress = "0 10 20 31 41";
const std::string kUsualRates = "10 40 20 45 30 50 40 55";

std::string HalfPages(int count) {
  std::vector<RasterPage> pages;
  for (int number = 1; number <= count; ++number) {
    pages.emplace_back(Pixels::Pattern(kWidth, kHalf, number));
  }
  return RasterStream(pages);
}

std::string Half(int number) {
  return ImageData(Pixels::Pattern(kWidth, kHalf, number));
}

std::string JoinedLog(const Settings& settings, int page) {
  return SheetLog(settings, page, kWidth, kWhole);
}

Job JoinedJob(int pages, const std::string& more_options = "") {
  return {.input = HalfPages(pages),
          .options = kJoinedOption + more_options,
          .environment = {{"FILTER_TEST_RATES", kUsualRates}}};
}

const Settings kGlossSheet{.paper = &kJoined};
const Settings kMatteSheet{.paper = &kJoined, .finish = kMatte};

TEST(JoinedSheet, OfALonePageIsPrintedAtTheEndWithAWhiteUpperHalf) {
  const Settings sheet = kGlossSheet.WithRates(10, 80);

  const Outcome outcome = Print(JoinedJob(1));

  EXPECT_TRUE(
      SameStream(outcome.stream,
                 StatusRequest() + Sheet(sheet, BlankData(kWidth, kHalf) + Half(1)) + PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + PageRead(1, kHalfPageProgress) +
                                       Conversion(10, 10, 40, 80) + JoinedLog(sheet, 1)));
  EXPECT_EQ(outcome.status, 0);
}

TEST(JoinedSheet, OfTwoPagesHasTheSecondPageAboveTheFirst) {
  const Settings sheet = kGlossSheet.WithRates(30, 80);

  const Outcome outcome = Print(JoinedJob(2));

  EXPECT_TRUE(
      SameStream(outcome.stream, StatusRequest() + Sheet(sheet, Half(2) + Half(1)) + PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + PageRead(1, kHalfPageProgress) +
                                       Conversion(10, 10, 40, 80) + PageRead(2, kHalfPageProgress) +
                                       Conversion(20, 30, 45, 80) + JoinedLog(sheet, 2)));
  EXPECT_EQ(outcome.status, 0);
}

TEST(JoinedSheet, OfTwoPagesIsFollowedByOneForTheThird) {
  const Settings first = kGlossSheet.WithRates(30, 80);
  const Settings second = kGlossSheet.WithRates(30, 100);

  const Outcome outcome = Print(JoinedJob(3));

  EXPECT_TRUE(SameStream(
      outcome.stream, StatusRequest() + Sheet(first, Half(2) + Half(1)) +
                          Sheet(second, BlankData(kWidth, kHalf) + Half(3), 1, kFirstSecond + 5) +
                          PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + PageRead(1, kHalfPageProgress) +
                                       Conversion(10, 10, 40, 80) + PageRead(2, kHalfPageProgress) +
                                       Conversion(20, 30, 45, 80) + JoinedLog(first, 2) +
                                       PageRead(3, kHalfPageProgress) +
                                       Conversion(30, 30, 50, 100) + JoinedLog(second, 3)));
  EXPECT_EQ(outcome.status, 0);
}

TEST(JoinedSheet, OfFourPagesAreTwo) {
  const Settings first = kGlossSheet.WithRates(30, 80);
  const Settings second = kGlossSheet.WithRates(70, 100);

  const Outcome outcome = Print(JoinedJob(4));

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + Sheet(first, Half(2) + Half(1)) +
                                             Sheet(second, Half(4) + Half(3), 1, kFirstSecond + 5) +
                                             PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log,
                      GoodStart() + PageRead(1, kHalfPageProgress) + Conversion(10, 10, 40, 80) +
                          PageRead(2, kHalfPageProgress) + Conversion(20, 30, 45, 80) +
                          JoinedLog(first, 2) + PageRead(3, kHalfPageProgress) +
                          Conversion(30, 30, 50, 100) + PageRead(4, kHalfPageProgress) +
                          Conversion(40, 70, 55, 100) + JoinedLog(second, 4)));
  EXPECT_EQ(outcome.status, 0);
}

TEST(JoinedMatteSheet, OfALonePageCarriesItsMattePlane) {
  const Settings sheet = kMatteSheet.WithRates(10, 40);

  const Outcome outcome = Print(JoinedJob(1, " RQPrintFinish=Matte"));

  EXPECT_TRUE(
      SameStream(outcome.stream,
                 StatusRequest() + Sheet(sheet, BlankData(kWidth, kHalf) + Half(1)) + PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + PageRead(1, kHalfPageProgress) +
                                       Conversion(10, 10, 40, 40) + JoinedLog(sheet, 1)));
  EXPECT_EQ(outcome.status, 0);
}

TEST(JoinedMatteSheet, TakesTheMattePlaneOfItsFirstPage) {
  const Settings first = kMatteSheet.WithRates(30, 40);
  const Settings second = kMatteSheet.WithRates(70, 50);

  const Outcome outcome = Print(JoinedJob(4, " RQPrintFinish=Matte"));

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + Sheet(first, Half(2) + Half(1), 1) +
                                             Sheet(second, Half(4) + Half(3), 3, kFirstSecond + 5) +
                                             PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + PageRead(1, kHalfPageProgress) +
                                       Conversion(10, 10, 40, 40) + PageRead(2, kHalfPageProgress) +
                                       Conversion(20, 30, 45, 40) + JoinedLog(first, 2) +
                                       PageRead(3, kHalfPageProgress) + Conversion(30, 30, 50, 50) +
                                       PageRead(4, kHalfPageProgress) + Conversion(40, 70, 55, 50) +
                                       JoinedLog(second, 4)));
  EXPECT_EQ(outcome.status, 0);
}

TEST(JoinedRates, WrapAtAByte) {
  Job job = JoinedJob(2);
  job.environment["FILTER_TEST_RATES"] = "200 130 100 7";
  const Settings sheet = kGlossSheet.WithRates(44, 4);

  const Outcome outcome = Print(job);

  EXPECT_TRUE(
      SameStream(outcome.stream, StatusRequest() + Sheet(sheet, Half(2) + Half(1)) + PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + PageRead(1, kHalfPageProgress) +
                                       Conversion(200, 200, 130, 4) +
                                       PageRead(2, kHalfPageProgress) + Conversion(100, 44, 7, 4) +
                                       JoinedLog(sheet, 2)));
}

TEST(LoneLastPage, ThatThePrinterRefusesStillEndsInAPrintOut) {
  Job job = JoinedJob(1);
  job.printer.readiness = {Answer(EnableReply(0x00, 0x01))};
  const Settings sheet = kGlossSheet.WithRates(10, 80);

  const Outcome outcome = Print(job);

  EXPECT_TRUE(SameStream(outcome.stream,
                         StatusRequest() + StatusRequest() + ReadinessQuery(sheet) + PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + PageRead(1, kHalfPageProgress) +
                                       Conversion(10, 10, 40, 80) + StatusExchange() + GoodState() +
                                       kCleaned + kExamine +
                                       ReadinessExchange(sheet, EnableReply(0x00, 0x01)) +
                                       "DEBUG: CMD_GET_ENABLE[00 + 01]\n"
                                       "ERROR: pagesize-inkribbon-unmuch 0x0001\n"
                                       "DEBUG: ERROR CMD_GET_ENABLE[00 + 01]\n"
                                       "[sleep 1]\n"));
  EXPECT_EQ(outcome.status, 0);
}

TEST(LoneLastPage, OnAPrinterInErrorStillEndsInAPrintOut) {
  Job job = JoinedJob(1);
  const std::string reply = StatusReply(0x26, 0x65);
  job.printer.status = {Answer(kGood), Answer(reply)};

  const Outcome outcome = Print(job);

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + StatusRequest() + PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + PageRead(1, kHalfPageProgress) +
                                       Conversion(10, 10, 40, 80) + StatusExchange(reply) +
                                       KnownError("0x2665", "com.corvantiel-error0008_2665") +
                                       kStop));
  EXPECT_EQ(outcome.status, 0);
}

TEST(JoinedSheet, ThatFailsAtItsSecondPageIsNotPrinted) {
  Job job = JoinedJob(2);
  job.environment["FILTER_TEST_RETURNS"] = "0 12";

  const Outcome outcome = Print(job);

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + PageRead(1, kHalfPageProgress) +
                                       Conversion(10, 10, 40, 80) + PageRead(2, kHalfPageProgress) +
                                       "DEBUG: Params=" + kDefaultParams +
                                       "\n"
                                       "DEBUG: MVChangeImage()=12\n"
                                       "ERROR: Unable to convert image (12)\n"));
  EXPECT_EQ(outcome.status, 1);
}

TEST(JoinedSheet, ThatThePrinterRefusesEndsTheJobWithoutAPrintOut) {
  Job job = JoinedJob(3);
  job.printer.readiness = {Answer(EnableReply(0x02, 0x00))};
  const Settings sheet = kGlossSheet.WithRates(30, 80);

  const Outcome outcome = Print(job);

  EXPECT_TRUE(
      SameStream(outcome.stream, StatusRequest() + StatusRequest() + ReadinessQuery(sheet)));
  EXPECT_EQ(outcome.status, 1);
}

}  // namespace
}  // namespace filter_test
