// SPDX-License-Identifier: Apache-2.0
//
// Every request that the library refuses, its code, and that nothing was written for it.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "conversion/change_codes.h"
#include "tests/unit/conversion/test_page.h"

namespace {

/// A request in order, which each test spoils in one place.
struct Request {
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

struct Refusal {
  const char* name;
  long code;
  void (*spoil)(Request&);
};

class PageErrorsOf : public testing::TestWithParam<Refusal> {};

TEST_P(PageErrorsOf, ThisRequestHaveTheirCode) {
  Request request;
  GetParam().spoil(request);
  request.expectRefused(GetParam().code);
}

const Refusal kRefusals[] = {
    {"ANullSource", 11, [](Request& r) { r.source_ = nullptr; }},
    {"ANullParameterBlock", 12, [](Request& r) { r.params_ = nullptr; }},
    {"ANullDestination", 13, [](Request& r) { r.destination_ = nullptr; }},
    {"ANullRgbRate", 14, [](Request& r) { r.rgbRate_ = nullptr; }},
    {"ANullOpRate", 15, [](Request& r) { r.opRate_ = nullptr; }},
    {"ASourceWithoutPixels", 21, [](Request& r) { r.source.pBits = nullptr; }},
    {"ASourceOfZeroWidth", 22, [](Request& r) { r.source.rcBand.right = r.source.rcBand.left; }},
    {"ASourceOfZeroHeight", 22, [](Request& r) { r.source.rcBand.bottom = r.source.rcBand.top; }},
    {"ASourceOfNegativeWidth", 22, [](Request& r) { r.source.rcBand.right = -6; }},
    {"ASourceOfNegativeHeight", 22, [](Request& r) { r.source.rcBand.bottom = -4; }},
    {"ASourceTurnedInsideOutAtTheEndsOf64Bits", 22,
     [](Request& r) {
       r.source.rcBand = {INT64_MAX, 0, INT64_MIN, 4};
     }},
    {"ASourceBeyondAnyMemory", 23,
     [](Request& r) {
       r.source.rcBand.right = std::int64_t{1} << 40;
       r.source.rcBand.bottom = std::int64_t{1} << 40;
     }},
    {"ASourceAsWideAs64Bits", 23,
     [](Request& r) {
       r.source.rcBand.left = INT64_MIN;
       r.source.rcBand.right = INT64_MAX;
     }},
    {"ASourceAsHighAs64Bits", 23,
     [](Request& r) {
       r.source.rcBand.top = INT64_MIN;
       r.source.rcBand.bottom = INT64_MAX;
     }},
    // 3 times this width is 5 beyond 2^64.
    {"AWidthWhoseBytesWrapAroundToAFew", 23,
     [](Request& r) {
       r.source.rcBand.right = 0x5555555555555557;
       r.destination.rcBand.right = r.source.rcBand.right;
     }},
    {"AStrideBeyondAnyMemory", 23, [](Request& r) { r.source.lStride = INT64_MIN; }},
    {"ASourceStrideShorterThanALine", 24, [](Request& r) { r.source.lStride = -17; }},
    {"APositiveSourceStrideShorterThanALine", 24, [](Request& r) { r.source.lStride = 17; }},
    {"ASourceStrideOfZero", 24, [](Request& r) { r.source.lStride = 0; }},
    {"ADestinationWithoutPixels", 31, [](Request& r) { r.destination.pBits = nullptr; }},
    {"ADestinationOfZeroWidth", 32,
     [](Request& r) { r.destination.rcBand.right = r.destination.rcBand.left; }},
    {"ADestinationOfNegativeHeight", 32, [](Request& r) { r.destination.rcBand.bottom = -1; }},
    {"ADestinationBeyondAnyMemory", 33, [](Request& r) { r.destination.rcBand.right = INT64_MAX; }},
    {"ADestinationStrideBeyondAnyMemory", 33,
     [](Request& r) { r.destination.lStride = INT64_MIN; }},
    {"ADestinationStrideShorterThanALine", 34, [](Request& r) { r.destination.lStride = -35; }},
    {"APositiveDestinationStrideShorterThanALine", 34,
     [](Request& r) { r.destination.lStride = 35; }},
    {"ADestinationOfAnotherWidth", 35, [](Request& r) { r.destination.rcBand.right = 5; }},
    {"ADestinationOfAnotherHeight", 35, [](Request& r) { r.destination.rcBand.bottom = 3; }},
    {"AMatteBandWithoutPixels", 41, [](Request& r) { r.matte.pBits = nullptr; }},
    {"AMatteBandOfZeroWidth", 42, [](Request& r) { r.matte.rcBand.right = 0; }},
    {"AMatteBandOfNegativeHeight", 42, [](Request& r) { r.matte.rcBand.bottom = -16; }},
    {"AMatteBandBeyondAnyMemory", 43, [](Request& r) { r.matte.rcBand.bottom = INT64_MAX; }},
    {"AMatteStrideBeyondAnyMemory", 43, [](Request& r) { r.matte.lStride = INT64_MIN; }},
    {"AMatteStrideShorterThanALine", 44, [](Request& r) { r.matte.lStride = -7; }},
    {"SharpnessChangesNothingAboutARefusal", 44,
     [](Request& r) {
       r.params.dwFlags |= kChangeFlagSharpness;
       r.matte.lStride = -7;
     }},
};

INSTANTIATE_TEST_SUITE_P(Refusals, PageErrorsOf, testing::ValuesIn(kRefusals),
                         [](const testing::TestParamInfo<Refusal>& refusal) {
                           return std::string(refusal.param.name);
                         });

class PageErrors : public testing::Test, public Request {};

TEST_F(PageErrors, TheUnspoiledRequestIsConverted) {
  EXPECT_EQ(call(), 0);
  EXPECT_FALSE(destinationBand.untouched());
  EXPECT_FALSE(matteBand.untouched());
  EXPECT_EQ(rates[0], 35);  // 0xA5 everywhere: 1 − 165 / 255
  EXPECT_NE(rates[1], 0xA5);
}

TEST_F(PageErrors, ADestinationOfAnotherPlaceIsConverted) {
  destination.rcBand = {100, 616, 106, 620};
  EXPECT_EQ(call(), 0);
  EXPECT_TRUE(destinationBand.surroundingsUntouched());
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
