// SPDX-License-Identifier: Apache-2.0
//
// Bands of more bytes than can be counted, of pixels without bytes, and without rows.
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "image/band_image.h"
#include "tests/unit/bytes.h"

TEST(CreateBandImage, OfMorePixelBytesThanCanBeCountedFails) {
  tagMVBandImageParams band{};
  EXPECT_FALSE(CImageUtility::CreateBandImage(&band, {0, 0, 2147483648, 2147483648}, 48, -1));
  EXPECT_EQ(band.pBits, nullptr);
}

TEST(CreateBandImage, OfMorePixelsThanCanBeCountedFails) {
  tagMVBandImageParams band{};
  EXPECT_FALSE(CImageUtility::CreateBandImage(&band, {0, 0, 1099511627776, 1099511627776}, 48, -1));
  EXPECT_EQ(band.pBits, nullptr);
}

TEST(FillBandImage, WithPixelsOfNoWholeByteWritesNothing) {
  std::array<unsigned char, 6> bits = {'.', '.', '.', '.', '.', '.'};
  std::array<unsigned char, 3> pixel = {'r', 'g', 'b'};
  tagMVBandImageParams band = {bits.data(), -6, {0, 0, 2, 1}};
  EXPECT_TRUE(CImageUtility::FillBandImage(&band, 7, pixel.data()));
  EXPECT_TRUE(CImageUtility::FillBandImage(&band, 0, pixel.data()));
  EXPECT_TRUE(CImageUtility::FillBandImage(&band, -24, pixel.data()));
  EXPECT_EQ(Bytes(bits.data(), 6), "......");
}

TEST(FillBandImage, OfABottomUpBandWithoutRowsWritesNothing) {
  std::array<unsigned char, 6> bits = {'.', '.', '.', '.', '.', '.'};
  std::array<unsigned char, 3> pixel = {'r', 'g', 'b'};
  tagMVBandImageParams band = {bits.data(), 6, {0, 5, 2, 5}};
  EXPECT_TRUE(CImageUtility::FillBandImage(&band, 24, pixel.data()));
  EXPECT_EQ(Bytes(bits.data(), 6), "......");
}

TEST(FillBandImage, OfABandThatEndsAboveItsStartWritesNothing) {
  std::array<unsigned char, 6> bits = {'.', '.', '.', '.', '.', '.'};
  std::array<unsigned char, 3> pixel = {'r', 'g', 'b'};
  tagMVBandImageParams band = {bits.data(), 6, {0, 8, 2, 5}};
  EXPECT_TRUE(CImageUtility::FillBandImage(&band, 24, pixel.data()));
  EXPECT_EQ(Bytes(bits.data(), 6), "......");
}

TEST(FillBandImage, OfLinesTooShortForAPixelWritesNothing) {
  std::array<unsigned char, 6> bits = {'.', '.', '.', '.', '.', '.'};
  std::array<unsigned char, 3> pixel = {'r', 'g', 'b'};
  tagMVBandImageParams band = {bits.data(), -2, {0, 0, 1, 3}};
  EXPECT_TRUE(CImageUtility::FillBandImage(&band, 24, pixel.data()));
  EXPECT_EQ(Bytes(bits.data(), 6), "......");
}
