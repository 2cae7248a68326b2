// SPDX-License-Identifier: Apache-2.0
//
// What the conversion library is given for a page, and what becomes of its answer. A page of a
// joined sheet is parked and not printed, so that the log holds the conversion alone.
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <string>

#include "filter/filter_hooks.h"
#include "job/job_state.h"
#include "tests/unit/capture.h"
#include "tests/unit/failing_allocator.h"
#include "tests/unit/filter/job_fixture.h"
#include "tests/unit/settings.h"

namespace {

class PageConversion : public JobTest {
 protected:
  /// The parameter block that a first page with these settings gets.
  static tagMVChangeParams ParamsOf(const tagPRINTSETTING& settings) {
    ResetConversions();
    RunPage(settings);
    CImageUtility::DeleteBandImage(&gImageCache);
    CImageUtility::DeleteBandImage(&gMatteImage);
    gImageCount = 0;
    return ConversionCalls().at(0).params;
  }

  static std::string RateLines(const std::string& log) {
    return log.substr(log.find("DEBUG: Rgb"));
  }
};

}  // namespace

TEST_F(PageConversion, TheSourceIsTheWholePageTopRowFirst) {
  const cups_page_header_t header = Header(12);
  const tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  StartPage(nullptr, &header, &settings);
  std::memcpy(Planes[1], "first linesecond line...", 24);
  const unsigned char* const page_buffer = Planes[1];
  Capture err(stderr);
  EndPage(&header, &settings, "/opt/printer/filter/");
  err.Text();
  ASSERT_EQ(ConversionCalls().size(), 1U);
  const ConversionCall& call = ConversionCalls()[0];
  EXPECT_EQ(call.source.pBits, page_buffer);
  EXPECT_EQ(call.source.lStride, -12);
  EXPECT_EQ(call.source.rcBand.left, 0);
  EXPECT_EQ(call.source.rcBand.top, 0);
  EXPECT_EQ(call.source.rcBand.right, 4);
  EXPECT_EQ(call.source.rcBand.bottom, 2);
  EXPECT_EQ(call.first_source_line, "first linese");
}

TEST_F(PageConversion, TheDestinationIsAWhiteBandOf48BitsTopRowFirst) {
  RunPage(SettingsOfSmallJoinedSheet());
  const ConversionCall& call = ConversionCalls().at(0);
  EXPECT_EQ(call.destination.lStride, -24);
  EXPECT_EQ(call.destination.rcBand.left, 0);
  EXPECT_EQ(call.destination.rcBand.top, 0);
  EXPECT_EQ(call.destination.rcBand.right, 4);
  EXPECT_EQ(call.destination.rcBand.bottom, 2);
  EXPECT_TRUE(call.destination_was_white);
}

TEST_F(PageConversion, TheParametersOfDefaultSettings) {
  const tagMVChangeParams params = ParamsOf(SettingsOfSmallJoinedSheet());
  EXPECT_EQ(params.lParam0, 101);
  EXPECT_EQ(params.nParam8, 1);
  EXPECT_EQ(params.dwFlags, 0x10007U);
  EXPECT_EQ(params.wParam32, 1);
  for (const std::int16_t tone : params.nTone) {
    EXPECT_EQ(tone, 0);
  }
  EXPECT_EQ(params.byOption[0], 0);
  EXPECT_EQ(params.byOption[1], 0);
  EXPECT_EQ(params.byOption[2], 1);
  EXPECT_EQ(params.byOption[3], 0);
  EXPECT_EQ(params.nSharpness, 3);
}

TEST_F(PageConversion, TheModulePathIsPassedOn) {
  RunPage(SettingsOfSmallJoinedSheet());
  EXPECT_EQ(ConversionCalls().at(0).module_path, "/opt/printer/filter/");
}

