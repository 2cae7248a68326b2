// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/page_instructions.h"

#include "conversion/compiled_targets.h"
//
#include <hwy/detect_targets.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "bench/speed/contestants.h"
#include "bench/speed/counted_page.h"
#include "bench/speed/instruction_count.h"
#include "bench/speed/raster_file.h"
#include "conversion/processor.h"

namespace bench {

namespace {

constexpr std::size_t kWidth = 1852;
constexpr std::size_t kHeight = 1232;
constexpr int kNoPages = 1;  // the filter's exit status of a job without pages

/// Counts a program's jobs of none, one and two of the same page; the job of none ends with a
/// status of its own.
PageInstructions count_pages(Content content, MeteredRun run, int status_of_none) {
  const Picture page = page_picture(content, kWidth, kHeight, 1);
  std::uint64_t counts[3];
  for (int pages = 0; pages < 3; ++pages) {
    const RasterFile raster(page, pages);
    run.input = raster.path();
    run.status = pages == 0 ? status_of_none : 0;
    run.bytes = kImageBytes * static_cast<std::uint64_t>(pages);
    counts[pages] = count_instructions(run).total;
  }
  return {counts[1] - counts[0], counts[2] - counts[1]};
}

std::uint64_t conversion_run(bool on, int pages, std::int64_t target) {
  MeteredRun run;
  run.argv = {TQR7_CONVERT_PAGES, on ? "on" : "off", std::to_string(pages), std::to_string(target)};
  return count_instructions(std::move(run)).total;
}

}  // namespace

PageInstructions floor_page(Content content) {
  return count_pages(content, floor_run("floor-copy"), 0);
}

PageInstructions filter_page(Content content) {
  return count_pages(content, filter_run(Library::Widening, "PageSize=RQ_10x15"), kNoPages);
}

CountedTarget counted_target() {
  const std::vector<std::int64_t> usable = usable_targets();
  for (const CountedTarget& target :
       {CountedTarget{HWY_AVX2, "AVX2"}, {HWY_SSE4, "SSE4"}, {HWY_SSSE3, "SSSE3"}}) {
    if (std::find(usable.begin(), usable.end(), target.number) != usable.end()) {
      return target;
    }
  }
  return {0, "what every processor has"};
}

double conversion_pixel(bool on) {
  const std::int64_t target = counted_target().number;
  const std::uint64_t page = conversion_run(on, 2, target) - conversion_run(on, 1, target);
  return static_cast<double>(page) / static_cast<double>(kCountedWidth * kCountedHeight);
}

}  // namespace bench
