// SPDX-License-Identifier: Apache-2.0
//
// From marked PPD choices to print settings: every size, every choice, every range.
#include "filter/ppd_options.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <string>

#include "job/paper_table.h"
#include "tests/unit/ppd_file.h"

namespace {

/// Settings in which every byte was 0xEE before.
tagPRINTSETTING Settings(ppd_file_t* ppd) {
  tagPRINTSETTING settings;
  std::memset(&settings, 0xEE, sizeof(settings));
  get_print_setting(ppd, &settings);
  return settings;
}

/// The settings of a PPD with one option whose default is the choice.
tagPRINTSETTING SettingsWith(const std::string& keyword, const std::string& choice) {
  PpdFile ppd(PickOne(keyword, {choice}));
  return Settings(ppd.get());
}

using Geometry = std::array<std::int64_t, 12>;

Geometry GeometryOf(const tagPRINTSETTING& settings) {
  return {settings.nPaperWidth,  settings.nPaperHeight, settings.nImageWidth,
          settings.nImageHeight, settings.nImageLeft,   settings.nImageTop,
          settings.byTwoUpMode,  settings.nTwoUpSplit,  settings.byTwoUpOption,
          settings.nJoinPages,   settings.nJoinGap,     settings.bHalfSheetLast ? 1 : 0};
}

void ExpectDefaults(const tagPRINTSETTING& settings) {
  EXPECT_EQ(GeometryOf(settings), (Geometry{1550, 1082, 1550, 1082, 0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(settings.bySharpness, 4);
  EXPECT_EQ(settings.byReserved[0], 0);
  EXPECT_EQ(settings.byReserved[1], 0);
  EXPECT_EQ(settings.byReserved[2], 0);
  EXPECT_EQ(settings.byPrintMode, 0);
  EXPECT_EQ(settings.byPrintFinish, 0);
  EXPECT_EQ(settings.byColorConversion, 1);
  EXPECT_EQ(settings.byMarginCutOff, 0);
  EXPECT_EQ(settings.byWaitNextImage, 1);
  EXPECT_EQ(settings.byWaitTime, 5);
  for (int channel = 0; channel < 3; ++channel) {
    EXPECT_EQ(settings.nGamma[channel], 0);
    EXPECT_EQ(settings.nContrast[channel], 0);
    EXPECT_EQ(settings.nBrightness[channel], 0);
  }
}

/// The value of a numeric keyword with the choice, or 77 where it has none.
int ValueOf(const std::string& choice) {
  PpdFile ppd(PickOne("RQNumber", {choice}));
  return get_ppd_val(ppd.get(), "RQNumber", 77);
}

}  // namespace

TEST(PpdOptions, WithoutAnyOptionEverythingIsAtItsDefault) {
  PpdFile ppd("");
  ExpectDefaults(Settings(ppd.get()));
}

TEST(PpdOptions, WithoutAPpdEverythingIsAtItsDefault) {
  ExpectDefaults(Settings(nullptr));
}

TEST(PpdOptions, EveryPageSizeHasItsGeometry) {
  for (const NamedPaper& known : named_papers()) {
    const tagPAPERINFO& paper = *known.paper;
    EXPECT_EQ(
        GeometryOf(SettingsWith("PageSize", known.choice)),
        (Geometry{paper.nPaperWidth, paper.nPaperHeight, paper.nImageWidth, paper.nImageHeight,
                  paper.nImageLeft, paper.nImageTop, paper.byTwoUpMode, paper.nTwoUpSplit,
                  paper.byTwoUpOption, paper.nJoinPages, paper.nJoinGap, paper.bHalfSheetLast}))
        << known.choice;
  }
  EXPECT_EQ(GeometryOf(SettingsWith("PageSize", "RQ_5x15x2_2")),
            (Geometry{1852, 1232, 1852, 616, 0, 0, 1, 616, 1, 1, 0, 0}));
  EXPECT_EQ(GeometryOf(SettingsWith("PageSize", "RQ_15x20_WB")),
            (Geometry{1852, 2434, 1684, 2286, 84, 74, 0, 0, 0, 0, 0, 0}));
}

TEST(PpdOptions, APageSizesLetterCaseDoesNotCount) {
  EXPECT_EQ(GeometryOf(SettingsWith("PageSize", "rq_10X15")),
            (Geometry{1852, 1232, 1852, 1232, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(PpdOptions, AnUnknownPageSizeIs9x13) {
  for (const char* choice : {"Letter", "RQ_10x15_", "RQ_5x15x2", "10x15"}) {
    EXPECT_EQ(GeometryOf(SettingsWith("PageSize", choice)),
              (Geometry{1550, 1082, 1550, 1082, 0, 0, 0, 0, 0, 0, 0, 0}))
        << choice;
  }
}

TEST(PpdOptions, EverySharpnessHasItsLevel) {
  EXPECT_EQ(SettingsWith("RQSharpness_Common", "None").bySharpness, 0);
  EXPECT_EQ(SettingsWith("RQSharpness_Common", "Minus3").bySharpness, 1);
  EXPECT_EQ(SettingsWith("RQSharpness_Common", "Minus2").bySharpness, 2);
  EXPECT_EQ(SettingsWith("RQSharpness_Common", "Minus1").bySharpness, 3);
  EXPECT_EQ(SettingsWith("RQSharpness_Common", "Normal").bySharpness, 4);
  EXPECT_EQ(SettingsWith("RQSharpness_Common", "Plus1").bySharpness, 5);
  EXPECT_EQ(SettingsWith("RQSharpness_Common", "Plus2").bySharpness, 6);
  EXPECT_EQ(SettingsWith("RQSharpness_Common", "Plus3").bySharpness, 7);
  EXPECT_EQ(SettingsWith("RQSharpness_Common", "pLUS3").bySharpness, 7);
  EXPECT_EQ(SettingsWith("RQSharpness_Common", "Plus4").bySharpness, 4);
}

TEST(PpdOptions, EveryPrintModeHasThePrintersCode) {
  EXPECT_EQ(SettingsWith("RQPrintMode", "Auto").byPrintMode, 0);
  EXPECT_EQ(SettingsWith("RQPrintMode", "Fast").byPrintMode, 5);
  EXPECT_EQ(SettingsWith("RQPrintMode", "FAST").byPrintMode, 5);
  EXPECT_EQ(SettingsWith("RQPrintMode", "Slow").byPrintMode, 0);
}

TEST(PpdOptions, EveryFinishHasThePrintersCode) {
  EXPECT_EQ(SettingsWith("RQPrintFinish", "Gloss").byPrintFinish, 0);
  EXPECT_EQ(SettingsWith("RQPrintFinish", "Matte").byPrintFinish, 3);
  EXPECT_EQ(SettingsWith("RQPrintFinish", "matte").byPrintFinish, 3);
  EXPECT_EQ(SettingsWith("RQPrintFinish", "Satin").byPrintFinish, 0);
}

TEST(PpdOptions, ColourConversionIsOnUnlessDisabled) {
  EXPECT_EQ(SettingsWith("RQColorConversion", "Enabled").byColorConversion, 1);
  EXPECT_EQ(SettingsWith("RQColorConversion", "Disabled").byColorConversion, 0);
  EXPECT_EQ(SettingsWith("RQColorConversion", "False").byColorConversion, 1);
}

TEST(PpdOptions, MarginCutOffIsOffUnlessTrue) {
  EXPECT_EQ(SettingsWith("RQMarginCutOff", "True").byMarginCutOff, 1);
  EXPECT_EQ(SettingsWith("RQMarginCutOff", "False").byMarginCutOff, 0);
  EXPECT_EQ(SettingsWith("RQMarginCutOff", "Yes").byMarginCutOff, 0);
}

TEST(PpdOptions, WaitingForTheNextImageIsOnUnlessFalse) {
  EXPECT_EQ(SettingsWith("RQWaitingNextImage", "True").byWaitNextImage, 1);
  EXPECT_EQ(SettingsWith("RQWaitingNextImage", "False").byWaitNextImage, 0);
  EXPECT_EQ(SettingsWith("RQWaitingNextImage", "No").byWaitNextImage, 1);
}

TEST(PpdOptions, TheWaitTimeKeepsItsLowByte) {
  EXPECT_EQ(SettingsWith("RQWaitTime", "0").byWaitTime, 0);
  EXPECT_EQ(SettingsWith("RQWaitTime", "255").byWaitTime, 255);
  EXPECT_EQ(SettingsWith("RQWaitTime", "300").byWaitTime, 44);
  EXPECT_EQ(SettingsWith("RQWaitTime", "-1").byWaitTime, 255);
  EXPECT_EQ(SettingsWith("RQWaitTime", "soon").byWaitTime, 0);
}

TEST(PpdOptions, EachToneKeywordSetsItsOwnChannel) {
  PpdFile ppd(PickOne("RQGammaR", {"1"}) + PickOne("RQGammaG", {"2"}) + PickOne("RQGammaB", {"3"}) +
              PickOne("RQBrightnessR", {"11"}) + PickOne("RQBrightnessG", {"12"}) +
              PickOne("RQBrightnessB", {"13"}) + PickOne("RQContrastR", {"21"}) +
              PickOne("RQContrastG", {"22"}) + PickOne("RQContrastB", {"23"}));
  const tagPRINTSETTING settings = Settings(ppd.get());
  EXPECT_EQ(settings.nGamma[0], 1);
  EXPECT_EQ(settings.nGamma[1], 2);
  EXPECT_EQ(settings.nGamma[2], 3);
  EXPECT_EQ(settings.nBrightness[0], 11);
  EXPECT_EQ(settings.nBrightness[1], 12);
  EXPECT_EQ(settings.nBrightness[2], 13);
  EXPECT_EQ(settings.nContrast[0], 21);
  EXPECT_EQ(settings.nContrast[1], 22);
  EXPECT_EQ(settings.nContrast[2], 23);
}

TEST(PpdOptions, GammaIsHeldToItsRange) {
  EXPECT_EQ(SettingsWith("RQGammaG", "9").nGamma[1], 5);
  EXPECT_EQ(SettingsWith("RQGammaG", "5").nGamma[1], 5);
  EXPECT_EQ(SettingsWith("RQGammaG", "-5").nGamma[1], -5);
  EXPECT_EQ(SettingsWith("RQGammaG", "-9").nGamma[1], -5);
}

TEST(PpdOptions, BrightnessIsHeldToItsRange) {
  EXPECT_EQ(SettingsWith("RQBrightnessR", "200").nBrightness[0], 128);
  EXPECT_EQ(SettingsWith("RQBrightnessR", "128").nBrightness[0], 128);
  EXPECT_EQ(SettingsWith("RQBrightnessR", "-128").nBrightness[0], -128);
  EXPECT_EQ(SettingsWith("RQBrightnessR", "-300").nBrightness[0], -128);
}

TEST(PpdOptions, ContrastIsHeldToItsRange) {
  EXPECT_EQ(SettingsWith("RQContrastB", "129").nContrast[2], 128);
  EXPECT_EQ(SettingsWith("RQContrastB", "128").nContrast[2], 128);
  EXPECT_EQ(SettingsWith("RQContrastB", "-128").nContrast[2], -128);
  EXPECT_EQ(SettingsWith("RQContrastB", "-129").nContrast[2], -128);
}

TEST(PpdOptions, NumbersWrapIn16BitsBeforeTheyAreHeldToTheirRange) {
  EXPECT_EQ(SettingsWith("RQContrastB", "70000").nContrast[2], 128);
  EXPECT_EQ(SettingsWith("RQContrastB", "40000").nContrast[2], -128);
  EXPECT_EQ(SettingsWith("RQGammaR", "65536").nGamma[0], 0);
}

TEST(PpdOptions, AJobsOptionOverridesThePpdsDefault) {
  PpdFile ppd(PickOne("PageSize", {"RQ_9x13", "RQ_15x20_WB"}) +
              PickOne("RQPrintFinish", {"Gloss", "Matte"}) + PickOne("RQGammaB", {"0", "-3"}));
  ppd.Mark("PageSize=RQ_15x20_WB RQPrintFinish=Matte RQGammaB=-3");
  const tagPRINTSETTING settings = Settings(ppd.get());
  EXPECT_EQ(GeometryOf(settings), (Geometry{1852, 2434, 1684, 2286, 84, 74, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(settings.byPrintFinish, 3);
  EXPECT_EQ(settings.nGamma[2], -3);
}

TEST(PpdOptions, AJobsOptionForAChoiceThatThePpdLacksIsIgnored) {
  PpdFile ppd(PickOne("RQPrintFinish", {"Matte", "Gloss"}));
  ppd.Mark("RQPrintFinish=Satin RQPrintMode=Fast");
  const tagPRINTSETTING settings = Settings(ppd.get());
  EXPECT_EQ(settings.byPrintFinish, 3);
  EXPECT_EQ(settings.byPrintMode, 0);
}

TEST(PpdValue, IsTheDefaultWithoutAMarkedChoice) {
  PpdFile ppd("");
  EXPECT_EQ(get_ppd_val(ppd.get(), "RQNumber", 77), 77);
  EXPECT_EQ(get_ppd_val(ppd.get(), "RQNumber", 1000000), 1000000);
  EXPECT_EQ(get_ppd_val(nullptr, "RQNumber", -3), -3);
}

TEST(PpdValue, IsTheNumberThatTheChoiceSpells) {
  EXPECT_EQ(ValueOf("12"), 12);
  EXPECT_EQ(ValueOf("-12"), -12);
  EXPECT_EQ(ValueOf("12x"), 12);
  EXPECT_EQ(ValueOf("None"), 0);
}

TEST(PpdValue, WrapsIn16Bits) {
  EXPECT_EQ(ValueOf("32767"), 32767);
  EXPECT_EQ(ValueOf("32768"), -32768);
  EXPECT_EQ(ValueOf("40000"), -25536);
  EXPECT_EQ(ValueOf("70000"), 4464);
}

TEST(PpdRanges, HoldAnyDefaultToo) {
  EXPECT_EQ(get_setting_gamma(nullptr, "RQGammaR", 6), 5);
  EXPECT_EQ(get_setting_gamma(nullptr, "RQGammaR", -6), -5);
  EXPECT_EQ(get_setting_gamma(nullptr, "RQGammaR", 2), 2);
  EXPECT_EQ(get_setting_brightness(nullptr, "RQBrightnessR", 129), 128);
  EXPECT_EQ(get_setting_brightness(nullptr, "RQBrightnessR", -129), -128);
  EXPECT_EQ(get_setting_brightness(nullptr, "RQBrightnessR", 100), 100);
  EXPECT_EQ(get_setting_contrast(nullptr, "RQContrastR", 129), 128);
  EXPECT_EQ(get_setting_contrast(nullptr, "RQContrastR", -129), -128);
  EXPECT_EQ(get_setting_contrast(nullptr, "RQContrastR", 100), 100);
}
