// SPDX-License-Identifier: Apache-2.0
//
// Copying one band into another: the pixels of the shared area, at their own coordinates. Bands
// are drawn as texts, a line of letters a row, in memory order.
#include <gtest/gtest.h>

#include <string>

#include "image/band_image.h"

using MV_TYPEDEF::tagRECT;

namespace {

/// A band of one byte a pixel over a text; `stride` below zero: top row first.
struct DrawnBand {
  DrawnBand(const std::string& drawing, std::int64_t stride, const tagRECT& rect)
      : text(drawing), band{reinterpret_cast<unsigned char*>(text.data()), stride, rect} {}
  DrawnBand(const DrawnBand&) = delete;
  DrawnBand& operator=(const DrawnBand&) = delete;

  std::string text;
  tagMVBandImageParams band;
};

}  // namespace

TEST(CopyBandImage, CopiesABandOfTheSamePlaceWhole) {
  DrawnBand dest("......", -3, {0, 0, 3, 2});
  const DrawnBand src("abcdef", -3, {0, 0, 3, 2});
  EXPECT_TRUE(CImageUtility::CopyBandImage(&dest.band, &src.band, 8));
  EXPECT_EQ(dest.text, "abcdef");
}

TEST(CopyBandImage, ABandMovedDownLandsThatManyRowsLower) {
  DrawnBand dest(
      "..."
      "..."
      "..."
      "...",
      -3, {0, 0, 3, 4});
  const DrawnBand src(
      "abc"
      "def",
      -3, {0, 2, 3, 4});
  EXPECT_TRUE(CImageUtility::CopyBandImage(&dest.band, &src.band, 8));
  EXPECT_EQ(dest.text,
            "..."
            "..."
            "abc"
            "def");
}

TEST(CopyBandImage, ABottomUpBandMovedDownLandsThatManyRowsLower) {
  // The bottom row comes first in memory, in both bands.
  DrawnBand dest(
      "..."
      "..."
      "..."
      "...",
      3, {0, 0, 3, 4});
  const DrawnBand src(
      "def"
      "abc",
      3, {0, 1, 3, 3});
  EXPECT_TRUE(CImageUtility::CopyBandImage(&dest.band, &src.band, 8));
  EXPECT_EQ(dest.text,
            "..."
            "def"
            "abc"
            "...");
}

TEST(CopyBandImage, OnlyTheSharedAreaOfATopDownBandIsWritten) {
  DrawnBand dest(
      "...."
      "...."
      "....",
      -4, {0, 0, 4, 3});
  const DrawnBand src(
      "abc"
      "def"
      "ghi",
      -3, {2, -1, 5, 2});
  EXPECT_TRUE(CImageUtility::CopyBandImage(&dest.band, &src.band, 8));
  EXPECT_EQ(dest.text,
            "..de"
            "..gh"
            "....");
}

TEST(CopyBandImage, OnlyTheSharedAreaOfABottomUpBandIsWritten) {
  DrawnBand dest(
      "...."
      "...."
      "....",
      4, {0, 0, 4, 3});
  const DrawnBand src(
      "ghi"
      "def"
      "abc",
      3, {-1, 2, 2, 5});
  EXPECT_TRUE(CImageUtility::CopyBandImage(&dest.band, &src.band, 8));
  EXPECT_EQ(dest.text,
            "bc.."
            "...."
            "....");
}

TEST(CopyBandImage, ALargerSourceFillsTheWholeDestination) {
  DrawnBand dest("....", -2, {1, 1, 3, 3});
  const DrawnBand src(
      "abcd"
      "efgh"
      "ijkl"
      "mnop",
      -4, {0, 0, 4, 4});
  EXPECT_TRUE(CImageUtility::CopyBandImage(&dest.band, &src.band, 8));
  EXPECT_EQ(dest.text, "fgjk");
}

TEST(CopyBandImage, BandsApartLeaveTheDestinationAsItWas) {
  DrawnBand dest("......", -3, {0, 0, 3, 2});
  const DrawnBand src("abcdef", -3, {3, 0, 6, 2});
  EXPECT_TRUE(CImageUtility::CopyBandImage(&dest.band, &src.band, 8));
  EXPECT_EQ(dest.text, "......");
}

TEST(CopyBandImage, PixelsOfSixBytesMoveWhole) {
  DrawnBand dest("..................", -18, {0, 0, 3, 1});
  const DrawnBand src("abcdefghijkl", -12, {1, 0, 3, 1});
  EXPECT_TRUE(CImageUtility::CopyBandImage(&dest.band, &src.band, 48));
  EXPECT_EQ(dest.text, "......abcdefghijkl");
}

TEST(CopyBandImage, PaddingBehindALineIsNeitherReadNorWritten) {
  DrawnBand dest(
      "..P"
      "..P",
      -3, {0, 0, 2, 2});
  const DrawnBand src(
      "abXX"
      "cdXX",
      -4, {0, 0, 2, 2});
  EXPECT_TRUE(CImageUtility::CopyBandImage(&dest.band, &src.band, 8));
  EXPECT_EQ(dest.text,
            "abP"
            "cdP");
}

TEST(CopyBandImage, TheSourceAndTheRecordsStayAsTheyAre) {
  DrawnBand dest("......", -3, {0, 0, 3, 2});
  const DrawnBand src("abcdef", -3, {0, 1, 3, 3});
  EXPECT_TRUE(CImageUtility::CopyBandImage(&dest.band, &src.band, 8));
  EXPECT_EQ(src.text, "abcdef");
  EXPECT_EQ(src.band.rcBand.top, 1);
  EXPECT_EQ(dest.band.rcBand.bottom, 2);
  EXPECT_EQ(dest.text, "...abc");
}
