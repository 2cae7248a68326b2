// SPDX-License-Identifier: Apache-2.0
//
// The limits of the request check, at the very numbers where they lie. No pixel is touched here,
// so the bands may claim any size.
#include "conversion/request_check.h"

#include <gtest/gtest.h>

namespace {

class RequestCheck : public testing::Test {
 protected:
  ChangeCode check() { return check_request(&source, &params, &destination, &matte, &rate, &rate); }

  void setSize(std::int64_t width, std::int64_t height) {
    source.rcBand = destination.rcBand = {0, 0, width, height};
    source.lStride = -3 * width;
    destination.lStride = -6 * width;
  }

  unsigned char byte = 0;
  unsigned char rate = 0;
  tagMVChangeParams params{};
  tagMVBandImageParams source{&byte, -3, {0, 0, 1, 1}};
  tagMVBandImageParams destination{&byte, -6, {0, 0, 1, 1}};
  tagMVBandImageParams matte{&byte, -1, {0, 0, 1, 1}};
};

TEST_F(RequestCheck, OnePixelIsEnough) {
  EXPECT_EQ(check(), kChangeDone);
}

TEST_F(RequestCheck, NoMatteBandIsNoFault) {
  EXPECT_EQ(check_request(&source, &params, &destination, nullptr, &rate, &rate), kChangeDone);
}

TEST_F(RequestCheck, TheLargestSheetPasses) {
  setSize(1852, 2434);
  matte.rcBand = {0, 0, 1852, 2446};
  matte.lStride = -1852;
  EXPECT_EQ(check(), kChangeDone);
}

TEST_F(RequestCheck, SixteenGibibytesPassAndAByteMoreALineDoesNot) {
  matte.rcBand = {0, 0, 65536, 262144};
  matte.lStride = -65536;
  EXPECT_EQ(check(), kChangeDone);
  matte.lStride = -65537;
  EXPECT_EQ(check(), kChangeMatteTooLarge);
  matte.lStride = 65537;
  EXPECT_EQ(check(), kChangeMatteTooLarge);
}

TEST_F(RequestCheck, TooWideIsFoundEvenWithAShortStride) {
  matte.rcBand = {0, 0, 65537, 262144};
  matte.lStride = -1;
  EXPECT_EQ(check(), kChangeMatteTooLarge);
}

TEST_F(RequestCheck, ADestinationTooLargeForItsDepthIsFound) {
  // 65536 × 65536: the source has 12 GiB, the destination 24.
  setSize(65536, 65536);
  EXPECT_EQ(check(), kChangeDestinationTooLarge);
}

TEST_F(RequestCheck, AStrideOfExactlyALinePassesAndAByteLessDoesNot) {
  setSize(10, 2);
  EXPECT_EQ(check(), kChangeDone);
  source.lStride = 29;
  EXPECT_EQ(check(), kChangeSourceShortStride);
  source.lStride = 30;
  destination.lStride = 59;
  EXPECT_EQ(check(), kChangeDestinationShortStride);
  destination.lStride = 60;
  matte.rcBand.right = 2;
  EXPECT_EQ(check(), kChangeMatteShortStride);
}

TEST_F(RequestCheck, EvenASingleRowNeedsAWholeLineOfStride) {
  setSize(10, 1);
  source.lStride = -29;
  EXPECT_EQ(check(), kChangeSourceShortStride);
}

TEST_F(RequestCheck, EdgesAtTheEndsOf64BitsAreOrdinaryPlaces) {
  setSize(10, 2);
  source.rcBand = {INT64_MAX - 10, INT64_MIN, INT64_MAX, INT64_MIN + 2};
  EXPECT_EQ(check(), kChangeDone);
}

TEST_F(RequestCheck, TheLowestCodeIsTold) {
  source.pBits = nullptr;
  destination.pBits = nullptr;
  matte.pBits = nullptr;
  EXPECT_EQ(check(), kChangeSourceNoPixels);
  EXPECT_EQ(check_request(&source, nullptr, nullptr, &matte, nullptr, nullptr), kChangeNullParams);
}

}  // namespace
