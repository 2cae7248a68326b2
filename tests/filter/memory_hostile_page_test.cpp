// SPDX-License-Identifier: Apache-2.0
//
// Headers that tell of pages and lines beyond all memory: the lie costs an error or a white page,
// and no more memory than the stream has bytes for.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

constexpr unsigned kTwoToThe31 = 0x80000000;
constexpr unsigned kLargest = 0xFFFFFFFF;  // a multiple of 3, as libcups asks of a line of pixels
constexpr unsigned kLargestLine = 0x7FFFFFFE;  // bytes: libcups takes none of more
constexpr long kFewMegabytes = 40L * 1024;

/// With so many bytes of address space, as on a small board that does not promise what it lacks.
Job JobOnASmallBoard(const RasterPage& page) {
  Job job;
  job.input = UncheckedStream(page);
  job.environment["LD_PRELOAD"] = "";
  job.program = "/usr/bin/prlimit";
  job.arguments = {"--as=1000000000", FILTER_TEST_PROGRAM, "7", "anna", "Beach", "1", ""};
  return job;
}

/// The most memory that the filter had while it read the page.
long KilobytesForPage(const RasterPage& page) {
  Job job;
  job.input = UncheckedStream(page);
  job.more_input = true;
  FilterProcess filter(job);
  filter.WaitForLog("INFO: Printing page 1, 0% complete...\n");
  filter.PlayFor(std::chrono::milliseconds(200));
  const long peak = std::atol(filter.ProcessField("VmHWM").c_str());
  filter.CloseInput();
  filter.Finish();
  return peak;
}

void ExpectFewMegabytes(long kilobytes) {
  EXPECT_GT(kilobytes, 1024);  // the filter was there to be asked
  EXPECT_LT(kilobytes, kFewMegabytes);
}

TEST(HostilePage, OfTwoGigabytesALineEndsWithAnErrorWhereTheyCannotBeHad) {
  const Outcome outcome =
      Print(JobOnASmallBoard(RasterPage(kTwoToThe31, 4, 24, kLargestLine, "abc")));

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest()));
  EXPECT_TRUE(outcome.log.ends_with("PAGE: 1 1\nERROR: Unable to allocate memory for page 1\n"))
      << outcome.log;
  EXPECT_EQ(outcome.status, 1);
}

TEST(HostilePage, OfFourGigabytesALineIsNoPage) {
  const Outcome outcome =
      Print({.input = UncheckedStream(RasterPage(kTwoToThe31, 4, 24, kLargest, "abc"))});

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + PrintOut()));
  EXPECT_TRUE(outcome.log.ends_with(kNoPages)) << outcome.log;
  EXPECT_EQ(outcome.status, 1);
}

TEST(HostilePage, OfTwoGigabytesALineTakesNoMoreMemoryThanItsStreamHasBytes) {
  ExpectFewMegabytes(
      KilobytesForPage(RasterPage(kTwoToThe31, kTwoToThe31 - 1, 24, kLargestLine, "abc")));
}

TEST(HostilePage, OfTheLargestNumbersTakesNoMoreMemoryThanAnyOther) {
  ExpectFewMegabytes(KilobytesForPage(RasterPage(kLargest, 0x7FFFFFFF, 24, 30, "abc")));
}

}  // namespace
}  // namespace filter_test