TEST_F(PageConversion, ToneValuesAreGammaContrastAndBrightness) {
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  const std::array<std::int16_t, 9> tones = {1, -2, 3, 21, -22, 23, 128, -128, 33};
  std::memcpy(settings.nGamma, tones.data(), 6);
  std::memcpy(settings.nContrast, tones.data() + 3, 6);
  std::memcpy(settings.nBrightness, tones.data() + 6, 6);
  const tagMVChangeParams params = ParamsOf(settings);
  EXPECT_EQ(params.nTone[0], 1);
  EXPECT_EQ(params.nTone[1], -2);
  EXPECT_EQ(params.nTone[2], 3);
  EXPECT_EQ(params.nTone[3], 21);
  EXPECT_EQ(params.nTone[4], -22);
  EXPECT_EQ(params.nTone[5], 23);
  EXPECT_EQ(params.nTone[6], 128);
  EXPECT_EQ(params.nTone[7], -128);
  EXPECT_EQ(params.nTone[8], 33);
}

TEST_F(PageConversion, WithoutColourConversionFlagAndOptionSaySo) {
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  settings.byColorConversion = 0;
  EXPECT_EQ(ParamsOf(settings).dwFlags, 0x10006U);
  EXPECT_EQ(ParamsOf(settings).byOption[2], 5);
  settings.bySharpness = 0;
  EXPECT_EQ(ParamsOf(settings).dwFlags, 0x10002U);
}

TEST_F(PageConversion, OnlyTheLowestBitSwitchesColourConversion) {
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  settings.byColorConversion = 2;
  EXPECT_EQ(ParamsOf(settings).dwFlags, 0x10006U);
  EXPECT_EQ(ParamsOf(settings).byOption[2], 5);
  settings.byColorConversion = 3;
  EXPECT_EQ(ParamsOf(settings).dwFlags, 0x10007U);
  EXPECT_EQ(ParamsOf(settings).byOption[2], 1);
}

TEST_F(PageConversion, EverySharpnessHasItsLevelAndFlag) {
  struct Level {
    std::uint8_t setting;
    std::uint64_t flags;
    int level;
  };
  for (const Level& level :
       {Level{0, 0x10003, 0}, Level{1, 0x10007, 0}, Level{2, 0x10007, 1}, Level{3, 0x10007, 2},
        Level{4, 0x10007, 3}, Level{5, 0x10007, 4}, Level{6, 0x10007, 5}, Level{7, 0x10007, 6},
        Level{8, 0x10007, 4}, Level{255, 0x10007, 4}}) {
    tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
    settings.bySharpness = level.setting;
    const tagMVChangeParams params = ParamsOf(settings);
    EXPECT_EQ(params.dwFlags, level.flags) << int{level.setting};
    EXPECT_EQ(params.nSharpness, level.level) << int{level.setting};
  }
}

TEST_F(PageConversion, LogsParametersResultAndRates) {
  NextConversions().push_back({0, 12, 34, 'x', 'm'});
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  settings.byPrintFinish = 3;
  const Outcome outcome = RunPage(settings);
  EXPECT_TRUE(outcome.result);
  EXPECT_EQ(outcome.err,
            "DEBUG: Params=0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 3\n"
            "DEBUG: MVChangeImage()=0\n"
            "DEBUG: RgbRate=12 final=12\n"
            "DEBUG: OpRate=34 final=34\n");
  EXPECT_EQ(outcome.out, "");
}

TEST_F(PageConversion, LogsEveryParameterInItsPlace) {
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  settings.byColorConversion = 0;
  settings.bySharpness = 7;
  const std::array<std::int16_t, 9> tones = {1, -2, 3, 21, -22, 23, 128, -128, 33};
  std::memcpy(settings.nGamma, tones.data(), 6);
  std::memcpy(settings.nContrast, tones.data() + 3, 6);
  std::memcpy(settings.nBrightness, tones.data() + 6, 6);
  const std::string log = RunPage(settings).err;
  EXPECT_EQ(log.substr(0, log.find('\n') + 1),
            "DEBUG: Params=0x00010006 (1:-2:3, 21:-22:23, 128:-128:33) (0,0,5,0) 6\n");
}

