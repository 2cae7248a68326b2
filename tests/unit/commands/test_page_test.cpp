// SPDX-License-Identifier: Apache-2.0
#include "commands/test_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "filter/ppd_options.h"
#include "job/paper_table.h"
#include "tests/unit/commands/picture.h"
#include "tests/unit/ppd_file.h"

namespace {

using testing::ElementsAre;

/// Where things stand on a size's first page, in dots.
struct PaperTest {
  const char* choice;
  const tagPAPERINFO* paper;
  int columns[8];  ///< of the patches
  int rows[3];
  int words_left;  ///< of the first line
  int words_top;
  int words_scale;
  int step_x;  ///< of the first step at the top edge, and at the left one
  int step_y;
};

// clang-format off
const PaperTest kPapers[] = {
    {"RQ_9x13", &PAPER_9x13, {110, 279, 449, 618, 788, 957, 1127, 1296}, {178, 251, 324}, 100, 622, 3, 651, 417},
    {"RQ_10x15", &PAPER_10x15, {110, 317, 524, 731, 939, 1146, 1353, 1560}, {178, 279, 380}, 100, 772, 3, 802, 492},
    {"RQ_13x18", &PAPER_13x18, {110, 279, 449, 618, 788, 957, 1127, 1296}, {178, 422, 666}, 100, 1554, 4, 651, 943},
    {"RQ_15x20", &PAPER_15x20, {110, 317, 524, 731, 939, 1146, 1353, 1560}, {178, 477, 776}, 100, 1854, 4, 802, 1093},
    {"RQ_5x15x2_1", &PAPER_5x15x2_1, {110, 211, 313, 414, 516, 617, 719, 820}, {106, 203, 300}, 946, 156, 3, 802, 184},
    {"RQ_5x15x2_2", &PAPER_5x15x2_2, {110, 211, 313, 414, 516, 617, 719, 820}, {106, 203, 300}, 946, 156, 3, 802, 184},
    {"RQ_5x15", &PAPER_5x15, {110, 211, 313, 414, 516, 617, 719, 820}, {106, 208, 310}, 946, 156, 3, 802, 191},
    {"RQ_15x15", &PAPER_15x15, {110, 317, 524, 731, 939, 1146, 1353, 1560}, {178, 367, 556}, 100, 1253, 4, 802, 792},
    {"RQ_13x13", &PAPER_13x13, {110, 279, 449, 618, 788, 957, 1127, 1296}, {178, 312, 446}, 100, 953, 4, 651, 642},
    {"RQ_9x13_WB", &PAPER_9x13_WB, {110, 258, 407, 555, 704, 852, 1001, 1149}, {178, 224, 270}, 100, 474, 3, 567, 343},
    {"RQ_10x15_WB", &PAPER_10x15_WB, {110, 296, 482, 668, 855, 1041, 1227, 1413}, {178, 251, 325}, 100, 624, 3, 718, 418},
    {"RQ_13x18_WB", &PAPER_13x18_WB, {110, 258, 407, 555, 704, 852, 1001, 1149}, {178, 395, 612}, 100, 1406, 4, 567, 869},
    {"RQ_15x20_WB", &PAPER_15x20_WB, {110, 296, 482, 668, 855, 1041, 1227, 1413}, {178, 450, 722}, 100, 1706, 4, 718, 1019},
};
// clang-format on

tagPRINTSETTING SettingsOf(const std::string& choice) {
  PpdFile ppd(PickOne("PageSize", {choice}));
  tagPRINTSETTING settings{};
  get_print_setting(ppd.get(), &settings);
  return settings;
}

Picture TestPage(const std::string& choice, int number = 1) {
  const tagPRINTSETTING settings = SettingsOf(choice);
  Picture picture(settings.nImageWidth, settings.nImageHeight);
  draw_test_page(picture.canvas(), settings, number,
                 {"2026-03-04 05:06", setting_words(settings, "photo")});
  return picture;
}

class TestPageOfSize : public testing::TestWithParam<PaperTest> {};

TEST_P(TestPageOfSize, KeepsWithinItsPage) {
  EXPECT_TRUE(TestPage(GetParam().choice, 1).GuardsStand());
  EXPECT_TRUE(TestPage(GetParam().choice, 2).GuardsStand());
}

TEST_P(TestPageOfSize, HasEachPatchAtItsPlace) {
  const Picture picture = TestPage(GetParam().choice);
  const char* const colours[3][8] = {
      {"FF0000", "00FF00", "0000FF", "00FFFF", "FF00FF", "FFFF00", "FF8000", "8000FF"},
      {"F6D7C3", "E8B999", "D39C78", "B47853", "8C5636", "5A3825", "7FB2E5", "5E8C3A"},
      {"000000", "242424", "494949", "6D6D6D", "929292", "B6B6B6", "DBDBDB", "FFFFFF"}};
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 8; ++column) {
      EXPECT_EQ(picture.Dot(GetParam().columns[column], GetParam().rows[row]),
                colours[row][column]);
    }
  }
}

