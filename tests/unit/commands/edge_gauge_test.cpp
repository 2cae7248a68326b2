// SPDX-License-Identifier: Apache-2.0
#include "commands/edge_gauge.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/commands/picture.h"

namespace {

using testing::ElementsAre;

TEST(HalfMillimetres, AreDotsAtThreeHundredToTheInch) {
  EXPECT_EQ(half_millimetres(0), 0);
  EXPECT_EQ(half_millimetres(1), 6);    // 5.9
  EXPECT_EQ(half_millimetres(2), 12);   // 11.8
  EXPECT_EQ(half_millimetres(3), 18);   // 17.7
  EXPECT_EQ(half_millimetres(4), 24);   // 23.6
  EXPECT_EQ(half_millimetres(5), 30);   // 29.5
  EXPECT_EQ(half_millimetres(10), 59);  // 59.06
}

/// The steps are 16 dots wide from 16 dots behind the gauge's start, which lies 140 dots before
/// the middle: here at 160 − 140 + 16 = 36.
TEST(EdgeGauge, HasStepsOfFiveDotsFromTheTopEdge) {
  Picture picture(320, 100);

  draw_edge_gauge(picture.canvas(), Edge::Top);

  EXPECT_THAT(picture.Art({34, 0, 6, 6}), ElementsAre("..####",  //
                                                      "..####",  //
                                                      "..####",  //
                                                      "..####",  //
                                                      "..####",  //
                                                      "......"));
  EXPECT_EQ(picture.Dot(60, 9), "969696");
  EXPECT_EQ(picture.Dot(60, 10), "FFFFFF");
  EXPECT_EQ(picture.Dot(76, 14), "000000");
  EXPECT_EQ(picture.Dot(76, 15), "FFFFFF");
  EXPECT_EQ(picture.Dot(195, 49), "969696");
  EXPECT_EQ(picture.Dot(195, 50), "FFFFFF");
  EXPECT_EQ(picture.Dot(196, 0), "FFFFFF");
}

TEST(EdgeGauge, HasStepsFromTheBottomEdge) {
  Picture picture(320, 100);

  draw_edge_gauge(picture.canvas(), Edge::Bottom);

  EXPECT_EQ(picture.Dot(36, 99), "000000");
  EXPECT_EQ(picture.Dot(36, 95), "000000");
  EXPECT_EQ(picture.Dot(36, 94), "FFFFFF");
  EXPECT_EQ(picture.Dot(195, 50), "969696");
  EXPECT_EQ(picture.Dot(195, 49), "FFFFFF");
}

TEST(EdgeGauge, HasStepsFromTheLeftEdge) {
  Picture picture(100, 320);

  draw_edge_gauge(picture.canvas(), Edge::Left);

  EXPECT_EQ(picture.Dot(0, 35), "FFFFFF");
  EXPECT_EQ(picture.Dot(4, 36), "000000");
  EXPECT_EQ(picture.Dot(5, 36), "FFFFFF");
  EXPECT_EQ(picture.Dot(49, 195), "969696");
  EXPECT_EQ(picture.Dot(50, 195), "FFFFFF");
}

TEST(EdgeGauge, HasStepsFromTheRightEdge) {
  Picture picture(100, 320);

  draw_edge_gauge(picture.canvas(), Edge::Right);

  EXPECT_EQ(picture.Dot(95, 36), "000000");
  EXPECT_EQ(picture.Dot(94, 36), "FFFFFF");
  EXPECT_EQ(picture.Dot(50, 195), "969696");
  EXPECT_EQ(picture.Dot(49, 195), "FFFFFF");
}

/// The ruler begins 212 dots behind the gauge's start: at 232.
TEST(EdgeGauge, HasALongTickEachMillimetreAndAShortOneBetween) {
  Picture picture(320, 100);

  draw_edge_gauge(picture.canvas(), Edge::Top);

  EXPECT_THAT(picture.Art({231, 0, 28, 15}), ElementsAre(".##.........................",  //
                                                         ".##.........................",  //
                                                         ".##.........................",  //
                                                         ".##.........................",  //
                                                         ".##.........................",  //
                                                         ".##.........................",  //
                                                         ".############...............",  //
                                                         ".############...............",  //
                                                         ".##.........................",  //
                                                         ".##.........................",  //
                                                         ".##.........................",  //
                                                         ".##.........................",  //
                                                         ".########################...",  //
                                                         ".########################...",  //
                                                         ".##........................."));
  EXPECT_EQ(picture.Dot(255, 59), "000000");
  EXPECT_EQ(picture.Dot(232, 61), "FFFFFF");
}

/// The label of the tenth step, 50 dots, is 22 dots wide and stands in the middle of its step.
TEST(EdgeGauge, SaysHowManyDotsAStepIsLong) {
  Picture picture(320, 100);

  draw_edge_gauge(picture.canvas(), Edge::Top);

  EXPECT_THAT(picture.Art({177, 66, 22, 14}), ElementsAre("##########....######..",  //
                                                          "##########....######..",  //
                                                          "##..........##......##",  //
                                                          "##..........##......##",  //
                                                          "########....##....####",  //
                                                          "########....##....####",  //
                                                          "........##..##..##..##",  //
                                                          "........##..##..##..##",  //
                                                          "........##..####....##",  //
                                                          "........##..####....##",  //
                                                          "##......##..##......##",  //
                                                          "##......##..##......##",  //
                                                          "..######......######..",  //
                                                          "..######......######.."));
}

TEST(EdgeGauge, ClearsItsGround) {
  Picture picture(320, 100);
  picture.canvas().fill({0, 0, 320, 100}, {1, 2, 3});

  draw_edge_gauge(picture.canvas(), Edge::Top);

  EXPECT_EQ(picture.Dot(19, 0), "010203");
  EXPECT_EQ(picture.Dot(20, 0), "FFFFFF");
  EXPECT_EQ(picture.Dot(299, 91), "FFFFFF");
  EXPECT_EQ(picture.Dot(300, 91), "010203");
  EXPECT_EQ(picture.Dot(20, 92), "010203");
}

TEST(EdgeGauge, KeepsWithinAPictureThatIsTooSmallForIt) {
  Picture picture(40, 30);
  for (const Edge edge : {Edge::Left, Edge::Top, Edge::Right, Edge::Bottom}) {
    draw_edge_gauge(picture.canvas(), edge);
  }
  EXPECT_TRUE(picture.GuardsStand());
}

}  // namespace
