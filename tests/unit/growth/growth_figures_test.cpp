// SPDX-License-Identifier: Apache-2.0
//
// What tables and charts of growth are made of, from runs whose figures are made up.
#include "bench/speed/growth_figures.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using bench::LengthPoint;
using bench::Measured;
using bench::Paper;
using bench::papers;
using bench::QueuesPoint;
using bench::SizePoint;
using bench::Together;
using bench::Usage;

constexpr std::size_t kWidening = 1;  // among the programs

/// Runs of so many seconds, half of them in the system.
Measured Runs(std::initializer_list<double> seconds) {
  Measured measured;
  for (const double cpu : seconds) {
    Usage usage;
    usage.user = cpu / 2;
    usage.system = cpu / 2;
    measured.rounds.push_back(usage);
  }
  return measured;
}

LengthPoint Length(int pages, double seconds) {
  LengthPoint point{pages, {}};
  point.of[kWidening] = Runs({seconds});
  return point;
}

const Paper& PaperNamed(const std::string& name) {
  for (const Paper& paper : papers()) {
    if (paper.name == name) {
      return paper;
    }
  }
  throw std::invalid_argument(name);
}

/// Jobs of 1, 2 and 12 sheets, two rounds.
SizePoint Size(const std::string& paper) {
  SizePoint point{&PaperNamed(paper), false, {}};
  point.of[0][kWidening] = Runs({0.010, 0.010});
  point.of[1][kWidening] = Runs({0.020, 0.030});
  point.of[2][kWidening] = Runs({0.060, 0.090});
  return point;
}

QueuesPoint TwoQueues() {
  QueuesPoint point{2, {}, {}};
  for (const double cpu : {0.1, 0.3, 0.2}) {
    point.of[kWidening].push_back({10 * cpu, Runs({cpu, 3 * cpu}).rounds});
  }
  return point;
}

TEST(GrowthFigures, TellsTheMiddleRoundAndTheOutermost) {
  const Measured measured = Runs({0.009, 0.004, 0.005});
  EXPECT_NEAR(measured.cpu(), 5.0, 1e-9);
  EXPECT_NEAR(measured.lowest_cpu(), 4.0, 1e-9);
  EXPECT_NEAR(measured.highest_cpu(), 9.0, 1e-9);
}

TEST(GrowthFigures, TellsThePeakOfAllRoundsInMillionsOfBytes) {
  Measured measured = Runs({0.1, 0.1});
  measured.rounds[0].peak = 20000;
  measured.rounds[1].peak = 10000;
  EXPECT_NEAR(measured.peak(), 20.48, 1e-9);
}

TEST(GrowthFigures, LeavesTheJobWithoutPagesOutOfTheCostsAndTheFirstPageOutOfTheLine) {
  const std::vector<LengthPoint> lengths = {Length(0, 0.005), Length(1, 0.015), Length(2, 0.030),
                                            Length(10, 0.070), Length(100, 0.520)};
  const std::vector<bench::Point> costs = job_costs(lengths, kWidening);
  ASSERT_EQ(costs.size(), 4U);
  EXPECT_NEAR(costs[0].x, 1.0, 1e-9);
  EXPECT_NEAR(costs[0].y, 15.0, 1e-9);
  const bench::LineFit line = further_line(lengths, kWidening);
  EXPECT_NEAR(line.start, 20.0, 1e-9);
  EXPECT_NEAR(line.slope, 5.0, 1e-9);
}

TEST(GrowthFigures, TakesAFurtherPageFromTheLongestJobLessTheSecond) {
  const SizePoint size = Size("RQ_10x15");
  EXPECT_NEAR(size.further(kWidening), 5.0, 1e-9);
  EXPECT_NEAR(size.lowest_further(kWidening), 4.0, 1e-9);
  EXPECT_NEAR(size.highest_further(kWidening), 6.0, 1e-9);
}

TEST(GrowthFigures, CountsBothPagesOfAJoinedSheet) {
  EXPECT_NEAR(Size("RQ_5x15x2_2").further(kWidening), 2.5, 1e-9);
}

TEST(GrowthFigures, TellsThePageFaultsOfAFurtherPage) {
  SizePoint size = Size("RQ_10x15");
  size.of[1][kWidening].rounds = {Usage{.faults = 1000}};
  size.of[2][kWidening].rounds = {Usage{.faults = 1700}};
  EXPECT_NEAR(size.further_faults(kWidening), 70.0, 1e-9);
}

TEST(GrowthFigures, LeavesMatteAndJoinedSheetsOutOfTheLineOverSizes) {
  std::vector<SizePoint> sizes = {Size("RQ_10x15"), Size("RQ_5x15x2_2"), Size("RQ_15x20")};
  sizes[2].matte = true;
  const std::vector<bench::Point> costs = size_costs(sizes, kWidening);
  ASSERT_EQ(costs.size(), 1U);
  EXPECT_NEAR(costs[0].x, 2.281664, 1e-9);
  EXPECT_NEAR(costs[0].y, 5.0, 1e-9);
}

TEST(GrowthFigures, SharesTheCostOfAllQueuesAmongTheirPages) {
  // 0.8 s in the middle, of two queues of 20 pages.
  EXPECT_NEAR(queue_cost(TwoQueues(), kWidening), 20.0, 1e-9);
  EXPECT_NEAR(queue_cost_range(TwoQueues(), kWidening).first, 10.0, 1e-9);
  EXPECT_NEAR(queue_cost_range(TwoQueues(), kWidening).second, 30.0, 1e-9);
}

TEST(GrowthFigures, CountsThePagesOfAllQueuesInASecond) {
  // 40 pages in 2 s.
  EXPECT_NEAR(pages_a_second(TwoQueues(), kWidening), 20.0, 1e-9);
}

TEST(GrowthFigures, WritesRatiosAndCounts) {
  EXPECT_EQ(bench::signed_percent(0.0314), "+3.1 %");
  EXPECT_EQ(bench::signed_percent(-0.25), "−25.0 %");
  EXPECT_EQ(bench::times(1.044), "1.04 ×");
  EXPECT_EQ(bench::whole(-0.3), "0");
  EXPECT_EQ(bench::whole(5060.6), "5061");
}

TEST(Papers, GoFromTheSmallestRasterPageToTheLargest) {
  ASSERT_EQ(papers().size(), 13U);
  EXPECT_STREQ(papers().front().name, "RQ_5x15x2_2");
  EXPECT_EQ(papers().front().image_pixels(), 1140832U);
  EXPECT_STREQ(papers().back().name, "RQ_15x20");
  EXPECT_EQ(papers().back().image_pixels(), 4507768U);
  EXPECT_STREQ(bench::usual_paper().name, "RQ_10x15");
}

}  // namespace