/// The first two steps: 5 dots of black, 10 of grey.
TEST_P(TestPageOfSize, HasAGaugeAtEachEdge) {
  const Picture picture = TestPage(GetParam().choice);
  const int x = GetParam().step_x;
  const int y = GetParam().step_y;
  const int right = static_cast<int>(GetParam().paper->nImageWidth) - 1;
  const int bottom = static_cast<int>(GetParam().paper->nImageHeight) - 1;
  EXPECT_EQ(picture.Dot(x, 4), "000000");
  EXPECT_EQ(picture.Dot(x, 5), "FFFFFF");
  EXPECT_EQ(picture.Dot(x + 16, 9), "969696");
  EXPECT_EQ(picture.Dot(x + 16, 10), "FFFFFF");
  EXPECT_EQ(picture.Dot(x, bottom - 4), "000000");
  EXPECT_EQ(picture.Dot(x, bottom - 5), "FFFFFF");
  EXPECT_EQ(picture.Dot(4, y), "000000");
  EXPECT_EQ(picture.Dot(5, y), "FFFFFF");
  EXPECT_EQ(picture.Dot(right - 9, y + 16), "969696");
  EXPECT_EQ(picture.Dot(right - 10, y + 16), "FFFFFF");
}

/// The P of "Paper": its stem is the scale's number of dots wide and seven times as high.
TEST_P(TestPageOfSize, IsLegible) {
  const Picture picture = TestPage(GetParam().choice);
  const int left = GetParam().words_left;
  const int top = GetParam().words_top;
  const int scale = GetParam().words_scale;
  EXPECT_EQ(picture.Dot(left, top - 1), "FFFFFF");
  EXPECT_EQ(picture.Dot(left, top), "606060");
  EXPECT_EQ(picture.Dot(left + scale - 1, top + 7 * scale - 1), "606060");
  EXPECT_EQ(picture.Dot(left + scale, top + 7 * scale - 1), "FFFFFF");
  EXPECT_EQ(picture.Dot(left, top + 7 * scale), "FFFFFF");
  EXPECT_GE(scale, 3);  // 21 dots are 1.8 mm
}

INSTANTIATE_TEST_SUITE_P(Paper, TestPageOfSize, testing::ValuesIn(kPapers),
                         [](const testing::TestParamInfo<PaperTest>& paper) {
                           return std::string(paper.param.choice);
                         });

/// Every sixth dot of the title, whose dots are squares of six.
TEST(TestPage, HasATitle) {
  const Picture picture = TestPage("RQ_10x15");
  std::vector<std::string> title;
  for (int y = 100; y < 100 + 7 * 6; y += 6) {
    std::string row;
    for (int x = 100; x < 100 + 23 * 6; x += 6) {
      row += picture.Dot(x, y) == "000000" ? '#' : '.';
    }
    title.push_back(row);
  }
  EXPECT_THAT(title, ElementsAre("#####..###..####..#####",  //
                                 "..#...#...#.#...#.....#",  //
                                 "..#...#...#.#...#....#.",  //
                                 "..#...#...#.####....#..",  //
                                 "..#...#.#.#.#.#.....#..",  //
                                 "..#...#..#..#..#...#...",  //
                                 "..#....##.#.#...#..#..."));
}

/// The date ends at the right edge of the content, in dots of three.
TEST(TestPage, HasTheDate) {
  const Picture picture = TestPage("RQ_10x15");
  std::vector<std::string> end;
  for (int y = 121; y < 121 + 7 * 3; y += 3) {
    std::string row;
    for (int x = 1752 - 11 * 3; x < 1752; x += 3) {
      row += picture.Dot(x, y) == "000000" ? '#' : '.';
    }
    end.push_back(row);
  }
  EXPECT_THAT(end, ElementsAre(".###...###.",  //
                               "#...#.#....",  //
                               "#..##.#....",  //
                               "#.#.#.####.",  //
                               "##..#.#...#",  //
                               "#...#.#...#",  //
                               ".###...###."));
}

