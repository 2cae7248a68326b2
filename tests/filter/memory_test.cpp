// SPDX-License-Identifier: Apache-2.0
//
// Each buffer of a job in turn cannot be had.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

const std::string kError = "ERROR: " + kAnyText + "\n";
const std::string kConverting = "DEBUG: Params=" + kDefaultParams + "\n";
const std::string kStagingBuffer = "196608";

Job JobWithout(const std::string& bytes_and_count, int pages = 1, const std::string& options = "") {
  return {.input = SmallRaster(pages),
          .options = options,
          .environment = {{"FILTER_TEST_NO_MEMORY", bytes_and_count}}};
}

/// A job whose sheet lacks a plane.
Job JobWithoutPlane(const std::string& bytes_and_count, const std::string& options = "") {
  Job job = JobWithout(bytes_and_count, 1, options);
  job.stream_end = StreamEnd::Cut;
  return job;
}

void ExpectFailure(const Outcome& outcome, const std::string& log) {
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + log));
  EXPECT_EQ(outcome.status, 1);
}

TEST(MissingMemory, ForTheRasterLineEndsTheJobWithAnError) {
  ExpectFailure(Print(JobWithout("30 1")), "PAGE: 1 1\n" + kError);
}

TEST(MissingMemory, ForThePageEndsTheJobWithAnError) {
  ExpectFailure(Print(JobWithout("5031300 1")), "PAGE: 1 1\n" + kError);
}

TEST(MissingMemory, ForTheSecondPageEndsTheJobWithoutAPrintOut) {
  const Outcome outcome = Print(JobWithout("5031300 2", 2));

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + Sheet(kSettings, SmallImage())));
  EXPECT_TRUE(SameLog(outcome.log, SmallLog() + "PAGE: 2 1\n" + kError));
  EXPECT_EQ(outcome.status, 1);
}

TEST(MissingMemory, ForTheConvertedPageEndsTheJobWithoutAWord) {
  ExpectFailure(Print(JobWithout("10062600 1")), PageRead(1, "0") + kConverting);
}

TEST(MissingMemory, ForTheMattePlaneEndsTheJobWithoutAWord) {
  ExpectFailure(Print(JobWithout("1695700 1", 1, "RQPrintFinish=Matte")),
                PageRead(1, "0") + kConverting);
}

TEST(MissingMemory, ForTheSecondMattePlaneEndsTheJobAfterTheFirstSheet) {
  const Settings matte{.finish = kMatte};

  const Outcome outcome = Print(JobWithout("1695700 2", 2, "RQPrintFinish=Matte"));

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + Sheet(matte, SmallImage())));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + SmallPage(1) + SmallSheet(matte, 1) +
                                       PageRead(2, "0") + kConverting));
  EXPECT_EQ(outcome.status, 1);
}

TEST(MissingMemory, ForTheJoinedSheetEndsTheJobWithoutAWord) {
  ExpectFailure(Print(JobWithout("13689984 1", 2, "PageSize=RQ_5x15x2_2")),
                PageRead(1, "0") + Conversion(33, 33, 44, 88));
}

const std::string kNotEnough = "ERROR: Not enough memory for the job\n";

Outcome PrintWithoutRaster(const std::string& at, int pages, const std::string& options = "") {
  return Print({.input = SmallRaster(pages),
                .options = options,
                .environment = {{"FILTER_TEST_NO_RASTER", at}}});
}

/// The sheet of the page that waited, after `second_page` of the log and the error.
void ExpectTheWaitingHalf(const Outcome& outcome, const std::string& second_page, int page) {
  const Settings settings{.paper = &kJoined, .rgb_rate = 33, .op_rate = 88};
  const std::string image =
      BlankData(kJoined.page_width, kJoined.page_height) + SmallImage(1, kJoined);

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + Sheet(settings, image) + PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + PageRead(1, "0") + Conversion(33, 33, 44, 88) +
                                       second_page + kNotEnough +
                                       SheetLog(settings, page, 1852, 1232)));
  EXPECT_EQ(outcome.status, 1);
}

TEST(MissingMemory, ForAHeaderEndsThePagesThereAndPrintsTheWaitingHalf) {
  ExpectTheWaitingHalf(PrintWithoutRaster("header 2", 2, "PageSize=RQ_5x15x2_2"), "", 1);
}

TEST(MissingMemory, ForALineEndsThePagesThereAndPrintsTheWaitingHalf) {
  ExpectTheWaitingHalf(PrintWithoutRaster("line 6", 2, "PageSize=RQ_5x15x2_2"),
                       "PAGE: 2 1\nINFO: Printing page 2, 0% complete...\n", 2);
}

TEST(MissingMemory, ForTheFirstHeaderEndsTheJobOnThePrinter) {
  const Outcome outcome = PrintWithoutRaster("header 1", 1);

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + kNotEnough + kNoPages));
  EXPECT_EQ(outcome.status, 1);
}

TEST(MissingMemory, ForTheImageTransferLeavesTheImageOutUnnoticed) {
  const Outcome outcome = Print(JobWithoutPlane(kStagingBuffer + " 1"));

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + StatusRequest() +
                                             ReadinessQuery(kSettings) + JobHeader(kSettings) +
                                             ImageHeader(kSettings) + PrintOut()));
  EXPECT_TRUE(
      SameLog(outcome.log, GoodStart() + SmallPage() + ReadySheet(kSettings) + SheetDone(1)));
  EXPECT_EQ(outcome.status, 0);
}

TEST(MissingMemory, ForTheMatteTransferLeavesTheMattePlaneOutUnnoticed) {
  const Settings matte{.finish = kMatte};

  const Outcome outcome = Print(JobWithoutPlane(kStagingBuffer + " 2", "RQPrintFinish=Matte"));

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + StatusRequest() + ReadinessQuery(matte) +
                                             JobHeader(matte) + ImageHeader(matte) + SmallImage() +
                                             PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, SmallLog(matte)));
  EXPECT_EQ(outcome.status, 0);
}

}  // namespace
}  // namespace filter_test
