// SPDX-License-Identifier: Apache-2.0
//
// Every request that the library refuses, its code, and that nothing was written for it.
#include <gtest/gtest.h>

#include <cstdint>

#include "conversion/change_codes.h"
#include "tests/unit/conversion/test_page.h"

namespace {

/// A request in order, which each test spoils in one place.
class PageErrors : public testing::Test {
 protected:
  long call() { return MVChangeImage(source_, params_, destination_, matte_, rgbRate_, opRate_); }

  void expectRefused(long code) {
    EXPECT_EQ(call(), code);
    EXPECT_TRUE(sourceBand.untouched());
    EXPECT_TRUE(destinationBand.untouched());
    EXPECT_TRUE(matteBand.untouched());
    EXPECT_EQ(rates[0], 0xA5);
    EXPECT_EQ(rates[1], 0xA5);
  }

  TestBand sourceBand{6, 4, 3, {.padding = 2}};
  TestBand destinationBand{6, 4, 6, {.padding = 2}};
  TestBand matteBand{8, 16, 1, {.padding = 2}};
  tagMVChangeParams params = plain_params();
  unsigned char rates[2] = {0xA5, 0xA5};

  tagMVBandImageParams& source = sourceBand.record;
  tagMVBandImageParams& destination = destinationBand.record;
  tagMVBandImageParams& matte = matteBand.record;

