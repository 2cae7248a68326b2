// SPDX-License-Identifier: Apache-2.0
#include "commands/bitmap_font.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "tests/unit/commands/picture.h"

namespace {

using testing::ElementsAre;

std::vector<std::string> Written(const std::string& text, int width, int scale = 1) {
  Picture picture(width, kGlyphHeight * scale);
  draw_text(picture.canvas(), 0, 0, scale, kBlack, text);
  return picture.Art({0, 0, width, kGlyphHeight * scale});
}

TEST(BitmapFont, WritesCharactersSideBySide) {
  EXPECT_THAT(Written("Ag7", 17), ElementsAre(".###........#####",  //
                                              "#...#...........#",  //
                                              "#...#..####....#.",  //
                                              "#####.#...#...#..",  //
                                              "#...#.#...#...#..",  //
                                              "#...#.#...#..#...",  //
                                              "#...#..####..#...",  //
                                              "..........#......",  //
                                              ".......###......."));
}

TEST(BitmapFont, EnlargesEachDotToASquare) {
  EXPECT_THAT(Written("-", 15, 3), ElementsAre("...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...#########...",  //
                                               "...#########...",  //
                                               "...#########...",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "...............",  //
                                               "..............."));
}

TEST(BitmapFont, LeavesTheGroundBetweenTheDotsAsItIs) {
  Picture picture(5, 9);
  picture.canvas().fill({0, 0, 5, 9}, {0x10, 0x20, 0x30});

  draw_text(picture.canvas(), 0, 0, 1, kWhite, "I");

  EXPECT_EQ(picture.Dot(0, 0), "102030");
  EXPECT_EQ(picture.Dot(1, 0), "FFFFFF");
}

TEST(BitmapFont, KnowsLettersDigitsAndThePunctuationOfSettings) {
  const std::string characters =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789.:,;-+=_/()%'\"#&*!<>@";
  std::set<std::vector<std::string>> shapes = {Written("?", 5)};
  for (const char character : characters) {
    SCOPED_TRACE(character);
    EXPECT_TRUE(shapes.insert(Written(std::string(1, character), 5)).second)
        << "it looks like another one";
  }
}

TEST(BitmapFont, ShowsAQuestionMarkForWhatItDoesNotHave) {
  EXPECT_EQ(Written("\xC3", 5), Written("?", 5));
  EXPECT_EQ(Written(std::string(1, '\0'), 5), Written("?", 5));
}

TEST(BitmapFont, WritesNothingForABlank) {
  Picture picture(6, 9);
  draw_text(picture.canvas(), 0, 0, 1, kBlack, " ");
  EXPECT_TRUE(picture.IsWhite());
}

TEST(BitmapFont, TellsTheWidthFromTheFirstDotToTheLast) {
  EXPECT_EQ(text_width("", 3), 0);
  EXPECT_EQ(text_width("A", 1), 5);
  EXPECT_EQ(text_width("AB", 1), 11);
  EXPECT_EQ(text_width("AB", 4), 44);
}

TEST(BitmapFont, CutsAtTheCanvasEdges) {
  Picture picture(8, 6);

  draw_text(picture.canvas(), -3, -2, 2, kBlack, "HHHHHHHHHHHH");
  draw_text(picture.canvas(), 6, 4, 2, kBlack, "M");

  EXPECT_TRUE(picture.GuardsStand());
}

}  // namespace
