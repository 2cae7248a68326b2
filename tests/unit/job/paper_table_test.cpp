// SPDX-License-Identifier: Apache-2.0
//
// Every row of the paper table written out, and what holds for the names of all.
#include "job/paper_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <type_traits>

static_assert(std::is_same_v<decltype(tagPAPERINFO::nPaperWidth), std::int64_t>);
static_assert(std::is_same_v<decltype(tagPAPERINFO::nPaperHeight), std::int64_t>);
static_assert(std::is_same_v<decltype(tagPAPERINFO::nImageWidth), std::int64_t>);
static_assert(std::is_same_v<decltype(tagPAPERINFO::nImageHeight), std::int64_t>);
static_assert(std::is_same_v<decltype(tagPAPERINFO::nImageLeft), std::int64_t>);
static_assert(std::is_same_v<decltype(tagPAPERINFO::nImageTop), std::int64_t>);
static_assert(std::is_same_v<decltype(tagPAPERINFO::byTwoUpMode), std::uint8_t>);
static_assert(sizeof(tagPAPERINFO::nTwoUpSplit) == 4);
static_assert(std::is_same_v<decltype(tagPAPERINFO::byTwoUpOption), std::uint8_t>);
static_assert(sizeof(tagPAPERINFO::nJoinPages) == 4);
static_assert(sizeof(tagPAPERINFO::nJoinGap) == 4);
static_assert(sizeof(tagPAPERINFO::bHalfSheetLast) == 1);

namespace {

/// A row's twelve values in their order.
std::array<std::int64_t, 12> Row(const tagPAPERINFO& paper) {
  return {paper.nPaperWidth,   paper.nPaperHeight, paper.nImageWidth, paper.nImageHeight,
          paper.nImageLeft,    paper.nImageTop,    paper.byTwoUpMode, paper.nTwoUpSplit,
          paper.byTwoUpOption, paper.nJoinPages,   paper.nJoinGap,    paper.bHalfSheetLast};
}

using Values = std::array<std::int64_t, 12>;

struct ExpectedPaper {
  const char* choice;
  const tagPAPERINFO& paper;
  Values values;
};

const ExpectedPaper kExpected[] = {
    {"RQ_9x13", PAPER_9x13, {1550, 1082, 1550, 1082, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"RQ_10x15", PAPER_10x15, {1852, 1232, 1852, 1232, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"RQ_13x18", PAPER_13x18, {1550, 2134, 1550, 2134, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"RQ_15x20", PAPER_15x20, {1852, 2434, 1852, 2434, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"RQ_5x15", PAPER_5x15, {1852, 631, 1852, 631, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"RQ_15x15", PAPER_15x15, {1852, 1833, 1852, 1833, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"RQ_13x13", PAPER_13x13, {1550, 1533, 1550, 1533, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"RQ_5x15x2_1", PAPER_5x15x2_1, {1852, 1232, 1852, 1232, 0, 0, 1, 616, 1, 0, 0, 0}},
    {"RQ_5x15x2_2", PAPER_5x15x2_2, {1852, 1232, 1852, 616, 0, 0, 1, 616, 1, 1, 0, 0}},
    {"RQ_9x13_WB", PAPER_9x13_WB, {1550, 1082, 1382, 934, 84, 74, 0, 0, 0, 0, 0, 0}},
    {"RQ_10x15_WB", PAPER_10x15_WB, {1852, 1232, 1684, 1084, 84, 74, 0, 0, 0, 0, 0, 0}},
    {"RQ_13x18_WB", PAPER_13x18_WB, {1550, 2134, 1382, 1986, 84, 74, 0, 0, 0, 0, 0, 0}},
    {"RQ_15x20_WB", PAPER_15x20_WB, {1852, 2434, 1684, 2286, 84, 74, 0, 0, 0, 0, 0, 0}},
};

constexpr double kMillimetresAnInch = 25.4;

}  // namespace

TEST(PaperTable, HasThe13PapersInTheOrderOfThePpd) {
  const std::span<const NamedPaper> papers = named_papers();
  ASSERT_EQ(papers.size(), std::size(kExpected));
  for (std::size_t i = 0; i < papers.size(); ++i) {
    EXPECT_STREQ(papers[i].choice, kExpected[i].choice);
    EXPECT_EQ(papers[i].paper, &kExpected[i].paper) << kExpected[i].choice;
    EXPECT_EQ(Row(kExpected[i].paper), kExpected[i].values) << kExpected[i].choice;
  }
}

TEST(PaperTable, SaysHowPeopleCallAPaper) {
  const NamedPaper& paper = named_papers()[1];
  EXPECT_EQ(paper.photo_width, 102);
  EXPECT_EQ(paper.photo_height, 152);
  EXPECT_STREQ(paper.inches, "4x6");
  EXPECT_STREQ(paper.words, "10 x 15 cm");
}

TEST(PaperTable, HasTheSamePhotoInInchesAndMillimetres) {
  for (const NamedPaper& paper : named_papers()) {
    double width = 0;
    double height = 0;
    if (std::sscanf(paper.inches, "%lfx%lf", &width, &height) == 2) {
      EXPECT_NEAR(width * kMillimetresAnInch, paper.photo_width, 0.5) << paper.choice;
      EXPECT_NEAR(height * kMillimetresAnInch, paper.photo_height, 0.5) << paper.choice;
    } else {
      EXPECT_STREQ(paper.inches, "") << paper.choice;
    }
  }
}

TEST(PaperTable, HasSheetsSomeMillimetresLargerThanTheirPhotos) {
  for (const NamedPaper& paper : named_papers()) {
    const double width = static_cast<double>(paper.paper->nPaperWidth) * kMillimetresAnInch / 300;
    double height = static_cast<double>(paper.paper->nPaperHeight) * kMillimetresAnInch / 300;
    if (paper.paper->byTwoUpMode != 0) {
      height /= 2;
    }
    const auto [shorter, longer] = std::minmax(paper.photo_width, paper.photo_height);
    EXPECT_GE(std::min(width, height), shorter) << paper.choice;
    EXPECT_LE(std::min(width, height), shorter + 5) << paper.choice;
    EXPECT_GE(std::max(width, height), longer) << paper.choice;
    EXPECT_LE(std::max(width, height), longer + 5) << paper.choice;
  }
}
