// SPDX-License-Identifier: Apache-2.0
#include "commands/canvas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>

#include "tests/unit/commands/picture.h"

namespace {

using testing::ElementsAre;

TEST(Canvas, FillsABoxAndNothingElse) {
  Picture picture(5, 4);

  picture.canvas().fill({1, 1, 3, 2}, kBlack);

  EXPECT_THAT(picture.Art({0, 0, 5, 4}), ElementsAre(".....",  //
                                                     ".###.",  //
                                                     ".###.",  //
                                                     "....."));
}

TEST(Canvas, StoresRedGreenAndBlueInThisOrder) {
  unsigned char pixels[6] = {};

  Canvas(pixels, 2, 1).fill({1, 0, 1, 1}, {0x12, 0x34, 0x56});

  EXPECT_THAT(pixels, ElementsAre(0, 0, 0, 0x12, 0x34, 0x56));
}

TEST(Canvas, CutsABoxAtItsEdges) {
  Picture picture(4, 3);

  picture.canvas().fill({-2, -1, 3, 2}, kBlack);
  picture.canvas().fill({3, 2, 9, 9}, kBlack);

  EXPECT_THAT(picture.Art({0, 0, 4, 3}), ElementsAre("#...",  //
                                                     "....",  //
                                                     "...#"));
  EXPECT_TRUE(picture.GuardsStand());
}

TEST(Canvas, LeavesAwayWhatLiesOutside) {
  Picture picture(4, 3);

  picture.canvas().fill({4, 0, 2, 3}, kBlack);
  picture.canvas().fill({0, -5, 4, 5}, kBlack);
  picture.canvas().fill({2, 1, -1, 1}, kBlack);
  picture.canvas().fill({INT_MAX, INT_MAX, INT_MAX, INT_MAX}, kBlack);
  picture.canvas().fill({INT_MIN, INT_MIN, INT_MAX, INT_MAX}, kBlack);
  picture.canvas().fill({1, 1, INT_MIN, INT_MIN}, kBlack);

  EXPECT_TRUE(picture.IsWhite());
  EXPECT_TRUE(picture.GuardsStand());
}

TEST(Canvas, PartsHaveTheirOwnCornerAndKeepWithinTheirEdges) {
  Picture picture(6, 4);

  const Canvas part = picture.canvas().part({2, 1, 3, 2});
  part.fill({-1, -1, 9, 2}, kBlack);

  EXPECT_EQ(part.width(), 3);
  EXPECT_EQ(part.height(), 2);
  EXPECT_THAT(picture.Art({0, 0, 6, 4}), ElementsAre("......",  //
                                                     "..###.",  //
                                                     "......",  //
                                                     "......"));
}

TEST(Canvas, PartsThatReachOutAreCut) {
  Picture picture(4, 4);

  const Canvas part = picture.canvas().part({2, 3, 100, 100});

  EXPECT_EQ(part.width(), 2);
  EXPECT_EQ(part.height(), 1);
}

TEST(Canvas, TakesABoxThatReachesFarBeyondItsEnds) {
  Picture picture(4, 3);

  picture.canvas().fill({3, 1, INT_MAX, 1}, kBlack);
  picture.canvas().fill({1, 2, 1, INT_MAX}, kBlack);

  EXPECT_THAT(picture.Art({0, 0, 4, 3}), ElementsAre("....",  //
                                                     "...#",  //
                                                     ".#.."));
  EXPECT_TRUE(picture.GuardsStand());
}

TEST(Canvas, HasNoSizeBelowNothing) {
  unsigned char pixels[3] = {7, 7, 7};

  const Canvas canvas(pixels, -1, -2);
  const Canvas part = Canvas(pixels, 1, 1).part({1, 1, -1, -1});

  EXPECT_EQ(canvas.width(), 0);
  EXPECT_EQ(canvas.height(), 0);
  EXPECT_EQ(part.width(), 0);
  EXPECT_EQ(part.height(), 0);
}

TEST(Canvas, WithoutAnySizeTakesNothing) {
  unsigned char pixels[3] = {7, 7, 7};

  Canvas(pixels, -1, 1).fill({0, 0, 1, 1}, kBlack);
  Canvas(pixels, 1, 1).part({0, 0, 1, -1}).fill({0, 0, 1, 1}, kBlack);

  EXPECT_THAT(pixels, ElementsAre(7, 7, 7));
}

}  // namespace
