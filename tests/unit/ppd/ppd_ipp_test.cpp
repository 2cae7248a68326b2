// SPDX-License-Identifier: Apache-2.0
// What clients without a PPD may ask for, as the filter marks it: finishings, print-quality, and
// the presets by name.
#include <cups/cups.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/unit/ppd/open_ppd.h"

namespace {

// The finish and the mode that a job with these options prints in.
std::string finish_and_mode(const char* job_options) {
  const Ppd ppd = open_ppd();
  if (!ppd) {
    return "no PPD";
  }
  cups_option_t* options = nullptr;
  const int count = cupsParseOptions(job_options, 0, &options);
  cupsMarkOptions(ppd.get(), count, options);
  cupsFreeOptions(count, options);
  const ppd_choice_t* finish = ppdFindMarkedChoice(ppd.get(), "RQPrintFinish");
  const ppd_choice_t* mode = ppdFindMarkedChoice(ppd.get(), "RQPrintMode");
  return std::string(finish->choice) + " " + mode->choice;
}

TEST(PpdForClientsWithoutIt, HasGlossAsTheFinishOfAJobThatNamesNone) {
  EXPECT_EQ(finish_and_mode("copies=1"), "Gloss Auto");
  EXPECT_EQ(finish_and_mode("finishings=3"), "Gloss Auto");
}

TEST(PpdForClientsWithoutIt, HasTheMatteFinishAsACoat) {
  EXPECT_EQ(finish_and_mode("finishings=15"), "Matte Auto");
}

TEST(PpdForClientsWithoutIt, PrintsDraftsFastAndAllElseInTheMannerOfThePrinter) {
  EXPECT_EQ(finish_and_mode("print-quality=3"), "Gloss Fast");
  EXPECT_EQ(finish_and_mode("RQPrintMode=Fast print-quality=4"), "Gloss Fast");
  EXPECT_EQ(finish_and_mode("print-quality=4"), "Gloss Auto");
  EXPECT_EQ(finish_and_mode("print-quality=5"), "Gloss Auto");
}

TEST(PpdForClientsWithoutIt, LeavesTheFinishToTheQueueWhateverTheQuality) {
  EXPECT_EQ(finish_and_mode("RQPrintFinish=Matte print-quality=3"), "Matte Fast");
  EXPECT_EQ(finish_and_mode("RQPrintFinish=Matte print-quality=5"), "Matte Auto");
}

TEST(PpdForClientsWithoutIt, HasPresetsByNameThatGiveWayToTheJobsOwnOptions) {
  EXPECT_EQ(finish_and_mode("APPrinterPreset=photo-draft"), "Gloss Fast");
  EXPECT_EQ(finish_and_mode("APPrinterPreset=photo-draft RQPrintMode=Auto"), "Gloss Auto");
  EXPECT_EQ(finish_and_mode("APPrinterPreset=photo-normal"), "Gloss Auto");
  EXPECT_EQ(finish_and_mode("APPrinterPreset=photo-high RQPrintFinish=Matte"), "Matte Auto");
  EXPECT_EQ(finish_and_mode("APPrinterPreset=photo-matte"), "Matte Auto");
}

}  // namespace
