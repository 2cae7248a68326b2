// SPDX-License-Identifier: Apache-2.0
//
// Gamma, brightness, saturation and hue.
#include "photo/tones.h"

#include <gmock/gmock.h>

namespace photo {
namespace {

using testing::ElementsAre;

std::vector<unsigned char> after(const JobWishes& wishes, unsigned char red, unsigned char green,
                                 unsigned char blue) {
  Picture picture(1, 1);
  picture.rgb = {red, green, blue};
  apply_tones(wishes, picture);
  return picture.rgb;
}

TEST(Tones, StayAsTheyAreWithoutAWish) {
  EXPECT_THAT(after(JobWishes(), 1, 128, 254), ElementsAre(1, 128, 254));
}

TEST(Tones, AreLighterWithAHigherGammaButBlackAndWhiteStay) {
  JobWishes wishes;
  wishes.gamma = 2;
  EXPECT_THAT(after(wishes, 0, 64, 255), ElementsAre(0, 128, 255));
}

TEST(Tones, AreDarkerWithLessBrightnessButWhiteStays) {
  JobWishes wishes;
  wishes.brightness = 0.5;
  EXPECT_THAT(after(wishes, 255, 205, 100), ElementsAre(255, 155, 0));
}

TEST(Tones, AreLighterWithMoreBrightness) {
  JobWishes wishes;
  wishes.brightness = 2;
  EXPECT_THAT(after(wishes, 255, 155, 55), ElementsAre(255, 205, 155));
}

TEST(Tones, AreGreyWithoutSaturation) {
  JobWishes wishes;
  wishes.saturation = 0;
  EXPECT_THAT(after(wishes, 0, 255, 0), ElementsAre(182, 182, 182));
  EXPECT_THAT(after(wishes, 255, 255, 255), ElementsAre(255, 255, 255));
}

TEST(Tones, AreGreyInBlackAndWhiteWhateverSaturationAndHueSay) {
  JobWishes wishes;
  wishes.grey = true;
  wishes.saturation = 200;
  wishes.hue = 90;
  EXPECT_THAT(after(wishes, 200, 90, 80), ElementsAre(113, 113, 113));
  EXPECT_THAT(after(wishes, 255, 255, 255), ElementsAre(255, 255, 255));
}

TEST(Tones, AreLighterInBlackAndWhiteToo) {
  JobWishes wishes;
  wishes.grey = true;
  wishes.brightness = 2;
  EXPECT_THAT(after(wishes, 155, 155, 155), ElementsAre(205, 205, 205));
}

TEST(Tones, TurnRedToGreenWithAThirdOfTheCircle) {
  JobWishes wishes;
  wishes.hue = 120;
  EXPECT_THAT(after(wishes, 255, 0, 0), ElementsAre(0, 255, 0));
  EXPECT_THAT(after(wishes, 77, 77, 77), ElementsAre(77, 77, 77));
}

}  // namespace
}  // namespace photo
