// SPDX-License-Identifier: Apache-2.0
//
// sRGB to Lab under D50 and back: the primaries' published values, and the way back.
#include "bench/colour_space.h"

#include <gtest/gtest.h>

namespace {

void expect_lab(const bench::Lab& lab, double lightness, double a, double b) {
  EXPECT_NEAR(lab.lightness, lightness, 0.02);
  EXPECT_NEAR(lab.a, a, 0.02);
  EXPECT_NEAR(lab.b, b, 0.02);
}

TEST(ColourSpace, WhiteIsTheWhitePoint) {
  expect_lab(bench::lab_of({255, 255, 255}), 100, 0, 0);
}

TEST(ColourSpace, BlackIsBlack) {
  expect_lab(bench::lab_of({0, 0, 0}), 0, 0, 0);
}

TEST(ColourSpace, RedStandsWhereD50TablesPutIt) {
  expect_lab(bench::lab_of({255, 0, 0}), 54.29, 80.81, 69.89);
}

TEST(ColourSpace, GreenStandsWhereD50TablesPutIt) {
  expect_lab(bench::lab_of({0, 255, 0}), 87.82, -79.28, 80.99);
}

TEST(ColourSpace, BlueStandsWhereD50TablesPutIt) {
  expect_lab(bench::lab_of({0, 0, 255}), 29.57, 68.30, -112.03);
}

TEST(ColourSpace, MiddleGreyIsNeutralAndHasTheLightnessOfItsLight) {
  // 119 / 255 is a light of 0.1845, whose cube root gives L* 50.03.
  expect_lab(bench::lab_of({119, 119, 119}), 50.03, 0, 0);
}

TEST(ColourSpace, TheWayBackGivesTheLevelsThatWentIn) {
  const auto levels = bench::levels_of(bench::lab_of_levels({0.9, 0.02, 0.4}));
  EXPECT_NEAR(levels[0], 0.9, 1e-9);
  EXPECT_NEAR(levels[1], 0.02, 1e-9);
  EXPECT_NEAR(levels[2], 0.4, 1e-9);
}

TEST(ColourSpace, AColourThatNoScreenShowsComesBackOutsideTheLevels) {
  EXPECT_LT(bench::levels_of({50.0, -80.0, 0.0})[0], 0.0);
}

}  // namespace
