// SPDX-License-Identifier: Apache-2.0
//
// From marked PPD choices to print settings: every size, and what no queue's PPD brings about.
// tests/filter prints with every option.
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

TEST(PpdOptions, AnUnknownPageSizeIs9x13) {
  for (const char* choice : {"Letter", "RQ_10x15_", "RQ_5x15x2", "10x15"}) {
    EXPECT_EQ(GeometryOf(SettingsWith("PageSize", choice)),
              (Geometry{1550, 1082, 1550, 1082, 0, 0, 0, 0, 0, 0, 0, 0}))
        << choice;
  }
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