TEST_F(PageConversion, APageThatCannotBeConvertedIsNotPrinted) {
  NextConversions().push_back({-17, 12, 34, 'x', 'm'});
  const Outcome outcome = RunPage(SettingsOfSmallSheet());
  EXPECT_FALSE(outcome.result);
  EXPECT_EQ(outcome.err,
            "DEBUG: Params=0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 3\n"
            "DEBUG: MVChangeImage()=-17\n"
            "ERROR: Unable to convert image (-17)\n");
  EXPECT_EQ(outcome.out, "");
  EXPECT_TRUE(Connection().journal.empty());
}

TEST_F(PageConversion, BothRatesAreZeroBeforeTheCall) {
  gRgbRate = 99;
  gOpRate = 98;
  RunPage(SettingsOfSmallJoinedSheet());
  EXPECT_EQ(ConversionCalls().at(0).rgb_rate_before, 0);
  EXPECT_EQ(ConversionCalls().at(0).op_rate_before, 0);
}

TEST_F(PageConversion, AJoinedGlossSheetCountsTheFirstPagesOpRateTwice) {
  NextConversions().push_back({0, 200, 40, 'x', 'm'});
  NextConversions().push_back({0, 100, 45, 'x', 'm'});
  PrinterTakesASheet();
  EXPECT_EQ(RateLines(RunPage(SettingsOfSmallJoinedSheet()).err),
            "DEBUG: RgbRate=200 final=200\n"
            "DEBUG: OpRate=40 final=80\n");
  const std::string second = RunPage(SettingsOfSmallJoinedSheet()).err;
  EXPECT_EQ(RateLines(second).substr(0, 52),
            "DEBUG: RgbRate=100 final=44\n"
            "DEBUG: OpRate=45 final=8");
  EXPECT_EQ(gRgbRate, 44);
  EXPECT_EQ(gOpRate, 80);
}

TEST_F(PageConversion, AJoinedMatteSheetCountsTheFirstPagesOpRateOnce) {
  NextConversions().push_back({0, 10, 40, 'x', 'm'});
  NextConversions().push_back({0, 20, 45, 'x', 'm'});
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  settings.byPrintFinish = 3;
  PrinterTakesASheet();
  RunPage(settings);
  EXPECT_EQ(gOpRate, 40);
  RunPage(settings);
  EXPECT_EQ(gOpRate, 40);
  EXPECT_EQ(gRgbRate, 30);
}

TEST_F(PageConversion, TheDoubledOpRateWraps) {
  NextConversions().push_back({0, 10, 200, 'x', 'm'});
  RunPage(SettingsOfSmallJoinedSheet());
  EXPECT_EQ(gOpRate, 144);
}

TEST_F(PageConversion, ASheetOfOnePageHasThatPagesRates) {
  gRgbRate = 99;
  gOpRate = 98;
  NextConversions().push_back({0, 10, 40, 'x', 'm'});
  PrinterTakesASheet();
  RunPage(SettingsOfSmallSheet());
  EXPECT_EQ(gRgbRate, 10);
  EXPECT_EQ(gOpRate, 40);
}

TEST_F(PageConversion, TheNextSheetStartsItsRatesAnew) {
  NextConversions().push_back({0, 10, 40, 'x', 'm'});
  NextConversions().push_back({0, 20, 50, 'x', 'm'});
  PrinterTakesASheet();
  PrinterTakesASheet();
  RunPage(SettingsOfSmallSheet());
  RunPage(SettingsOfSmallSheet());
  EXPECT_EQ(gRgbRate, 20);
  EXPECT_EQ(gOpRate, 50);
}

