// SPDX-License-Identifier: Apache-2.0
// The PPD's page sizes: the scheduler's filters make rasters of exactly the printer's dots from
// them.
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "tests/unit/ppd/open_ppd.h"

namespace {

// Half a thousandth of a dot: points are written with nine digits.
constexpr double kDotTolerance = 0.0005;

double dots(double points) {
  return points * 300.0 / 72.0;
}

struct SizeRow {
  const char* name;
  double sheet_width;   // dots
  double sheet_height;  // dots
  double image_width;   // dots
  double image_height;  // dots
  double border_left;   // dots
  double border_top;    // dots
};

void PrintTo(const SizeRow& row, std::ostream* out) {
  *out << row.name;
}

constexpr SizeRow kSizes[] = {
    {"RQ_9x13", 1550, 1082, 1550, 1082, 0, 0},
    {"RQ_10x15", 1852, 1232, 1852, 1232, 0, 0},
    {"RQ_13x18", 1550, 2134, 1550, 2134, 0, 0},
    {"RQ_15x20", 1852, 2434, 1852, 2434, 0, 0},
    {"RQ_5x15", 1852, 631, 1852, 631, 0, 0},
    {"RQ_15x15", 1852, 1833, 1852, 1833, 0, 0},
    {"RQ_13x13", 1550, 1533, 1550, 1533, 0, 0},
    // 1.25 points, 5.2083 dots, beyond the sheet's left edge, and as much at the right.
    {"RQ_5x15x2_1", 1862.4167, 1232, 1852, 1232, 5.2083, 0},
    {"RQ_5x15x2_2", 1862.4167, 616, 1852, 616, 5.2083, 0},
    {"RQ_9x13_WB", 1550, 1082, 1382, 934, 84, 74},
    {"RQ_10x15_WB", 1852, 1232, 1684, 1084, 84, 74},
    {"RQ_13x18_WB", 1550, 2134, 1382, 1986, 84, 74},
    {"RQ_15x20_WB", 1852, 2434, 1684, 2286, 84, 74},
};

class PpdSize : public testing::TestWithParam<SizeRow> {};

TEST_P(PpdSize, IsTheSheetInDotsWithItsBorder) {
  const SizeRow& row = GetParam();
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  const ppd_size_t* size = ppdPageSize(ppd.get(), row.name);
  ASSERT_NE(size, nullptr);
  EXPECT_NEAR(dots(size->width), row.sheet_width, kDotTolerance);
  EXPECT_NEAR(dots(size->length), row.sheet_height, kDotTolerance);
  EXPECT_NEAR(dots(size->right - size->left), row.image_width, kDotTolerance);
  EXPECT_NEAR(dots(size->top - size->bottom), row.image_height, kDotTolerance);
  EXPECT_NEAR(dots(size->left), row.border_left, kDotTolerance);
  EXPECT_NEAR(dots(size->bottom), row.border_top, kDotTolerance);
}

INSTANTIATE_TEST_SUITE_P(Sizes, PpdSize, testing::ValuesIn(kSizes),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(PpdSizes, AreThirteenAndTenByFifteenComesBeforeTheTwoPrintSheetOfItsSize) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  const std::vector<std::string> expected = {
      "RQ_9x13",     "RQ_10x15",    "RQ_13x18",    "RQ_15x20",    "RQ_5x15",
      "RQ_15x15",    "RQ_13x13",    "RQ_5x15x2_1", "RQ_5x15x2_2", "RQ_9x13_WB",
      "RQ_10x15_WB", "RQ_13x18_WB", "RQ_15x20_WB"};
  std::vector<std::string> names;
  names.reserve(expected.size());
  for (int i = 0; i < ppd->num_sizes; ++i) {
    names.emplace_back(ppd->sizes[i].name);
  }
  EXPECT_EQ(names, expected);
}

TEST(PpdSizes, StartWithTenByFifteenAsTheDefault) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  const ppd_choice_t* marked = ppdFindMarkedChoice(ppd.get(), "PageSize");
  ASSERT_NE(marked, nullptr);
  EXPECT_STREQ(marked->choice, "RQ_10x15");
}

TEST(PpdSizes, AllowNoCustomSize) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  EXPECT_EQ(ppd->variable_sizes, 0);
}

}  // namespace
