// SPDX-License-Identifier: Apache-2.0
//
// Band images: making, releasing and filling them.
#include "image/band_image.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <string>

#include "tests/unit/bytes.h"
#include "tests/unit/failing_allocator.h"

using MV_TYPEDEF::tagRECT;

namespace {

tagMVBandImageParams Band(unsigned char* bits, std::int64_t stride, const tagRECT& rect) {
  return {bits, stride, rect};
}

void ExpectRect(const tagRECT& rect, std::int64_t left, std::int64_t top, std::int64_t right,
                std::int64_t bottom) {
  EXPECT_EQ(rect.left, left);
  EXPECT_EQ(rect.top, top);
  EXPECT_EQ(rect.right, right);
  EXPECT_EQ(rect.bottom, bottom);
}

}  // namespace

TEST(CreateBandImage, MakesAWhiteBottomUpBand) {
  tagMVBandImageParams band{};
  ASSERT_TRUE(CImageUtility::CreateBandImage(&band, {0, 0, 3, 2}, 48, 1));
  EXPECT_EQ(band.lStride, 18);
  ExpectRect(band.rcBand, 0, 0, 3, 2);
  EXPECT_EQ(LastArraySize(), 36U);
  EXPECT_EQ(Bytes(band.pBits, 36), std::string(36, '\xFF'));
  CImageUtility::DeleteBandImage(&band);
}

TEST(CreateBandImage, MakesAWhiteTopDownBand) {
  tagMVBandImageParams band{};
  ASSERT_TRUE(CImageUtility::CreateBandImage(&band, {0, 0, 3, 2}, 48, -1));
  EXPECT_EQ(band.lStride, -18);
  EXPECT_EQ(LastArraySize(), 36U);
  EXPECT_EQ(Bytes(band.pBits, 36), std::string(36, '\xFF'));
  CImageUtility::DeleteBandImage(&band);
}

TEST(CreateBandImage, DirectionZeroIsBottomUp) {
  tagMVBandImageParams band{};
  ASSERT_TRUE(CImageUtility::CreateBandImage(&band, {0, 0, 5, 1}, 8, 0));
  EXPECT_EQ(band.lStride, 5);
  CImageUtility::DeleteBandImage(&band);
}

TEST(CreateBandImage, EveryNegativeDirectionIsTopDown) {
  tagMVBandImageParams band{};
  ASSERT_TRUE(CImageUtility::CreateBandImage(&band, {0, 0, 5, 1}, 8, -5556));
  EXPECT_EQ(band.lStride, -5);
  CImageUtility::DeleteBandImage(&band);
}

TEST(CreateBandImage, KeepsThePlaceOfTheRectangle) {
  tagMVBandImageParams band{};
  ASSERT_TRUE(CImageUtility::CreateBandImage(&band, {-4, 7, 6, 9}, 24, -1));
  EXPECT_EQ(band.lStride, -30);
  ExpectRect(band.rcBand, -4, 7, 6, 9);
  EXPECT_EQ(LastArraySize(), 60U);
  CImageUtility::DeleteBandImage(&band);
}

TEST(CreateBandImage, DepthsRoundDownToWholeBytes) {
  tagMVBandImageParams band{};
  ASSERT_TRUE(CImageUtility::CreateBandImage(&band, {0, 0, 5, 2}, 15, 1));
  EXPECT_EQ(band.lStride, 5);
  EXPECT_EQ(LastArraySize(), 10U);
  CImageUtility::DeleteBandImage(&band);
}

TEST(CreateBandImage, WithoutWidthTheBufferIsEmptyButThere) {
  tagMVBandImageParams band{};
  EXPECT_TRUE(CImageUtility::CreateBandImage(&band, {4, 0, 4, 9}, 48, 1));
  EXPECT_NE(band.pBits, nullptr);
  EXPECT_EQ(LastArraySize(), 0U);
  EXPECT_EQ(band.lStride, 0);
  CImageUtility::DeleteBandImage(&band);
}