TEST(TestPage, HasAGreyRampBelowThePatches) {
  const Picture picture = TestPage("RQ_10x15");
  EXPECT_EQ(picture.Dot(100, 500), "000000");
  EXPECT_EQ(picture.Dot(926, 500), "7F7F7F");
  EXPECT_EQ(picture.Dot(1749, 500), "FEFEFE");
}

TEST(TestPage, HasAFrameFiveMillimetresFromTheEdges) {
  const Picture picture = TestPage("RQ_10x15");
  EXPECT_EQ(picture.Dot(58, 200), "FFFFFF");
  EXPECT_EQ(picture.Dot(59, 200), "B0B0B0");
  EXPECT_EQ(picture.Dot(60, 200), "B0B0B0");
  EXPECT_EQ(picture.Dot(61, 200), "FFFFFF");
  EXPECT_EQ(picture.Dot(1792, 1172), "B0B0B0");
  EXPECT_EQ(picture.Dot(1793, 1173), "FFFFFF");
}

TEST(TestPage, HasNoCutOnASheetOfOnePrint) {
  const Picture picture = TestPage("RQ_10x15");
  EXPECT_EQ(picture.Dot(300, 0), "FFFFFF");
  EXPECT_EQ(picture.Dot(300, 615), "FFFFFF");
  EXPECT_EQ(picture.Dot(300, 1231), "FFFFFF");
}

TEST(TestPage, ShowsTheCutOfTwoPrintsOnOnePage) {
  const Picture picture = TestPage("RQ_5x15x2_1");
  EXPECT_EQ(picture.Dot(300, 607), "FFFFFF");
  EXPECT_EQ(picture.Dot(300, 608), "0060E0");
  EXPECT_EQ(picture.Dot(300, 615), "0060E0");
  EXPECT_EQ(picture.Dot(300, 616), "FF8000");
  EXPECT_EQ(picture.Dot(300, 623), "FF8000");
  EXPECT_EQ(picture.Dot(300, 624), "FFFFFF");
  // Both prints have a gauge at the cut.
  EXPECT_EQ(picture.Dot(802, 611), "000000");
  EXPECT_EQ(picture.Dot(802, 610), "FFFFFF");
  EXPECT_EQ(picture.Dot(802, 620), "000000");
  EXPECT_EQ(picture.Dot(802, 621), "FFFFFF");
}

TEST(TestPage, IsAWholePrintOnEachHalfOfOnePage) {
  const Picture picture = TestPage("RQ_5x15x2_1");
  EXPECT_EQ(picture.Dot(110, 110), "FF0000");
  EXPECT_EQ(picture.Dot(110, 616 + 110), "FF0000");
}

/// The first of two joined pages becomes the lower half.
TEST(TestPage, ShowsTheCutAtTheTopOfTheFirstOfTwoPages) {
  const Picture picture = TestPage("RQ_5x15x2_2", 1);
  EXPECT_EQ(picture.Dot(300, 0), "FF8000");
  EXPECT_EQ(picture.Dot(300, 7), "FF8000");
  EXPECT_EQ(picture.Dot(300, 8), "FFFFFF");
  EXPECT_EQ(picture.Dot(300, 615), "FFFFFF");
}

TEST(TestPage, ShowsTheCutAtTheBottomOfTheSecondOfTwoPages) {
  const Picture picture = TestPage("RQ_5x15x2_2", 2);
  EXPECT_EQ(picture.Dot(300, 0), "FFFFFF");
  EXPECT_EQ(picture.Dot(300, 607), "FFFFFF");
  EXPECT_EQ(picture.Dot(300, 608), "0060E0");
  EXPECT_EQ(picture.Dot(300, 615), "0060E0");
}

TEST(TestPage, NeedsTwoPagesWhereThePrinterJoinsTwo) {
  EXPECT_EQ(test_pages_of_sheet(SettingsOf("RQ_5x15x2_2")), 2);
  EXPECT_EQ(test_pages_of_sheet(SettingsOf("RQ_5x15x2_1")), 1);
  EXPECT_EQ(test_pages_of_sheet(SettingsOf("RQ_10x15")), 1);
}

TEST(TestPage, KeepsWithinAPageThatIsTooSmallForIt) {
  for (const int size : {0, 1, 50, 199, 201, 260}) {
    Picture picture(size, size / 2);
    draw_test_page(picture.canvas(), SettingsOf("RQ_5x15x2_1"), 1,
                   {"2026", {{"Paper", std::string(500, 'x')}}});
    EXPECT_TRUE(picture.GuardsStand()) << size;
  }
}

}  // namespace
