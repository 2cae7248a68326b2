// SPDX-License-Identifier: Apache-2.0
//
// Every row of the paper table, written out.
#include "job/paper_table.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
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

}  // namespace

TEST(PaperTable, RowOf9x13) {
  EXPECT_EQ(Row(PAPER_9x13), (Values{1550, 1082, 1550, 1082, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(PaperTable, RowOf10x15) {
  EXPECT_EQ(Row(PAPER_10x15), (Values{1852, 1232, 1852, 1232, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(PaperTable, RowOf13x18) {
  EXPECT_EQ(Row(PAPER_13x18), (Values{1550, 2134, 1550, 2134, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(PaperTable, RowOf15x20) {
  EXPECT_EQ(Row(PAPER_15x20), (Values{1852, 2434, 1852, 2434, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(PaperTable, RowOf5x15x2_1) {
  EXPECT_EQ(Row(PAPER_5x15x2_1), (Values{1852, 1232, 1852, 1232, 0, 0, 1, 616, 1, 0, 0, 0}));
}

TEST(PaperTable, RowOf5x15x2_2) {
  EXPECT_EQ(Row(PAPER_5x15x2_2), (Values{1852, 1232, 1852, 616, 0, 0, 1, 616, 1, 1, 0, 0}));
}

TEST(PaperTable, RowOf5x15) {
  EXPECT_EQ(Row(PAPER_5x15), (Values{1852, 631, 1852, 631, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(PaperTable, RowOf15x15) {
  EXPECT_EQ(Row(PAPER_15x15), (Values{1852, 1833, 1852, 1833, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(PaperTable, RowOf13x13) {
  EXPECT_EQ(Row(PAPER_13x13), (Values{1550, 1533, 1550, 1533, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(PaperTable, RowOf9x13_WB) {
  EXPECT_EQ(Row(PAPER_9x13_WB), (Values{1550, 1082, 1382, 934, 84, 74, 0, 0, 0, 0, 0, 0}));
}

TEST(PaperTable, RowOf10x15_WB) {
  EXPECT_EQ(Row(PAPER_10x15_WB), (Values{1852, 1232, 1684, 1084, 84, 74, 0, 0, 0, 0, 0, 0}));
}

TEST(PaperTable, RowOf13x18_WB) {
  EXPECT_EQ(Row(PAPER_13x18_WB), (Values{1550, 2134, 1382, 1986, 84, 74, 0, 0, 0, 0, 0, 0}));
}

TEST(PaperTable, RowOf15x20_WB) {
  EXPECT_EQ(Row(PAPER_15x20_WB), (Values{1852, 2434, 1684, 2286, 84, 74, 0, 0, 0, 0, 0, 0}));
}
