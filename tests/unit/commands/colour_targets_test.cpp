// SPDX-License-Identifier: Apache-2.0
#include "commands/colour_targets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/commands/picture.h"

namespace {

using testing::ElementsAre;

/// A canvas of 794 × 294 gives 24 patches of 94 × 94, 100 from one to the next.
std::vector<std::string> RowOfPatches(const Picture& picture, int y) {
  std::vector<std::string> row;
  for (const int x : {10, 110, 210, 310, 410, 510, 610, 710}) {
    row.push_back(picture.Dot(x, y));
  }
  return row;
}

TEST(Patches, AreThreeRowsOfEightWithTheseColours) {
  Picture picture(794, 294);

  draw_patches(picture.canvas());

  EXPECT_THAT(RowOfPatches(picture, 10), ElementsAre("FF0000", "00FF00", "0000FF", "00FFFF",
                                                     "FF00FF", "FFFF00", "FF8000", "8000FF"));
  EXPECT_THAT(RowOfPatches(picture, 110), ElementsAre("F6D7C3", "E8B999", "D39C78", "B47853",
                                                      "8C5636", "5A3825", "7FB2E5", "5E8C3A"));
  EXPECT_THAT(RowOfPatches(picture, 210), ElementsAre("000000", "242424", "494949", "6D6D6D",
                                                      "929292", "B6B6B6", "DBDBDB", "FFFFFF"));
}

TEST(Patches, FillTheCanvasAndKeepSixDotsApart) {
  Picture picture(794, 294);

  draw_patches(picture.canvas());

  EXPECT_EQ(picture.Dot(0, 0), "FF0000");
  EXPECT_EQ(picture.Dot(93, 50), "FF0000");
  EXPECT_EQ(picture.Dot(94, 50), "FFFFFF");
  EXPECT_EQ(picture.Dot(99, 50), "FFFFFF");
  EXPECT_EQ(picture.Dot(100, 50), "00FF00");
  EXPECT_EQ(picture.Dot(50, 94), "FFFFFF");
  EXPECT_EQ(picture.Dot(50, 99), "FFFFFF");
  EXPECT_EQ(picture.Dot(50, 100), "F6D7C3");
  EXPECT_EQ(picture.Dot(793, 50), "8000FF");
}

TEST(Patches, OutlineTheWhiteOne) {
  Picture picture(794, 294);

  draw_patches(picture.canvas());

  EXPECT_EQ(picture.Dot(700, 200), "B0B0B0");
  EXPECT_EQ(picture.Dot(701, 201), "B0B0B0");
  EXPECT_EQ(picture.Dot(702, 202), "FFFFFF");
  EXPECT_EQ(picture.Dot(793, 293), "B0B0B0");
}

/// "0" of 000000 in white on black, at the patch's lower left.
TEST(Patches, SayTheirValue) {
  Picture picture(794, 294);

  draw_patches(picture.canvas());

  EXPECT_THAT(picture.Art({8, 272, 12, 14}), ElementsAre("##......####",  //
                                                         "##......####",  //
                                                         "..######..##",  //
                                                         "..######..##",  //
                                                         "..####....##",  //
                                                         "..####....##",  //
                                                         "..##..##..##",  //
                                                         "..##..##..##",  //
                                                         "....####..##",  //
                                                         "....####..##",  //
                                                         "..######..##",  //
                                                         "..######..##",  //
                                                         "##......####",  //
                                                         "##......####"));
}

TEST(Patches, SayItInBlackOnABrightColour) {
  Picture picture(794, 294);

  draw_patches(picture.canvas());

  EXPECT_EQ(picture.Dot(508, 72), "000000");  // the first F of FFFF00
}

TEST(Patches, AreLabelledLargerWhereThereIsRoom) {
  Picture picture(8 * 130 - 6, 294);

  draw_patches(picture.canvas());

  EXPECT_EQ(picture.Dot(8, 65), "FFFFFF");  // 21 dots of F, not 14
  EXPECT_EQ(picture.Dot(8, 64), "FF0000");
}

TEST(GreyRamp, RunsFromBlackToWhiteOneLevelADot) {
  Picture picture(256, 60);

  draw_grey_ramp(picture.canvas());

  EXPECT_EQ(picture.Dot(0, 0), "000000");
  EXPECT_EQ(picture.Dot(1, 0), "010101");
  EXPECT_EQ(picture.Dot(100, 27), "646464");
  EXPECT_EQ(picture.Dot(253, 0), "FDFDFD");
}

TEST(GreyRamp, HasAScaleInPerCentBelow) {
  Picture picture(402, 60);

  draw_grey_ramp(picture.canvas());

  EXPECT_EQ(picture.Dot(0, 30), "000000");
  EXPECT_EQ(picture.Dot(100, 30), "000000");
  EXPECT_EQ(picture.Dot(99, 30), "FFFFFF");
  EXPECT_EQ(picture.Dot(200, 37), "000000");
  EXPECT_EQ(picture.Dot(200, 38), "FFFFFF");
  EXPECT_EQ(picture.Dot(400, 30), "000000");
  EXPECT_EQ(picture.Dot(2, 42), "000000");  // the first dot of "0%"
}

TEST(RibbonRamps, RunFromWhiteToCyanMagentaAndYellow) {
  Picture picture(256, 30);

  draw_ribbon_ramps(picture.canvas());

  EXPECT_EQ(picture.Dot(0, 5), "FFFFFF");
  EXPECT_EQ(picture.Dot(55, 5), "C8FFFF");
  EXPECT_EQ(picture.Dot(255, 9), "00FFFF");
  EXPECT_EQ(picture.Dot(255, 10), "FF00FF");
  EXPECT_EQ(picture.Dot(255, 19), "FF00FF");
  EXPECT_EQ(picture.Dot(255, 20), "FFFF00");
  EXPECT_EQ(picture.Dot(155, 29), "FFFF64");
}

/// A canvas of 88 × 112: labels take 24 dots, then come two fields of 24 × 16 in each row.
TEST(FineLines, AreOneToFourDotsWideWithAsMuchRoomBetween) {
  Picture picture(88, 112);

  draw_fine_lines(picture.canvas());

  EXPECT_EQ(picture.Art({24, 0, 24, 1})[0], "#.#.#.#.#.#.#.#.#.#.#.#.");
  EXPECT_EQ(picture.Art({24, 40, 24, 1})[0], "##..##..##..##..##..##..");
  EXPECT_EQ(picture.Art({24, 72, 24, 1})[0], "###...###...###...###...");
  EXPECT_EQ(picture.Art({24, 104, 24, 1})[0], "####....####....####....");
  EXPECT_THAT(picture.Art({64, 32, 2, 6}), ElementsAre("##", "##", "..", "..", "##", "##"));
}

TEST(Targets, KeepWithinCanvasesThatAreTooSmall) {
  for (const int size : {0, 1, 2, 7, 30}) {
    Picture picture(size, size);
    draw_patches(picture.canvas());
    draw_grey_ramp(picture.canvas());
    draw_ribbon_ramps(picture.canvas());
    draw_fine_lines(picture.canvas());
    EXPECT_TRUE(picture.GuardsStand()) << size;
  }
}

}  // namespace
