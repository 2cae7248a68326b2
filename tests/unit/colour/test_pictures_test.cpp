// SPDX-License-Identifier: Apache-2.0
//
// The colours and pictures that figures are measured on are what they are called.
#include "bench/test_pictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "bench/test_colours.h"

namespace {

using bench::Rgb8;

TEST(TestColours, TheCheckerHasItsPublishedCorners) {
  const std::vector<Rgb8> patches = bench::colour_checker();
  ASSERT_EQ(patches.size(), 24U);
  EXPECT_EQ(patches[0], (Rgb8{115, 82, 68}));     // dark skin
  EXPECT_EQ(patches[5], (Rgb8{103, 189, 170}));   // bluish green
  EXPECT_EQ(patches[18], (Rgb8{243, 243, 242}));  // white
  EXPECT_EQ(patches[23], (Rgb8{52, 52, 52}));     // black
}

TEST(TestColours, TheRampHasEachGreyOnce) {
  const std::vector<Rgb8> greys = bench::grey_ramp();
  ASSERT_EQ(greys.size(), 256U);
  EXPECT_EQ(greys[0], (Rgb8{0, 0, 0}));
  EXPECT_EQ(greys[200], (Rgb8{200, 200, 200}));
  EXPECT_EQ(greys[255], (Rgb8{255, 255, 255}));
}

TEST(TestColours, TheGridReachesTheCornersAndTheMiddle) {
  const std::vector<Rgb8> colours = bench::colour_grid(3);
  ASSERT_EQ(colours.size(), 27U);
  EXPECT_EQ(colours[0], (Rgb8{0, 0, 0}));
  EXPECT_EQ(colours[13], (Rgb8{128, 128, 128}));
  EXPECT_EQ(colours[26], (Rgb8{255, 255, 255}));
}

TEST(TestColours, RandomColoursAreTheSameInEveryRunAndHardlyRepeat) {
  const std::vector<Rgb8> colours = bench::random_colours(2000);
  EXPECT_EQ(colours, bench::random_colours(2000));
  EXPECT_GT(std::set<Rgb8>(colours.begin(), colours.end()).size(), 1990U);
}

TEST(TestPictures, ThePhotoHasSkyAboveAndIsGrainy) {
  const bench::Picture photo = bench::photo(300, 200);
  ASSERT_EQ(photo.pixels.size(), 60000U);
  const Rgb8& sky = photo.pixels[1530];
  EXPECT_GT(sky[2], sky[0]);
  EXPECT_GT(std::set<Rgb8>(photo.pixels.begin(), photo.pixels.end()).size(), 10000U);
}

TEST(TestPictures, AHighPageShowsTheSceneTwice) {
  const bench::Picture photo = bench::photo(30, 40);
  for (std::size_t channel = 0; channel < 3; ++channel) {
    EXPECT_NEAR(photo.row(2)[12 + channel], photo.row(22)[12 + channel], 4);
  }
}

TEST(TestPictures, TheZonePlateIsFlatInItsMiddleAndAlternatesAtItsEdge) {
  const bench::Picture plate = bench::zone_plate(256);
  const auto grey = [&plate](std::size_t x) { return int{plate.row(128)[3 * x]}; };
  EXPECT_GT(grey(128), 250);
  EXPECT_GT(grey(132), 240);
  EXPECT_GT(std::abs(grey(250) - grey(251)), 60);
}

TEST(TestPictures, TextIsBlackOnWhiteAndItsFirstLetterIsAnF) {
  const bench::Picture text = bench::text();
  const auto row = [&text](std::size_t y) {
    std::string ink;
    for (std::size_t x = 0; x < 5; ++x) {
      ink += text.pixels[y * 400 + x] == Rgb8{0, 0, 0} ? '#' : '.';
    }
    return ink;
  };
  EXPECT_EQ(row(0), "#####");
  EXPECT_EQ(row(1), "#....");
  EXPECT_EQ(row(3), "####.");
  EXPECT_EQ(row(6), "#....");
  EXPECT_EQ(row(7), ".....");
}

TEST(TestPictures, NoiseStaysWithinTwoOfItsGrey) {
  const bench::Picture noise = bench::noisy_grey(64, 100);
  const auto [low, high] = std::minmax_element(noise.pixels.begin(), noise.pixels.end());
  EXPECT_EQ(*low, (Rgb8{98, 98, 98}));
  EXPECT_EQ(*high, (Rgb8{102, 102, 102}));
}

}  // namespace
