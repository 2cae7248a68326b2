// SPDX-License-Identifier: Apache-2.0
//
// Prints one job of very many pages through the filter and its own conversion library, with the
// tests' backend and without the pauses, and tells the filter's memory on the way. A growth from
// page 100 on fails it. Started by bench/many-pages.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

constexpr int kFirst = 10;
constexpr int kSettled = 100;  // pages until the first measurement that counts
constexpr int kStep = 100;     // pages between two looks
constexpr long kNoise = 512;   // kB: a page of the allocator's here or there
constexpr int kUsualPages = 10000;

struct Memory {
  long resident = 0;  // kB
  long peak = 0;      // kB
};

int Pages() {
  const char* pages = std::getenv("MANY_PAGES");
  return pages == nullptr ? kUsualPages : std::atoi(pages);
}

Memory AtPage(FilterProcess* filter, int page) {
  filter->WaitForLog("PAGE: " + std::to_string(page) + " 1\n");
  return {std::atol(filter->ProcessField("VmRSS").c_str()),
          std::atol(filter->ProcessField("VmHWM").c_str())};
}

bool IsARow(int page) {
  return page == kFirst || page == 100 || page == 1000 || page == 10000 || page == Pages();
}

void Measure(const char* name, const std::string& options) {
  Job job;
  job.program = FILTER_TEST_BUILD "/rastertoprinter";
  job.input = SmallRaster(Pages());
  job.options = options;
  job.ppd->filters = {"application/vnd.cups-raster 0 " FILTER_TEST_BUILD "/rastertoprinter"};
  job.printer.forget_stream = true;
  job.stream_end = StreamEnd::Unlooked;
  job.longest_run = std::chrono::hours(3);
  FilterProcess filter(job);
  Memory settled;
  for (int page = kFirst; page <= Pages(); page += page < kSettled ? kSettled - kFirst : kStep) {
    const Memory now = AtPage(&filter, page);
    ASSERT_GT(now.peak, 0) << "the filter has ended before page " << page;
    settled = page == kSettled ? now : settled;
    if (IsARow(page)) {
      std::printf("| %s | %d | %ld | %ld |\n", name, page, now.resident, now.peak);
      std::fflush(stdout);
    }
    ASSERT_TRUE(page < kSettled || now.peak - settled.peak <= kNoise)
        << "at page " << page << ": " << now.peak << " kB after " << settled.peak;
  }
  EXPECT_EQ(filter.Finish().status, 0);
}

TEST(ManyPages, OfGloss) {
  Measure("gloss", "PageSize=RQ_5x15");
}

TEST(ManyPages, OfMatte) {
  Measure("matte", "PageSize=RQ_5x15 RQPrintFinish=Matte");
}

TEST(ManyPages, OfMatteJoinedSheets) {
  Measure("matte, joined", "PageSize=RQ_5x15x2_2 RQPrintFinish=Matte");
}

}  // namespace
}  // namespace filter_test
