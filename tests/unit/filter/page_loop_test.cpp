// SPDX-License-Identifier: Apache-2.0
//
// A raster stream that libcups has no memory to go on with, which it tells in no other way than the
// stream's end.
#include "filter/page_loop.h"

#include <cups/raster.h>
#include <gtest/gtest.h>

#include <cerrno>

#include "job/job_state.h"
#include "tests/unit/capture.h"
#include "tests/unit/filter/job_fixture.h"
#include "tests/unit/settings.h"

namespace {

int g_pages = 0;       // headers that are there to read
bool g_memory = true;  // what comes behind them, and their lines, can be had
const std::string kPrintOut = {0x1B, 'B', 'Q', '1', 0x00, 0x05};
const char kNoMemory[] = "ERROR: Not enough memory for the job\n";

class PageLoop : public JobTest {
 protected:
  void SetUp() override {
    JobTest::SetUp();
    page = 0;
  }

  /// Goes through a stream of so many pages, whose lines are all missing.
  void Print(int pages, bool memory) {
    g_pages = pages;
    g_memory = memory;
    Capture out(stdout);
    Capture err(stderr);
    printed_ = print_pages(nullptr, nullptr, SettingsOfSmallSheet(), "");
    log_ = err.Text();
    stream_ = out.Text();
  }

  bool printed_ = false;
  std::string log_;
  std::string stream_;
};

}  // namespace

extern "C" unsigned cupsRasterReadHeader(cups_raster_t* /*raster*/, cups_page_header_t* header) {
  if (g_pages == 0) {
    errno = g_memory ? 0 : ENOMEM;
    return 0;
  }
  --g_pages;
  *header = {};
  header->NumCopies = 1;
  header->cupsWidth = 2;
  header->cupsHeight = 2;
  header->cupsBytesPerLine = 6;
  return 1;
}

extern "C" unsigned cupsRasterReadPixels(cups_raster_t* /*raster*/, unsigned char* /*line*/,
                                         unsigned /*bytes*/) {
  errno = g_memory ? 0 : ENOMEM;
  return 0;
}

TEST_F(PageLoop, EndsTheJobOnThePrinterAtTheStreamsEnd) {
  Print(0, true);
  EXPECT_TRUE(printed_);
  EXPECT_EQ(log_, "");
  EXPECT_EQ(stream_, kPrintOut);
}

TEST_F(PageLoop, EndsTheJobOnThePrinterWhereThereIsNoMemoryForThePage) {
  Print(0, false);
  EXPECT_FALSE(printed_);
  EXPECT_EQ(log_, kNoMemory);
  EXPECT_EQ(stream_, kPrintOut);
}

TEST_F(PageLoop, PrintsNoPageWhoseLinesThereIsNoMemoryFor) {
  Print(1, false);
  EXPECT_FALSE(printed_);
  EXPECT_EQ(log_, std::string("PAGE: 1 1\nINFO: Printing page 1, 0% complete...\n") + kNoMemory);
  EXPECT_EQ(stream_, kPrintOut);
  EXPECT_EQ(Planes[0], nullptr);
  EXPECT_EQ(Planes[1], nullptr);
}
