// SPDX-License-Identifier: Apache-2.0
//
// Jobs for what does not depend on a page's size: pages of a few dots, which leave the rest of the
// image area white.
#ifndef TQR7_TESTS_FILTER_SMALL_JOB_H
#define TQR7_TESTS_FILTER_SMALL_JOB_H

#include <string>
#include <vector>

#include "tests/filter/expected_log.h"
#include "tests/filter/expected_stream.h"
#include "tests/filter/raster_maker.h"

namespace filter_test {

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

}  // namespace filter_test

#endif  // TQR7_TESTS_FILTER_SMALL_JOB_H
