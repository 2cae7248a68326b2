// SPDX-License-Identifier: Apache-2.0
//
// From the PPD's defaults and the job's options to the headers, the log and the conversion.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

struct OptionsCase {
  const char* name;
  const char* options;
  Settings settings = {};
  const char* params = "0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 3";
};

void ExpectPrinted(const Outcome& outcome, const Settings& settings, const std::string& params) {
  EXPECT_TRUE(SameStream(
      outcome.stream,
      StatusRequest() + Sheet(settings, SmallImage(1, *settings.paper)) + PrintOut(settings.wait)));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + PageRead(1, "0") +
                                       Conversion(params, 33, 33, 44, 44) + SmallSheet(settings)));
  EXPECT_EQ(outcome.status, 0);
}

class JobOptions : public testing::TestWithParam<OptionsCase> {};

TEST_P(JobOptions, ReachThePrinterAndTheConversion) {
  ExpectPrinted(Print({.input = SmallRaster(), .options = GetParam().options}), GetParam().settings,
                GetParam().params);
}

const OptionsCase kOptionsCases[] = {
    {"None", ""},
    {"OfOtherPrograms", "media=A4 fit-to-page sides=one-sided number-up=2"},
    {"SharpnessNone",
     "RQSharpness_Common=None",
     {},
     "0x00010003 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 0"},
    {"SharpnessMinus3",
     "RQSharpness_Common=Minus3",
     {},
     "0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 0"},
    {"SharpnessMinus2",
     "RQSharpness_Common=Minus2",
     {},
     "0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 1"},
    {"SharpnessMinus1",
     "RQSharpness_Common=Minus1",
     {},
     "0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 2"},
    {"SharpnessNormal",
     "RQSharpness_Common=Normal",
     {},
     "0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 3"},
    {"SharpnessPlus1",
     "RQSharpness_Common=Plus1",
     {},
     "0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 4"},
    {"SharpnessPlus2",
     "RQSharpness_Common=Plus2",
     {},
     "0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 5"},
    {"SharpnessPlus3",
     "RQSharpness_Common=Plus3",
     {},
     "0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 6"},
    {"SharpnessUnknown", "RQSharpness_Common=Plus4"},
    {"SharpnessInOtherLetterCases",
     "RQSharpness_Common=minus2",
     {},
     "0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 1"},
    {"ModeAuto", "RQPrintMode=Auto"},
    {"ModeFast", "RQPrintMode=Fast", {.mode = 5}},
    {"ModeInOtherLetterCases", "RQPrintMode=fast", {.mode = 5}},
    {"ModeUnknown", "RQPrintMode=Slow"},
    {"FinishGloss", "RQPrintFinish=Gloss"},
    {"FinishMatte", "RQPrintFinish=Matte", {.finish = 3}},
    {"FinishInOtherLetterCases", "RQPrintFinish=matte", {.finish = 3}},
    {"FinishUnknown", "RQPrintFinish=Silk"},
    {"ModeAndFinishEachInTheirPlace",
     "RQPrintFinish=Matte RQPrintMode=Fast",
     {.finish = 3, .mode = 5}},
    {"ColourConversionOn", "RQColorConversion=Enabled"},
    {"ColourConversionOff",
     "RQColorConversion=Disabled",
     {},
     "0x00010006 (0:0:0, 0:0:0, 0:0:0) (0,0,5,0) 3"},
    {"ColourConversionUnknown", "RQColorConversion=Maybe"},
    {"NeitherColourNorSharpness",
     "RQColorConversion=Disabled RQSharpness_Common=None",
     {},
     "0x00010002 (0:0:0, 0:0:0, 0:0:0) (0,0,5,0) 0"},
    {"MarginCutOff", "RQMarginCutOff=True", {.margin_cut_off = 1}},
    {"MarginKept", "RQMarginCutOff=False"},
    {"MarginUnknown", "RQMarginCutOff=Perhaps"},
    {"NoWaiting", "RQWaitingNextImage=False", {.wait = 0xFF}},
    {"NoWaitingWhateverTheTime", "RQWaitingNextImage=False RQWaitTime=30", {.wait = 0xFF}},
    {"WaitingUnknown", "RQWaitingNextImage=Perhaps"},
    {"WaitTimeZero", "RQWaitTime=0", {.wait = 0}},
    {"WaitTimeThirty", "RQWaitTime=30", {.wait = 30}},
    {"WaitTimeBeyondAByte", "RQWaitTime=300", {.wait = 44}},
    {"WaitTimeBelowZero", "RQWaitTime=-1", {.wait = 255}},
    {"WaitTimeBeyondSixteenBits", "RQWaitTime=70000", {.wait = 0x70}},
    {"WaitTimeWithoutANumber", "RQWaitTime=soon", {.wait = 0}},
    {"Gamma",
     "RQGammaR=1 RQGammaG=-2 RQGammaB=5",
     {},
     "0x00010007 (1:-2:5, 0:0:0, 0:0:0) (0,0,1,0) 3"},
    {"Contrast",
     "RQContrastR=10 RQContrastG=-20 RQContrastB=128",
     {},
     "0x00010007 (0:0:0, 10:-20:128, 0:0:0) (0,0,1,0) 3"},
    {"Brightness",
     "RQBrightnessR=10 RQBrightnessG=-20 RQBrightnessB=127",
     {},
     "0x00010007 (0:0:0, 0:0:0, 10:-20:127) (0,0,1,0) 3"},
    {"GammaOutOfRange",
     "RQGammaR=9 RQGammaG=-9 RQGammaB=40000",
     {},
     "0x00010007 (5:-5:-5, 0:0:0, 0:0:0) (0,0,1,0) 3"},
    {"ContrastOutOfRange",
     "RQContrastR=200 RQContrastG=-300 RQContrastB=70000",
     {},
     "0x00010007 (0:0:0, 128:-128:128, 0:0:0) (0,0,1,0) 3"},
    {"BrightnessOutOfRange",
     "RQBrightnessR=200 RQBrightnessG=-300 RQBrightnessB=40000",
     {},
     "0x00010007 (0:0:0, 0:0:0, 128:-128:-128) (0,0,1,0) 3"},
    {"ToneWithoutNumbers", "RQGammaR=dark RQContrastG=hard RQBrightnessB=light"},
    {"SizeInOtherLetterCases", "PageSize=rq_5X15", {.paper = &k5x15}},
    {"SizeUnknown", "PageSize=Letter"},
    {"SizeThatOnlyBeginsLikeAnother", "PageSize=RQ_5x15x2_3"},
};

