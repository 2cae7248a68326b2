// SPDX-License-Identifier: Apache-2.0
#include "commands/setting_words.h"

#include <gtest/gtest.h>

#include <string>

#include "filter/ppd_options.h"
#include "tests/unit/ppd_file.h"
#include "tests/unit/settings.h"

namespace {

std::string Value(const tagPRINTSETTING& settings, const std::string& label) {
  for (const SettingLine& line : setting_words(settings, "photo")) {
    if (line.label == label) {
      return line.value;
    }
  }
  return "no such line";
}

std::string PaperOf(const std::string& choice) {
  PpdFile ppd(PickOne("PageSize", {choice}));
  tagPRINTSETTING settings{};
  get_print_setting(ppd.get(), &settings);
  return paper_words(settings);
}

TEST(SettingWords, NameEachPaperSize) {
  EXPECT_EQ(PaperOf("RQ_9x13"), "9 x 13 cm");
  EXPECT_EQ(PaperOf("RQ_10x15"), "10 x 15 cm");
  EXPECT_EQ(PaperOf("RQ_13x18"), "13 x 18 cm");
  EXPECT_EQ(PaperOf("RQ_15x20"), "15 x 20 cm");
  EXPECT_EQ(PaperOf("RQ_5x15x2_1"), "5 x 15 cm, two on one page");
  EXPECT_EQ(PaperOf("RQ_5x15x2_2"), "5 x 15 cm, two, a page each");
  EXPECT_EQ(PaperOf("RQ_5x15"), "5 x 15 cm");
  EXPECT_EQ(PaperOf("RQ_15x15"), "15 x 15 cm");
  EXPECT_EQ(PaperOf("RQ_13x13"), "13 x 13 cm");
  EXPECT_EQ(PaperOf("RQ_9x13_WB"), "9 x 13 cm, white border");
  EXPECT_EQ(PaperOf("RQ_10x15_WB"), "10 x 15 cm, white border");
  EXPECT_EQ(PaperOf("RQ_13x18_WB"), "13 x 18 cm, white border");
  EXPECT_EQ(PaperOf("RQ_15x20_WB"), "15 x 20 cm, white border");
}

TEST(SettingWords, SayTheDefaults) {
  const tagPRINTSETTING settings = SettingsOf10x15();

  EXPECT_EQ(Value(settings, "Paper"), "10 x 15 cm");
  EXPECT_EQ(Value(settings, "Sheet"), "1852x1232 dots, 156.8x104.3 mm");
  EXPECT_EQ(Value(settings, "Finish"), "Gloss, automatic mode");
  EXPECT_EQ(Value(settings, "Colour"), "By the printer's profile");
  EXPECT_EQ(Value(settings, "Sharpness"), "Normal");
  EXPECT_EQ(Value(settings, "Gamma"), "R 0  G 0  B 0");
  EXPECT_EQ(Value(settings, "Brightness"), "R 0  G 0  B 0");
  EXPECT_EQ(Value(settings, "Contrast"), "R 0  G 0  B 0");
  EXPECT_EQ(Value(settings, "Margin"), "Not cut off");
  EXPECT_EQ(Value(settings, "Wait"), "5 for a next image");
  EXPECT_EQ(Value(settings, "Edges"), "Steps of 5 dots; ticks of 0.5 mm");
}

TEST(SettingWords, SayWhatWasChosen) {
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.byPrintFinish = kFinishMatte;
  settings.byPrintMode = 5;
  settings.byColorConversion = 0;
  settings.byMarginCutOff = 1;
  settings.byWaitNextImage = 0;
  settings.nGamma[0] = -5;
  settings.nGamma[2] = 3;
  settings.nBrightness[1] = 128;
  settings.nContrast[2] = -128;

  EXPECT_EQ(Value(settings, "Finish"), "Matte, fast mode");
  EXPECT_EQ(Value(settings, "Colour"), "Not converted");
  EXPECT_EQ(Value(settings, "Margin"), "Cut off");
  EXPECT_EQ(Value(settings, "Wait"), "Not for a next image");
  EXPECT_EQ(Value(settings, "Gamma"), "R -5  G 0  B 3");
  EXPECT_EQ(Value(settings, "Brightness"), "R 0  G 128  B 0");
  EXPECT_EQ(Value(settings, "Contrast"), "R 0  G 0  B -128");
}

TEST(SettingWords, NameTheSharpness) {
  const char* const names[] = {"None", "-3", "-2", "-1", "Normal", "+1", "+2", "+3"};
  tagPRINTSETTING settings = SettingsOf10x15();
  for (std::uint8_t sharpness = 0; sharpness < 8; ++sharpness) {
    settings.bySharpness = sharpness;
    EXPECT_EQ(Value(settings, "Sharpness"), names[sharpness]);
  }
}

TEST(SettingWords, NameTheDriversVersionAndTheQueue) {
  EXPECT_EQ(Value(SettingsOf10x15(), "Driver"), "TQR7 " TQR7_VERSION ", queue photo");
}

TEST(SettingWords, KeepToALineOfPrintableText) {
  const std::string queue = "caf\xC3\xA9\n" + std::string(200, 'q');
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.bySharpness = 255;
  settings.nGamma[0] = settings.nGamma[1] = settings.nGamma[2] = -32768;
  for (const SettingLine& line : setting_words(settings, queue)) {
    EXPECT_LE(line.label.size(), kLongestLabel) << line.label;
    EXPECT_LE(line.value.size(), kLongestValue) << line.value;
    EXPECT_EQ(line.value.find_first_of("\n\xC3\xA9"), std::string::npos) << line.value;
  }
  EXPECT_EQ(printable("caf\xC3\xA9\n"), "caf???");
}

}  // namespace