TEST(CreateBandImage, WithoutHeightTheBufferIsEmptyButThere) {
  tagMVBandImageParams band{};
  EXPECT_TRUE(CImageUtility::CreateBandImage(&band, {0, 9, 4, 9}, 48, -1));
  EXPECT_NE(band.pBits, nullptr);
  EXPECT_EQ(LastArraySize(), 0U);
  EXPECT_EQ(band.lStride, -24);
  CImageUtility::DeleteBandImage(&band);
}

TEST(CreateBandImage, ADepthBelowAByteGivesAnEmptyBuffer) {
  tagMVBandImageParams band{};
  EXPECT_TRUE(CImageUtility::CreateBandImage(&band, {0, 0, 4, 4}, 1, -1));
  EXPECT_NE(band.pBits, nullptr);
  EXPECT_EQ(LastArraySize(), 0U);
  EXPECT_EQ(band.lStride, 0);
  CImageUtility::DeleteBandImage(&band);
}

TEST(CreateBandImage, WithoutMemoryFailsWithTheGeometrySet) {
  tagMVBandImageParams band{};
  const ArraysRefused refused(0);
  EXPECT_FALSE(CImageUtility::CreateBandImage(&band, {1, 2, 4, 4}, 48, -1));
  EXPECT_EQ(band.pBits, nullptr);
  EXPECT_EQ(band.lStride, -18);
  ExpectRect(band.rcBand, 1, 2, 4, 4);
}

TEST(CreateBandImage, AnUpsideDownRectangleFailsWithTheGeometrySet) {
  tagMVBandImageParams band{};
  EXPECT_FALSE(CImageUtility::CreateBandImage(&band, {0, 4, 3, 2}, 48, 1));
  EXPECT_EQ(band.pBits, nullptr);
  EXPECT_EQ(band.lStride, 18);
  ExpectRect(band.rcBand, 0, 4, 3, 2);
}

TEST(CreateBandImage, AMirroredRectangleFailsWithTheGeometrySet) {
  tagMVBandImageParams band{};
  EXPECT_FALSE(CImageUtility::CreateBandImage(&band, {3, 0, 0, 2}, 48, 1));
  EXPECT_EQ(band.pBits, nullptr);
  EXPECT_EQ(band.lStride, -18);
  ExpectRect(band.rcBand, 3, 0, 0, 2);
}

TEST(CreateBandImage, ASizeBeyondAnyMemoryFails) {
  tagMVBandImageParams band{};
  EXPECT_FALSE(
      CImageUtility::CreateBandImage(&band, {0, 0, INT64_C(1) << 29, INT64_C(1) << 29}, 48, -1));
  EXPECT_EQ(band.pBits, nullptr);
}

TEST(CreateBandImage, ARectangleWiderAndHigherThanNumbersGoFails) {
  // Both distances are 2^64 − 1 and wrap to −1: as a product they would be one pixel.
  const tagRECT rect{INT64_MIN, INT64_MIN, INT64_MAX, INT64_MAX};
  tagMVBandImageParams band{};
  EXPECT_FALSE(CImageUtility::CreateBandImage(&band, rect, 48, -1));
  EXPECT_EQ(band.pBits, nullptr);
}

TEST(DeleteBandImage, ReleasesTheBufferAndKeepsTheGeometry) {
  const long before = LiveArrays();
  tagMVBandImageParams band{};
  ASSERT_TRUE(CImageUtility::CreateBandImage(&band, {1, 2, 4, 4}, 48, -1));
  ASSERT_EQ(LiveArrays(), before + 1);
  CImageUtility::DeleteBandImage(&band);
  EXPECT_EQ(LiveArrays(), before);
  EXPECT_EQ(band.pBits, nullptr);
  EXPECT_EQ(band.lStride, -18);
  ExpectRect(band.rcBand, 1, 2, 4, 4);
}

TEST(DeleteBandImage, TwiceIsHarmless) {
  tagMVBandImageParams band{};
  ASSERT_TRUE(CImageUtility::CreateBandImage(&band, {1, 2, 4, 4}, 48, -1));
  CImageUtility::DeleteBandImage(&band);
  const long after_first = LiveArrays();
  CImageUtility::DeleteBandImage(&band);
  EXPECT_EQ(LiveArrays(), after_first);
  EXPECT_EQ(band.lStride, -18);
  ExpectRect(band.rcBand, 1, 2, 4, 4);
}

