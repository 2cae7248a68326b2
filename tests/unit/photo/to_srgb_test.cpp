// SPDX-License-Identifier: Apache-2.0
//
// Samples of other colour spaces.
#include "photo/to_srgb.h"

#include <gmock/gmock.h>
#include <lcms2.h>

#include "tests/unit/test_profiles.h"

namespace photo {
namespace {

using testing::ElementsAre;

using Bytes = std::vector<std::uint8_t>;

Bytes bytes_of(cmsHPROFILE profile) {
  cmsUInt32Number length = 0;
  cmsSaveProfileToMem(profile, nullptr, &length);
  Bytes bytes(length);
  cmsSaveProfileToMem(profile, bytes.data(), &length);
  cmsCloseProfile(profile);
  return bytes;
}

Bytes rgb_profile(const cmsCIExyYTRIPLE& primaries, double gamma) {
  const cmsCIExyY white = {0.3127, 0.3290, 1};
  cmsToneCurve* const curve = cmsBuildGamma(nullptr, gamma);
  cmsToneCurve* const curves[] = {curve, curve, curve};
  Bytes bytes = bytes_of(cmsCreateRGBProfile(&white, &primaries, curves));
  cmsFreeToneCurve(curve);
  return bytes;
}

Bytes grey_profile(double gamma) {
  cmsToneCurve* const curve = cmsBuildGamma(nullptr, gamma);
  Bytes bytes = bytes_of(cmsCreateGrayProfile(cmsD50_xyY(), curve));
  cmsFreeToneCurve(curve);
  return bytes;
}

constexpr cmsCIExyYTRIPLE kScreen = {{0.64, 0.33, 1}, {0.30, 0.60, 1}, {0.15, 0.06, 1}};
constexpr cmsCIExyYTRIPLE kAdobe = {{0.64, 0.33, 1}, {0.21, 0.71, 1}, {0.15, 0.06, 1}};

Bytes converted(const PhotoFacts& facts, const Bytes& samples) {
  Bytes rgb(3);
  ToSrgb(facts).Convert(samples.data(), rgb.data(), 1);
  return rgb;
}

TEST(ToSrgb, TakesWhatSaysNothingForSrgb) {
  const PhotoFacts facts;
  EXPECT_THAT(converted(facts, {1, 128, 254}), ElementsAre(1, 128, 254));
  EXPECT_FALSE(ToSrgb(facts).Converts());
}

TEST(ToSrgb, LeavesTheSamplesOfAnSrgbProfileAsTheyAre) {
  PhotoFacts facts;
  facts.profile = bytes_of(cmsCreate_sRGBProfile());
  EXPECT_FALSE(ToSrgb(facts).Converts());
  EXPECT_FALSE(ToSrgb(facts).ProfilePassedOver());
  EXPECT_THAT(converted(facts, {1, 128, 254}), ElementsAre(1, 128, 254));
}

// Adobe RGB's green primary holds more than sRGB's: (100, 150, 100) there is
// light (0.1276, 0.3113, 0.1276), by the primaries sRGB light (0.0542, 0.3113, 0.1199).
TEST(ToSrgb, ConvertsAdobeRgb) {
  PhotoFacts facts;
  facts.profile = rgb_profile(kAdobe, 563.0 / 256);
  const Bytes rgb = converted(facts, {100, 150, 100});
  EXPECT_NEAR(rgb[0], 65, 1);
  EXPECT_NEAR(rgb[1], 151, 1);
  EXPECT_NEAR(rgb[2], 97, 1);
}

TEST(ToSrgb, TakesTheCamerasMarkForAdobeRgb) {
  PhotoFacts facts;
  facts.adobeRgb = true;
  const Bytes rgb = converted(facts, {100, 150, 100});
  EXPECT_NEAR(rgb[0], 65, 1);
  EXPECT_NEAR(rgb[1], 151, 1);
  EXPECT_NEAR(rgb[2], 97, 1);
}

TEST(ToSrgb, TakesTheProfileBeforeTheMark) {
  PhotoFacts facts;
  facts.adobeRgb = true;
  facts.profile = bytes_of(cmsCreate_sRGBProfile());
  EXPECT_THAT(converted(facts, {100, 150, 100}), ElementsAre(100, 150, 100));
}

// Half the light is 188 in sRGB.
TEST(ToSrgb, ConvertsNumbersThatCountLight) {
  PhotoFacts facts;
  facts.gamma = 1;
  const Bytes rgb = converted(facts, {128, 128, 128});
  EXPECT_NEAR(rgb[0], 188, 1);
  EXPECT_NEAR(rgb[1], 188, 1);
  EXPECT_NEAR(rgb[2], 188, 1);
}

TEST(ToSrgb, TakesTheUsualGammaForThatOfSrgb) {
  PhotoFacts facts;
  facts.gamma = 1 / 0.45455;
  facts.hasPrimaries = true;
  facts.primaries = {{0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}, {0.3127, 0.3290}};
  EXPECT_FALSE(ToSrgb(facts).Converts());
}

TEST(ToSrgb, PassesOverAGammaThatNoPictureHas) {
  PhotoFacts facts;
  facts.gamma = 100000;
  EXPECT_FALSE(ToSrgb(facts).Converts());
}

TEST(ToSrgb, ConvertsGreyByItsProfile) {
  PhotoFacts facts;
  facts.samples = Samples::Grey;
  facts.profile = grey_profile(1);
  const Bytes rgb = converted(facts, {128});
  EXPECT_NEAR(rgb[0], 188, 1);
  EXPECT_NEAR(rgb[1], 188, 1);
  EXPECT_NEAR(rgb[2], 188, 1);
}

TEST(ToSrgb, SpreadsGreyWithoutAProfile) {
  PhotoFacts facts;
  facts.samples = Samples::Grey;
  EXPECT_THAT(converted(facts, {77}), ElementsAre(77, 77, 77));
}

TEST(ToSrgb, TakesInkWithoutAProfileForWhatItLeavesOfTheLight) {
  PhotoFacts facts;
  facts.samples = Samples::Cmyk;
  EXPECT_THAT(converted(facts, {0, 0, 0, 0}), ElementsAre(255, 255, 255));
  EXPECT_THAT(converted(facts, {255, 0, 0, 0}), ElementsAre(0, 255, 255));
  EXPECT_THAT(converted(facts, {0, 51, 255, 51}), ElementsAre(204, 163, 0));
  facts.samples = Samples::CmykInverted;
  EXPECT_THAT(converted(facts, {255, 204, 0, 204}), ElementsAre(204, 163, 0));
}

TEST(ToSrgb, ConvertsInkByItsProfileBothWaysRound) {
  PhotoFacts facts;
  facts.samples = Samples::Cmyk;
  facts.profile = profiles::black_only_press();
  EXPECT_THAT(converted(facts, {255, 255, 255, 0}), ElementsAre(255, 255, 255));
  EXPECT_THAT(converted(facts, {0, 0, 0, 255}), ElementsAre(0, 0, 0));
  facts.samples = Samples::CmykInverted;
  EXPECT_THAT(converted(facts, {255, 255, 255, 0}), ElementsAre(0, 0, 0));
  EXPECT_THAT(converted(facts, {0, 0, 0, 255}), ElementsAre(255, 255, 255));
}

TEST(ToSrgb, PassesOverADeviceLink) {
  PhotoFacts facts;
  facts.samples = Samples::Cmyk;
  facts.profile = bytes_of(cmsCreateInkLimitingDeviceLink(cmsSigCmykData, 400));
  EXPECT_TRUE(ToSrgb(facts).ProfilePassedOver());
}

TEST(ToSrgb, PassesOverAProfileOfAnotherKindOfSamples) {
  PhotoFacts facts;
  facts.profile = grey_profile(1);
  EXPECT_TRUE(ToSrgb(facts).ProfilePassedOver());
  EXPECT_THAT(converted(facts, {1, 128, 254}), ElementsAre(1, 128, 254));
}

TEST(ToSrgb, PassesOverABrokenProfile) {
  PhotoFacts facts;
  facts.profile = rgb_profile(kScreen, 1.8);
  facts.profile.resize(200);
  EXPECT_TRUE(ToSrgb(facts).ProfilePassedOver());
  EXPECT_THAT(converted(facts, {1, 128, 254}), ElementsAre(1, 128, 254));
}

}  // namespace
}  // namespace photo