  const tagMVBandImageParams* source_ = &source;
  const tagMVChangeParams* params_ = &params;
  tagMVBandImageParams* destination_ = &destination;
  tagMVBandImageParams* matte_ = &matte;
  unsigned char* rgbRate_ = &rates[0];
  unsigned char* opRate_ = &rates[1];
};

TEST_F(PageErrors, TheUnspoiledRequestIsConverted) {
  EXPECT_EQ(call(), 0);
  EXPECT_FALSE(destinationBand.untouched());
  EXPECT_FALSE(matteBand.untouched());
  EXPECT_EQ(rates[0], 35);  // 0xA5 everywhere: 1 − 165 / 255
  EXPECT_NE(rates[1], 0xA5);
}

TEST_F(PageErrors, ANullSourceIs11) {
  source_ = nullptr;
  expectRefused(11);
}

TEST_F(PageErrors, ANullParameterBlockIs12) {
  params_ = nullptr;
  expectRefused(12);
}

TEST_F(PageErrors, ANullDestinationIs13) {
  destination_ = nullptr;
  expectRefused(13);
}

TEST_F(PageErrors, ANullRgbRateIs14) {
  rgbRate_ = nullptr;
  expectRefused(14);
}

TEST_F(PageErrors, ANullOpRateIs15) {
  opRate_ = nullptr;
  expectRefused(15);
}

TEST_F(PageErrors, ASourceWithoutPixelsIs21) {
  source.pBits = nullptr;
  expectRefused(21);
}

TEST_F(PageErrors, ASourceOfZeroWidthIs22) {
  source.rcBand.right = source.rcBand.left;
  expectRefused(22);
}

TEST_F(PageErrors, ASourceOfZeroHeightIs22) {
  source.rcBand.bottom = source.rcBand.top;
  expectRefused(22);
}

TEST_F(PageErrors, ASourceOfNegativeWidthIs22) {
  source.rcBand.right = -6;
  expectRefused(22);
}

TEST_F(PageErrors, ASourceOfNegativeHeightIs22) {
  source.rcBand.bottom = -4;
  expectRefused(22);
}

TEST_F(PageErrors, ASourceTurnedInsideOutAtTheEndsOf64BitsIs22) {
  source.rcBand = {INT64_MAX, 0, INT64_MIN, 4};  // the difference would wrap around to 1
  expectRefused(22);
}

TEST_F(PageErrors, ASourceBeyondAnyMemoryIs23) {
  source.rcBand.right = std::int64_t{1} << 40;
  source.rcBand.bottom = std::int64_t{1} << 40;
  expectRefused(23);
}

TEST_F(PageErrors, ASourceAsWideAs64BitsIs23) {
  source.rcBand.left = INT64_MIN;
  source.rcBand.right = INT64_MAX;
  expectRefused(23);
}

TEST_F(PageErrors, ASourceAsHighAs64BitsIs23) {
  source.rcBand.top = INT64_MIN;
  source.rcBand.bottom = INT64_MAX;
  expectRefused(23);
}

TEST_F(PageErrors, AWidthWhoseBytesWrapAroundToAFewIs23) {
  source.rcBand.right = 0x5555555555555557;  // times 3: 5 beyond 2^64
  destination.rcBand.right = source.rcBand.right;
  expectRefused(23);
}

TEST_F(PageErrors, AStrideBeyondAnyMemoryIs23) {
  source.lStride = INT64_MIN;
  expectRefused(23);
}

TEST_F(PageErrors, ASourceStrideShorterThanALineIs24) {
  source.lStride = -17;
  expectRefused(24);
}

TEST_F(PageErrors, APositiveSourceStrideShorterThanALineIs24) {
  source.lStride = 17;
  expectRefused(24);
}

TEST_F(PageErrors, ASourceStrideOfZeroIs24) {
  source.lStride = 0;
  expectRefused(24);
}

TEST_F(PageErrors, ADestinationWithoutPixelsIs31) {
  destination.pBits = nullptr;
  expectRefused(31);
}

TEST_F(PageErrors, ADestinationOfZeroWidthIs32) {
  destination.rcBand.right = destination.rcBand.left;
  expectRefused(32);
}

TEST_F(PageErrors, ADestinationOfNegativeHeightIs32) {
  destination.rcBand.bottom = -1;
  expectRefused(32);
}

TEST_F(PageErrors, ADestinationBeyondAnyMemoryIs33) {
  destination.rcBand.right = INT64_MAX;
  expectRefused(33);
}

TEST_F(PageErrors, ADestinationStrideBeyondAnyMemoryIs33) {
  destination.lStride = INT64_MIN;
  expectRefused(33);
}

TEST_F(PageErrors, ADestinationStrideShorterThanALineIs34) {
  destination.lStride = -35;
  expectRefused(34);
}

TEST_F(PageErrors, APositiveDestinationStrideShorterThanALineIs34) {
  destination.lStride = 35;
  expectRefused(34);
}

TEST_F(PageErrors, ADestinationOfAnotherWidthIs35) {
  destination.rcBand.right = 5;
  expectRefused(35);
}

TEST_F(PageErrors, ADestinationOfAnotherHeightIs35) {
  destination.rcBand.bottom = 3;
  expectRefused(35);
}

TEST_F(PageErrors, ADestinationOfAnotherPlaceIsConverted) {
  destination.rcBand = {100, 616, 106, 620};
  EXPECT_EQ(call(), 0);
  EXPECT_TRUE(destinationBand.surroundingsUntouched());
}

TEST_F(PageErrors, AMatteBandWithoutPixelsIs41) {
  matte.pBits = nullptr;
  expectRefused(41);
}

TEST_F(PageErrors, AMatteBandOfZeroWidthIs42) {
  matte.rcBand.right = 0;
  expectRefused(42);
}

TEST_F(PageErrors, AMatteBandOfNegativeHeightIs42) {
  matte.rcBand.bottom = -16;
  expectRefused(42);
}

TEST_F(PageErrors, AMatteBandBeyondAnyMemoryIs43) {
  matte.rcBand.bottom = INT64_MAX;
  expectRefused(43);
}

TEST_F(PageErrors, AMatteStrideBeyondAnyMemoryIs43) {
  matte.lStride = INT64_MIN;
  expectRefused(43);
}

TEST_F(PageErrors, AMatteStrideShorterThanALineIs44) {
  matte.lStride = -7;
  expectRefused(44);
}

TEST_F(PageErrors, SharpnessChangesNothingAboutARefusal) {
  params.dwFlags |= kChangeFlagSharpness;
  matte.lStride = -7;
  expectRefused(44);
}

TEST_F(PageErrors, ANullModulePathIsNoFault) {
  params.pszModulePath = nullptr;
  EXPECT_EQ(call(), 0);
}

TEST_F(PageErrors, NothingIsSaidOnStandardOutputOrStandardError) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  EXPECT_EQ(call(), 0);
  source.lStride = 0;
  EXPECT_EQ(call(), 24);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
