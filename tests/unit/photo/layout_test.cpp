// SPDX-License-Identifier: Apache-2.0
//
// Where a photo comes to lie on a page.
#include "photo/layout.h"

#include <gmock/gmock.h>

namespace photo {
namespace {

constexpr std::size_t kWide = 1852;
constexpr std::size_t kHigh = 1232;

JobWishes scaled(Scaling scaling) {
  JobWishes wishes;
  wishes.scaling = scaling;
  return wishes;
}

void expect_from(const Placing& placing, double left, double top, double width, double height) {
  EXPECT_NEAR(placing.from.left, left, 0.01);
  EXPECT_NEAR(placing.from.top, top, 0.01);
  EXPECT_NEAR(placing.from.width, width, 0.01);
  EXPECT_NEAR(placing.from.height, height, 0.01);
}

void expect_to(const Placing& placing, std::size_t left, std::size_t top, std::size_t width,
               std::size_t height) {
  EXPECT_EQ(placing.to.left, left);
  EXPECT_EQ(placing.to.top, top);
  EXPECT_EQ(placing.to.width, width);
  EXPECT_EQ(placing.to.height, height);
}

TEST(Layout, FitsAllOfThePhotoIntoTheMiddle) {
  const Layout layout = lay_out({1600, 1200, 0, 0}, kWide, kHigh, scaled(Scaling::Fit));
  ASSERT_EQ(layout.pages.size(), 1U);
  EXPECT_EQ(layout.turn, 1);
  expect_from(layout.pages[0], 0, 0, 1600, 1200);
  expect_to(layout.pages[0], 104, 0, 1643, 1232);
}

TEST(Layout, FillsThePageWithThePhotosMiddle) {
  const Layout layout = lay_out({1600, 1200, 0, 0}, kWide, kHigh, scaled(Scaling::Fill));
  expect_from(layout.pages[0], 0, 67.82, 1600, 1064.36);
  expect_to(layout.pages[0], 0, 0, 1852, 1232);
}

TEST(Layout, FillsThePageWhenAPhotoThatIsToFitNearlyHasItsShape) {
  const Layout layout = lay_out({3000, 2000, 0, 0}, kWide, kHigh, scaled(Scaling::Fit));
  expect_to(layout.pages[0], 0, 0, 1852, 1232);
  expect_from(layout.pages[0], 0, 2.16, 3000, 1995.68);
}

TEST(Layout, LeavesMoreThanAHairlineWhiteWhenThePhotoIsToFit) {
  const Layout layout = lay_out({1840, 1232, 0, 0}, kWide, kHigh, scaled(Scaling::Fit));
  expect_to(layout.pages[0], 6, 0, 1840, 1232);
}

TEST(Layout, TurnsAPortraitToTheLeftOnALyingPage) {
  const Layout layout = lay_out({1200, 1600, 0, 0}, kWide, kHigh, scaled(Scaling::Fit));
  EXPECT_EQ(layout.turn, 8);
  EXPECT_EQ(layout.pageWidth, kHigh);
  EXPECT_EQ(layout.pageHeight, kWide);
  expect_to(layout.pages[0], 0, 104, 1232, 1643);
}

TEST(Layout, LeavesASquarePhotoAsItIs) {
  EXPECT_EQ(lay_out({1000, 1000, 0, 0}, kWide, kHigh, scaled(Scaling::Fit)).turn, 1);
  EXPECT_EQ(lay_out({1000, 1000, 0, 0}, kHigh, kWide, scaled(Scaling::Fill)).turn, 1);
}

TEST(Layout, TurnsAsTheJobSaysWhateverThePhotosShape) {
  JobWishes wishes;
  wishes.orientation = 3;
  EXPECT_EQ(lay_out({1200, 1600, 0, 0}, kWide, kHigh, wishes).turn, 1);
  wishes.orientation = 4;
  EXPECT_EQ(lay_out({1600, 1200, 0, 0}, kWide, kHigh, wishes).turn, 8);
  wishes.orientation = 5;
  EXPECT_EQ(lay_out({1600, 1200, 0, 0}, kWide, kHigh, wishes).turn, 6);
  wishes.orientation = 6;
  EXPECT_EQ(lay_out({1600, 1200, 0, 0}, kWide, kHigh, wishes).turn, 3);
}

TEST(Layout, PutsAFittedPhotoWhereTheJobSays) {
  JobWishes wishes;
  wishes.position = {-1, 0};
  expect_to(lay_out({1600, 1200, 0, 0}, kWide, kHigh, wishes).pages[0], 0, 0, 1643, 1232);
  wishes.position = {1, 0};
  expect_to(lay_out({1600, 1200, 0, 0}, kWide, kHigh, wishes).pages[0], 209, 0, 1643, 1232);
}

TEST(Layout, KeepsThatPartOfAFillingPhotoWhichTheJobSays) {
  JobWishes wishes = scaled(Scaling::Fill);
  wishes.position = {0, -1};
  expect_from(lay_out({1600, 1200, 0, 0}, kWide, kHigh, wishes).pages[0], 0, 0, 1600, 1064.36);
  wishes.position = {0, 1};
  expect_from(lay_out({1600, 1200, 0, 0}, kWide, kHigh, wishes).pages[0], 0, 135.64, 1600, 1064.36);
}

TEST(Layout, TakesTheNaturalSizeFromThePhotosDensity) {
  const Layout layout = lay_out({600, 300, 150, 150}, kWide, kHigh, scaled(Scaling::Natural));
  expect_to(layout.pages[0], 326, 316, 1200, 600);
}

TEST(Layout, TakesAPhotoWithoutDensityForOneOf200) {
  const Layout layout = lay_out({600, 300, 0, 0}, kWide, kHigh, scaled(Scaling::Natural));
  expect_to(layout.pages[0], 476, 391, 900, 450);
}

TEST(Layout, CutsANaturalSizeToThePage) {
  const Layout layout = lay_out({3000, 300, 300, 300}, kWide, kHigh, scaled(Scaling::Natural));
  expect_to(layout.pages[0], 0, 466, 1852, 300);
  expect_from(layout.pages[0], 574, 0, 1852, 300);
}

TEST(Layout, TakesTheJobsDensityBeforeThePhotosOwn) {
  JobWishes wishes = scaled(Scaling::Spread);
  wishes.perInchAcross = 600;
  wishes.perInchDown = 300;
  expect_to(lay_out({600, 300, 72, 72}, kWide, kHigh, wishes).pages[0], 776, 466, 300, 300);
}

TEST(Layout, TakesAShareOfTheFittedSize) {
  JobWishes wishes = scaled(Scaling::Spread);
  wishes.ofFitted = true;
  wishes.percent = 50;
  expect_to(lay_out({1852, 1232, 0, 0}, kWide, kHigh, wishes).pages[0], 463, 308, 926, 616);
}

TEST(Layout, SpreadsAPhotoThatIsLargerThanThePageColumnByColumn) {
  JobWishes wishes = scaled(Scaling::Spread);
  wishes.ofFitted = true;
  wishes.percent = 200;
  const Layout layout = lay_out({1852, 1232, 0, 0}, kWide, kHigh, wishes);
  ASSERT_EQ(layout.pages.size(), 4U);
  expect_from(layout.pages[0], 0, 0, 926, 616);
  expect_from(layout.pages[1], 0, 616, 926, 616);
  expect_from(layout.pages[2], 926, 0, 926, 616);
  expect_from(layout.pages[3], 926, 616, 926, 616);
  expect_to(layout.pages[3], 0, 0, 1852, 1232);
}

TEST(Layout, HasNoPagesForAPhotoThatWouldTakeTooMany) {
  JobWishes wishes = scaled(Scaling::Spread);
  wishes.perInchAcross = 1;
  wishes.perInchDown = 1;
  EXPECT_TRUE(lay_out({4000, 3000, 0, 0}, kWide, kHigh, wishes).pages.empty());
}

TEST(Layout, FollowsPixelsThatAreNotSquare) {
  expect_to(lay_out({1600, 1200, 72, 144}, kWide, kHigh, scaled(Scaling::Fit)).pages[0], 0, 268,
            1852, 695);
}

TEST(Layout, PassesOverPixelsThatNoCameraHas) {
  expect_to(lay_out({1600, 1200, 1, 300}, kWide, kHigh, scaled(Scaling::Fit)).pages[0], 104, 0,
            1643, 1232);
}

TEST(Layout, LeavesAtLeastADotOfANarrowPhoto) {
  expect_to(lay_out({3000, 1, 0, 0}, kWide, kHigh, scaled(Scaling::Fit)).pages[0], 0, 615, 1852, 1);
}

}  // namespace
}  // namespace photo
