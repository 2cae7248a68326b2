// SPDX-License-Identifier: Apache-2.0
//
// Jobs for what does not depend on a page's size: pages of a few dots, which leave the rest of the
// image area white.
#ifndef TQR7_TESTS_FILTER_SMALL_JOB_H
#define TQR7_TESTS_FILTER_SMALL_JOB_H

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/filter/comparison.h"
#include "tests/filter/expected_log.h"
#include "tests/filter/expected_stream.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/raster_maker.h"

namespace filter_test {

/// A job without options, and one in matte.
inline const Settings kSettings{};
inline const Settings kMattePage{.finish = kMatte};

inline Pixels SmallPixels(int number = 1) {
  return Pixels::Pattern(10, 4, number);
}

/// A stream of so many small pages, patterns 1, 2, …
inline std::string SmallRaster(int pages = 1) {
  std::vector<RasterPage> stream;
  for (int number = 1; number <= pages; ++number) {
    stream.emplace_back(SmallPixels(number));
  }
  return RasterStream(stream);
}

/// The image data of a small page.
inline std::string SmallImage(int number = 1, const Paper& paper = k9x13) {
  return ImageData(SmallPixels(number).On(paper.page_width, paper.page_height));
}

/// The log of a small page being read and converted.
inline std::string SmallPage(int page = 1) {
  return PageRead(page, "0") + Conversion(33, 33, 44, 44);
}

/// The log of a small page's sheet on a ready printer.
inline std::string SmallSheet(const Settings& settings, int page = 1) {
  return SheetLog(settings, page, settings.paper->page_width, settings.paper->page_height);
}

/// The log of such a job up to the first readiness query.
inline std::string UpToExamination() {
  return GoodStart() + SmallPage() + StatusExchange() + GoodState() + kCleaned + kExamine;
}

/// All of a job of one small page: its log, and what goes to the printer.
inline std::string SmallLog(const Settings& settings = kSettings) {
  return GoodStart() + SmallPage() + SmallSheet(settings);
}
inline std::string SmallStream(const Settings& settings = kSettings) {
  return StatusRequest() + Sheet(settings, SmallImage()) + PrintOut();
}

inline void ExpectPrinted(const Outcome& outcome, const Settings& settings = kSettings) {
  EXPECT_TRUE(SameLog(outcome.log, SmallLog(settings)));
  EXPECT_TRUE(SameStream(outcome.stream, SmallStream(settings)));
  EXPECT_EQ(outcome.status, 0);
}

/// A job of one sheet that shows `seen`, having read a page with this progress.
inline void ExpectSheet(const Outcome& outcome, const Pixels& seen, const std::string& progress,
                        unsigned copies = 1) {
  EXPECT_TRUE(
      SameStream(outcome.stream, StatusRequest() + Sheet(kSettings, ImageData(seen)) + PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + PageRead(1, progress, copies) +
                                       Conversion(33, 33, 44, 44) + SmallSheet(kSettings)));
  EXPECT_EQ(outcome.status, 0);
}

}  // namespace filter_test

#endif  // TQR7_TESTS_FILTER_SMALL_JOB_H