TEST_F(PageConversion, AGlossPageHasNoMattePlane) {
  RunPage(SettingsOfSmallJoinedSheet());
  EXPECT_EQ(ConversionCalls().at(0).matte_record, nullptr);
  EXPECT_EQ(gMatteImage.pBits, nullptr);
}

TEST_F(PageConversion, NoFinishButThreeHasAMattePlane) {
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  settings.byPrintFinish = 1;
  RunPage(settings);
  EXPECT_EQ(ConversionCalls().at(0).matte_record, nullptr);
}

TEST_F(PageConversion, AMatteSheetsFirstPageFillsAPlaneWithTwelveExtraLines) {
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  settings.byPrintFinish = 3;
  RunPage(settings);
  const ConversionCall& call = ConversionCalls().at(0);
  EXPECT_EQ(call.matte_record, &gMatteImage);
  EXPECT_EQ(call.matte.lStride, -4);
  EXPECT_EQ(call.matte.rcBand.left, 0);
  EXPECT_EQ(call.matte.rcBand.top, 0);
  EXPECT_EQ(call.matte.rcBand.right, 4);
  EXPECT_EQ(call.matte.rcBand.bottom, 16);
  ASSERT_NE(gMatteImage.pBits, nullptr);
  EXPECT_EQ(Bytes(gMatteImage.pBits, 64), std::string(64, 'm'));
}

TEST_F(PageConversion, AMatteSheetsSecondPageLeavesThePlaneAlone) {
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  settings.byPrintFinish = 3;
  NextConversions().push_back({0, 10, 40, 'x', 'M'});
  NextConversions().push_back({0, 10, 40, 'y', 'N'});
  PrinterTakesASheet();
  RunPage(settings);
  const std::string out = RunPage(settings).out;
  EXPECT_EQ(ConversionCalls().at(1).matte_record, nullptr);
  EXPECT_EQ(out.substr(out.size() - 64), std::string(64, 'M'));
}

TEST_F(PageConversion, TheNextMattePlaneTakesThePlaceOfTheOneBefore) {
  tagPRINTSETTING settings = SettingsOfSmallSheet();
  settings.byPrintFinish = 3;
  const long before = LiveArrays();
  PrinterTakesASheet();
  PrinterTakesASheet();
  RunPage(settings);
  RunPage(settings);
  EXPECT_EQ(LiveArrays(), before + 1);
}

TEST_F(PageConversion, WithoutMemoryForTheConvertedPageItEndsWithoutAMessageOfItsOwn) {
  const cups_page_header_t header = Header(12);
  const tagPRINTSETTING settings = SettingsOfSmallSheet();
  const long before = LiveArrays();
  StartPage(nullptr, &header, &settings);
  Capture err(stderr);
  bool result = true;
  {
    const ArraysRefused refused(48);
    result = EndPage(&header, &settings, "/");
  }
  EXPECT_EQ(err.Text(), "DEBUG: Params=0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 3\n");
  EXPECT_FALSE(result);
  EXPECT_TRUE(ConversionCalls().empty());
  EXPECT_EQ(LiveArrays(), before);
}

TEST_F(PageConversion, WithoutMemoryForTheMattePlaneItEndsWithoutAMessageOfItsOwn) {
  const cups_page_header_t header = Header(12);
  tagPRINTSETTING settings = SettingsOfSmallSheet();
  settings.byPrintFinish = 3;
  settings.nPaperHeight = 100;  // a plane larger than the image
  const long before = LiveArrays();
  StartPage(nullptr, &header, &settings);
  Capture err(stderr);
  bool result = true;
  {
    const ArraysRefused refused(400);
    result = EndPage(&header, &settings, "/");
  }
  EXPECT_EQ(err.Text(), "DEBUG: Params=0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 3\n");
  EXPECT_FALSE(result);
  EXPECT_TRUE(ConversionCalls().empty());
  EXPECT_EQ(LiveArrays(), before);
}