INSTANTIATE_TEST_SUITE_P(Of, JobOptions, testing::ValuesIn(kOptionsCases),
                         [](const testing::TestParamInfo<OptionsCase>& options) {
                           return std::string(options.param.name);
                         });

const std::map<std::string, std::string> kOddDefaults = {
    {"PageSize", "RQ_5x15"},
    {"RQSharpness_Common", "Plus3"},
    {"RQPrintMode", "Fast"},
    {"RQPrintFinish", "Matte"},
    {"RQColorConversion", "Disabled"},
    {"RQMarginCutOff", "True"},
    {"RQWaitTime", "30"},
    {"RQGammaR", "1"},
    {"RQContrastG", "10"},
    {"RQBrightnessB", "-20"},
};

TEST(PpdDefaults, HoldWithoutJobOptions) {
  const Settings settings{.paper = &k5x15, .wait = 30, .margin_cut_off = 1, .finish = 3, .mode = 5};

  ExpectPrinted(Print({.input = SmallRaster(), .ppd = Ppd{.defaults = kOddDefaults}}), settings,
                "0x00010006 (1:0:0, 0:10:0, 0:0:-20) (0,0,5,0) 6");
}

TEST(PpdDefaults, GiveWayToJobOptions) {
  const Settings settings{.wait = 0, .margin_cut_off = 0, .finish = 0, .mode = 0};

  const Outcome outcome = Print(
      {.input = SmallRaster(),
       .options = "PageSize=RQ_9x13 RQSharpness_Common=None RQPrintMode=Auto RQPrintFinish=Gloss "
                  "RQColorConversion=Enabled RQMarginCutOff=False RQWaitTime=0 RQGammaR=-2 "
                  "RQContrastG=-20 RQBrightnessB=10",
       .ppd = Ppd{.defaults = kOddDefaults}});

  ExpectPrinted(outcome, settings, "0x00010003 (-2:0:0, 0:-20:0, 0:0:10) (0,0,1,0) 0");
}

TEST(PpdWithoutOptions, LeavesTheBuiltInDefaults) {
  const Ppd bare{.without = {"PageSize", "RQSharpness_Common", "RQPrintMode", "RQPrintFinish",
                             "RQColorConversion", "RQMarginCutOff", "RQWaitingNextImage",
                             "RQWaitTime", "RQGammaR", "RQGammaG", "RQGammaB", "RQBrightnessR",
                             "RQBrightnessG", "RQBrightnessB", "RQContrastR", "RQContrastG",
                             "RQContrastB"}};

  ExpectPrinted(Print({.input = SmallRaster(),
                       .options = "RQPrintFinish=Matte RQWaitTime=30 RQGammaR=5",
                       .ppd = bare}),
                Settings{}, "0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 3");
}

}  // namespace
}  // namespace filter_test