TEST(DeleteBandImage, OfABandWithoutABufferChangesNothing) {
  tagMVBandImageParams band = Band(nullptr, 5, {1, 2, 3, 4});
  CImageUtility::DeleteBandImage(&band);
  EXPECT_EQ(band.pBits, nullptr);
  EXPECT_EQ(band.lStride, 5);
  ExpectRect(band.rcBand, 1, 2, 3, 4);
}

TEST(DeleteBandImage, OfNoRecordChangesNothing) {
  const long before = LiveArrays();
  CImageUtility::DeleteBandImage(nullptr);
  EXPECT_EQ(LiveArrays(), before);
}

TEST(FillBandImage, RepeatsThePixelOverEveryLine) {
  std::array<unsigned char, 12> bits{};
  std::array<unsigned char, 3> pixel = {'r', 'g', 'b'};
  tagMVBandImageParams band = Band(bits.data(), -6, {10, 20, 12, 22});
  EXPECT_TRUE(CImageUtility::FillBandImage(&band, 24, pixel.data()));
  EXPECT_EQ(Bytes(bits.data(), 12), "rgbrgbrgbrgb");
}

TEST(FillBandImage, FillsABottomUpBandWithinItsBuffer) {
  std::array<unsigned char, 20> bits{};
  bits.fill('.');
  std::array<unsigned char, 3> pixel = {'r', 'g', 'b'};
  tagMVBandImageParams band = Band(bits.data() + 4, 6, {10, 20, 12, 22});
  EXPECT_TRUE(CImageUtility::FillBandImage(&band, 24, pixel.data()));
  EXPECT_EQ(Bytes(bits.data(), 20), "....rgbrgbrgbrgb....");
}

TEST(FillBandImage, LeavesTheBytesBehindTheLastWholePixelOfALine) {
  std::array<unsigned char, 16> bits{};
  bits.fill('.');
  std::array<unsigned char, 3> pixel = {'r', 'g', 'b'};
  tagMVBandImageParams band = Band(bits.data(), -8, {0, 0, 2, 2});
  EXPECT_TRUE(CImageUtility::FillBandImage(&band, 24, pixel.data()));
  EXPECT_EQ(Bytes(bits.data(), 16), "rgbrgb..rgbrgb..");
}

TEST(FillBandImage, FillsTheWholeStrideAndNotOnlyTheWidth) {
  std::array<unsigned char, 18> bits{};
  bits.fill('.');
  std::array<unsigned char, 3> pixel = {'r', 'g', 'b'};
  tagMVBandImageParams band = Band(bits.data(), 9, {0, 0, 1, 2});
  EXPECT_TRUE(CImageUtility::FillBandImage(&band, 24, pixel.data()));
  EXPECT_EQ(Bytes(bits.data(), 18), "rgbrgbrgbrgbrgbrgb");
}

TEST(FillBandImage, WithoutRowsWritesNothing) {
  std::array<unsigned char, 6> bits{};
  bits.fill('.');
  std::array<unsigned char, 3> pixel = {'r', 'g', 'b'};
  tagMVBandImageParams band = Band(bits.data(), -6, {0, 5, 2, 5});
  EXPECT_TRUE(CImageUtility::FillBandImage(&band, 24, pixel.data()));
  EXPECT_EQ(Bytes(bits.data(), 6), "......");
}

TEST(FillBandImage, WithoutABufferFails) {
  std::array<unsigned char, 3> pixel = {'r', 'g', 'b'};
  tagMVBandImageParams band = Band(nullptr, -6, {0, 0, 2, 2});
  EXPECT_FALSE(CImageUtility::FillBandImage(&band, 24, pixel.data()));
}

TEST(FillBandImage, MakesTheSheetWhiteThatThePrinterKnows) {
  tagMVBandImageParams band{};
  ASSERT_TRUE(CImageUtility::CreateBandImage(&band, {0, 0, 2, 1}, 48, -1));
  std::array<unsigned char, 6> white = {0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F};
  EXPECT_TRUE(CImageUtility::FillBandImage(&band, 48, white.data()));
  EXPECT_EQ(Bytes(band.pBits, 12),
            Bytes({0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F}));
  CImageUtility::DeleteBandImage(&band);
}
