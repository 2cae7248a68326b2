// SPDX-License-Identifier: Apache-2.0
//
// One page on every paper size, in both finishes: all that the printer gets and all that is logged.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/expected_log.h"
#include "tests/filter/expected_stream.h"
#include "tests/filter/filter_process.h"

namespace filter_test {
namespace {

std::vector<Paper> PapersOfOnePage() {
  std::vector<Paper> papers(std::begin(kPapers), std::end(kPapers));
  std::erase_if(papers, [](const Paper& paper) { return paper.choice == "RQ_5x15x2_2"s; });
  return papers;
}

std::string Choice(const testing::TestParamInfo<Paper>& paper) {
  return paper.param.choice;
}

class PaperSize : public testing::TestWithParam<Paper> {};

TEST_P(PaperSize, PrintsAGlossPageAsOneSheet) {
  const Settings settings{.paper = &GetParam()};
  const Paper& paper = GetParam();
  const Pixels page = Pixels::Pattern(paper.page_width, paper.page_height);

  const Outcome outcome =
      Print({.input = RasterStream({RasterPage(page)}), .options = "PageSize="s + paper.choice});

  EXPECT_TRUE(
      SameStream(outcome.stream, StatusRequest() + Sheet(settings, ImageData(page)) + PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + WholePage(settings)));
  EXPECT_EQ(outcome.status, 0);
}

TEST_P(PaperSize, PrintsAMattePageWithItsMattePlane) {
  const Settings settings{.paper = &GetParam(), .finish = kMatte};
  const Paper& paper = GetParam();
  const Pixels page = Pixels::Pattern(paper.page_width, paper.page_height);

  const Outcome outcome = Print({.input = RasterStream({RasterPage(page)}),
                                 .options = "RQPrintFinish=Matte PageSize="s + paper.choice});

  EXPECT_TRUE(
      SameStream(outcome.stream, StatusRequest() + Sheet(settings, ImageData(page)) + PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + WholePage(settings)));
  EXPECT_EQ(outcome.status, 0);
}

INSTANTIATE_TEST_SUITE_P(Every, PaperSize, testing::ValuesIn(PapersOfOnePage()), Choice);

}  // namespace
}  // namespace filter_test
