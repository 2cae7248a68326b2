// SPDX-License-Identifier: Apache-2.0
//
// What the words of a job mean for a photo.
#include "photo/job_wishes.h"

#include <gmock/gmock.h>

namespace photo {
namespace {

JobWishes wishes_of(const char* text, bool borderless = true, const char* copies = "1") {
  return read_wishes(JobOptions(text), copies, borderless);
}

TEST(JobWishes, AreToFitWhenNothingIsSaid) {
  const JobWishes wishes = wishes_of("");
  EXPECT_EQ(wishes.scaling, Scaling::Fit);
  EXPECT_EQ(wishes.orientation, 0);
  EXPECT_EQ(wishes.copies, 1);
  EXPECT_FALSE(wishes.mirror);
  EXPECT_FALSE(wishes.collate);
  EXPECT_EQ(wishes.gamma, 1);
  EXPECT_EQ(wishes.brightness, 1);
  EXPECT_EQ(wishes.saturation, 100);
  EXPECT_EQ(wishes.hue, 0);
}

TEST(JobWishes, TakePrintScaling) {
  EXPECT_EQ(wishes_of("print-scaling=fill").scaling, Scaling::Fill);
  EXPECT_EQ(wishes_of("print-scaling=FIT").scaling, Scaling::Fit);
  EXPECT_EQ(wishes_of("print-scaling=auto-fit").scaling, Scaling::Fit);
  EXPECT_EQ(wishes_of("print-scaling=none").scaling, Scaling::Natural);
}

TEST(JobWishes, FillABorderlessPageAndFitABorderedOneWhenTheyAreToBeAutomatic) {
  EXPECT_EQ(wishes_of("print-scaling=auto", true).scaling, Scaling::Fill);
  EXPECT_EQ(wishes_of("print-scaling=auto", false).scaling, Scaling::Fit);
}

TEST(JobWishes, TakeTheOlderWordsForTheSame) {
  EXPECT_EQ(wishes_of("fill").scaling, Scaling::Fill);
  EXPECT_EQ(wishes_of("fill=true").scaling, Scaling::Fill);
  EXPECT_EQ(wishes_of("fill=false").scaling, Scaling::Fit);
  EXPECT_EQ(wishes_of("fit-to-page").scaling, Scaling::Fit);
  EXPECT_EQ(wishes_of("fitplot").scaling, Scaling::Fit);
  EXPECT_EQ(wishes_of("crop-to-fit").scaling, Scaling::Natural);
  EXPECT_EQ(wishes_of("fit-to-page=false").scaling, Scaling::Spread);
}

TEST(JobWishes, TakePrintScalingBeforeTheOlderWords) {
  EXPECT_EQ(wishes_of("fill print-scaling=fit").scaling, Scaling::Fit);
  EXPECT_EQ(wishes_of("print-scaling=fill ppi=300").scaling, Scaling::Fill);
}

TEST(JobWishes, TakeAShareOfTheFittedOrOfTheNaturalSize) {
  EXPECT_EQ(wishes_of("scaling=50").scaling, Scaling::Spread);
  EXPECT_EQ(wishes_of("scaling=50").percent, 50);
  EXPECT_TRUE(wishes_of("scaling=50").ofFitted);
  EXPECT_EQ(wishes_of("natural-scaling=150").percent, 150);
  EXPECT_FALSE(wishes_of("natural-scaling=150").ofFitted);
}

TEST(JobWishes, HoldNumbersToWhatMakesSense) {
  EXPECT_EQ(wishes_of("scaling=0").percent, 1);
  EXPECT_EQ(wishes_of("scaling=99999999999999").percent, 1000);
  EXPECT_EQ(wishes_of("scaling=large").percent, 1);
  EXPECT_EQ(wishes_of("ppi=0").perInchAcross, 1);
  EXPECT_EQ(wishes_of("", true, "0").copies, 1);
  EXPECT_EQ(wishes_of("", true, "999999").copies, 9999);
}

TEST(JobWishes, TakeDotsToTheInch) {
  EXPECT_EQ(wishes_of("ppi=150").scaling, Scaling::Spread);
  EXPECT_EQ(wishes_of("ppi=150").perInchAcross, 150);
  EXPECT_EQ(wishes_of("ppi=150").perInchDown, 150);
  EXPECT_EQ(wishes_of("ppi=150x300").perInchDown, 300);
  EXPECT_EQ(wishes_of("ppi=some").perInchAcross, 0);
}

TEST(JobWishes, TakeAPosition) {
  EXPECT_EQ(wishes_of("position=top-left").position.across, -1);
  EXPECT_EQ(wishes_of("position=top-left").position.down, -1);
  EXPECT_EQ(wishes_of("position=bottom").position.down, 1);
  EXPECT_EQ(wishes_of("position=right").position.across, 1);
  EXPECT_EQ(wishes_of("position=center").position.across, 0);
}

TEST(JobWishes, TakeAnOrientation) {
  EXPECT_EQ(wishes_of("orientation-requested=5").orientation, 5);
  EXPECT_EQ(wishes_of("orientation-requested=7").orientation, 0);
  EXPECT_EQ(wishes_of("landscape").orientation, 4);
  EXPECT_EQ(wishes_of("landscape=false").orientation, 3);
}

TEST(JobWishes, TakeCopiesAndTheirOrder) {
  EXPECT_EQ(wishes_of("", true, "3").copies, 3);
  EXPECT_TRUE(wishes_of("Collate=True").collate);
  EXPECT_TRUE(wishes_of("multiple-document-handling=separate-documents-collated-copies").collate);
  EXPECT_FALSE(
      wishes_of("multiple-document-handling=separate-documents-uncollated-copies").collate);
}

TEST(JobWishes, TakeTones) {
  EXPECT_EQ(wishes_of("gamma=1700").gamma, 1.7);
  EXPECT_EQ(wishes_of("brightness=120").brightness, 1.2);
  EXPECT_EQ(wishes_of("brightness=1").brightness, 0.1);
  EXPECT_EQ(wishes_of("saturation=0").saturation, 0);
  EXPECT_EQ(wishes_of("hue=-30").hue, -30);
  EXPECT_TRUE(wishes_of("mirror").mirror);
}

TEST(JobWishes, AreGreyInEveryModeWithoutColours) {
  EXPECT_TRUE(wishes_of("print-color-mode=monochrome").grey);
  EXPECT_TRUE(wishes_of("print-color-mode=auto-monochrome").grey);
  EXPECT_TRUE(wishes_of("print-color-mode=process-monochrome").grey);
  EXPECT_TRUE(wishes_of("print-color-mode=bi-level").grey);
  EXPECT_TRUE(wishes_of("print-color-mode=process-bi-level").grey);
  EXPECT_TRUE(wishes_of("print-color-mode=Monochrome").grey);
}

TEST(JobWishes, KeepTheColoursInEveryOtherMode) {
  EXPECT_FALSE(wishes_of("").grey);
  EXPECT_FALSE(wishes_of("print-color-mode=color").grey);
  EXPECT_FALSE(wishes_of("print-color-mode=auto").grey);
  EXPECT_FALSE(wishes_of("print-color-mode=highlight").grey);
  EXPECT_FALSE(wishes_of("print-color-mode=").grey);
}

}  // namespace
}  // namespace photo
