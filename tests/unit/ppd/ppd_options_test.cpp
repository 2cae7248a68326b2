// SPDX-License-Identifier: Apache-2.0
// The PPD's options, their choices and defaults, and the lines that tell the scheduler how to
// print.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <ostream>
#include <string>

#include "tests/unit/ppd/open_ppd.h"

namespace {

struct OptionRow {
  const char* keyword;
  const char* choices;
  const char* default_choice;
};

void PrintTo(const OptionRow& row, std::ostream* out) {
  *out << row.keyword;
}

constexpr const char* kGamma = "-5 -4 -3 -2 -1 0 1 2 3 4 5";
constexpr const char* kTone = "-128 -112 -96 -80 -64 -48 -32 -16 0 16 32 48 64 80 96 112 128";

constexpr OptionRow kOptions[] = {
    {"ColorModel", "RGB", "RGB"},
    {"Resolution", "300dpi", "300dpi"},
    {"MediaType", "Photographic", "Photographic"},
    {"InputSlot", "Auto", "Auto"},
    {"RQPrintFinish", "Gloss Matte", "Gloss"},
    {"RQPrintMode", "Auto Fast", "Auto"},
    {"RQMarginCutOff", "False True", "False"},
    {"RQWaitingNextImage", "True False", "True"},
    {"RQWaitTime", "0 1 2 3 4 5 6 8 10 15 20 30 45 60 90 120 180 240", "5"},
    {"RQColorConversion", "Enabled Disabled", "Enabled"},
    {"RQSharpness_Common", "None Minus3 Minus2 Minus1 Normal Plus1 Plus2 Plus3", "Normal"},
    {"RQGammaR", kGamma, "0"},
    {"RQGammaG", kGamma, "0"},
    {"RQGammaB", kGamma, "0"},
    {"RQBrightnessR", kTone, "0"},
    {"RQBrightnessG", kTone, "0"},
    {"RQBrightnessB", kTone, "0"},
    {"RQContrastR", kTone, "0"},
    {"RQContrastG", kTone, "0"},
    {"RQContrastB", kTone, "0"},
};

class PpdOption : public testing::TestWithParam<OptionRow> {};

TEST_P(PpdOption, HasItsChoicesAndDefault) {
  const OptionRow& row = GetParam();
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  const ppd_option_t* option = ppdFindOption(ppd.get(), row.keyword);
  ASSERT_NE(option, nullptr);
  std::string choices;
  for (int i = 0; i < option->num_choices; ++i) {
    choices += (i == 0 ? "" : " ");
    choices += option->choices[i].choice;
  }
  EXPECT_EQ(choices, row.choices);
  const ppd_choice_t* marked = ppdFindMarkedChoice(ppd.get(), row.keyword);
  ASSERT_NE(marked, nullptr);
  EXPECT_STREQ(marked->choice, row.default_choice);
}

INSTANTIATE_TEST_SUITE_P(Options, PpdOption, testing::ValuesIn(kOptions),
                         [](const auto& row) { return std::string(row.param.keyword); });

std::string attribute(ppd_file_t* ppd, const char* name) {
  const ppd_attr_t* found = ppdFindAttr(ppd, name, nullptr);
  return found != nullptr && found->value != nullptr ? found->value : "(none)";
}

TEST(PpdLines, LeaveCopiesToTheSchedulersFilters) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  EXPECT_EQ(attribute(ppd.get(), "cupsManualCopies"), "True");
}

TEST(PpdLines, KeepTheSocketBackendFromAskingBySnmp) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  EXPECT_EQ(attribute(ppd.get(), "cupsSNMPSupplies"), "False");
}

TEST(PpdLines, NameThePrinterInWordsThatDoNotChange) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  EXPECT_STREQ(ppd->manufacturer, "CORVANTIEL");
  EXPECT_STREQ(ppd->nickname, "CORVANTIEL TQR7");
}

TEST(PpdLines, SendRasterToTheFilterByItsAbsolutePath) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  ASSERT_EQ(ppd->num_filters, 4);
  EXPECT_STREQ(ppd->filters[0],
               "application/vnd.cups-raster 0 " TQR7_FILTER_DIR "/rastertoprinter");
  EXPECT_EQ(std::string(TQR7_FILTER_DIR).front(), '/');
}

TEST(PpdLines, SendCommandsToTheCommandFilterBesideTheFilter) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  ASSERT_EQ(ppd->num_filters, 4);
  EXPECT_STREQ(ppd->filters[1],
               "application/vnd.cups-command 0 " TQR7_FILTER_DIR "/commandtoprinter");
}

// Photos become raster on their way, by what runs before the filter.
TEST(PpdLines, SendPhotosThroughPhototopage) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  ASSERT_EQ(ppd->num_filters, 4);
  EXPECT_STREQ(ppd->filters[2], "image/jpeg 0 " TQR7_FILTER_DIR "/rastertoprinter");
  EXPECT_STREQ(ppd->filters[3], "image/png 0 " TQR7_FILTER_DIR "/rastertoprinter");
  const ppd_attr_t* line = ppdFindAttr(ppd.get(), "cupsPreFilter", nullptr);
  ASSERT_NE(line, nullptr);
  EXPECT_STREQ(line->value, "image/jpeg 0 " TQR7_FILTER_DIR "/phototopage");
  line = ppdFindNextAttr(ppd.get(), "cupsPreFilter", nullptr);
  ASSERT_NE(line, nullptr);
  EXPECT_STREQ(line->value, "image/png 0 " TQR7_FILTER_DIR "/phototopage");
}

TEST(PpdLines, SendEveryOtherRasterThroughRastertopage) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  const ppd_attr_t* line = ppdFindAttr(ppd.get(), "cupsPreFilter", nullptr);
  line = line != nullptr ? ppdFindNextAttr(ppd.get(), "cupsPreFilter", nullptr) : nullptr;
  line = line != nullptr ? ppdFindNextAttr(ppd.get(), "cupsPreFilter", nullptr) : nullptr;
  ASSERT_NE(line, nullptr);
  EXPECT_STREQ(line->value, "application/vnd.cups-raster 0 " TQR7_FILTER_DIR "/rastertopage");
  EXPECT_EQ(ppdFindNextAttr(ppd.get(), "cupsPreFilter", nullptr), nullptr);
}

TEST(PpdLines, NameTheCommands) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  const ppd_attr_t* commands = ppdFindAttr(ppd.get(), "cupsCommands", nullptr);
  ASSERT_NE(commands, nullptr);
  EXPECT_STREQ(commands->value, "ReportStatus PrintSelfTestPage");
}

TEST(PpdLines, HoldNoVariableThatWasLeftUnset) {
  std::ifstream file(TQR7_PPD);
  const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  ASSERT_FALSE(text.empty());
  EXPECT_EQ(text.find('$'), std::string::npos);
}

}  // namespace
