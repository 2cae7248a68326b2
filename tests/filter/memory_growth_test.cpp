// SPDX-License-Identifier: Apache-2.0
//
// A long job takes no more memory than a short one. bench/many-pages shows it over 10,000 pages.
#include <gtest/gtest.h>

#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

constexpr int kFirstPages = 10;
constexpr int kPages = 60;
constexpr long kOneMattePlane = (631 + 12) * 1852 / 1024;  // kB of the smallest sheet's

long KilobytesAtPage(FilterProcess* filter, int page) {
  filter->WaitForLog("PAGE: " + std::to_string(page) + " 1\n");
  return std::atol(filter->ProcessField("VmHWM").c_str());
}

void ExpectNoGrowth(const std::string& options) {
  Job job;
  job.input = SmallRaster(kPages);
  job.options = options;
  job.printer.forget_stream = true;
  job.stream_end = StreamEnd::Unlooked;
  FilterProcess filter(job);
  const long early = KilobytesAtPage(&filter, kFirstPages);
  const long late = KilobytesAtPage(&filter, kPages);

  EXPECT_GT(early, kOneMattePlane);
  EXPECT_LT(late - early, kOneMattePlane);
  EXPECT_EQ(filter.Finish().status, 0);
}

TEST(PeakOfMemory, DoesNotGrowWithTheMattePagesOfAJob) {
  ExpectNoGrowth("PageSize=RQ_5x15 RQPrintFinish=Matte");
}

TEST(PeakOfMemory, DoesNotGrowWithTheJoinedMatteSheetsOfAJob) {
  ExpectNoGrowth("PageSize=RQ_5x15x2_2 RQPrintFinish=Matte");
}

TEST(PeakOfMemory, OfTheLargestMatteSheetIsBelowAHundredMegabytes) {
  Job job;
  job.input = SmallRaster(2);
  job.options = "PageSize=RQ_15x20 RQPrintFinish=Matte";
  FilterProcess filter(job);

  EXPECT_LT(KilobytesAtPage(&filter, 2), 100 * 1024);
  EXPECT_EQ(filter.Finish().status, 0);
}

}  // namespace
}  // namespace filter_test
