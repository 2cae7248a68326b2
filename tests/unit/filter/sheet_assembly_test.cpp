// SPDX-License-Identifier: Apache-2.0
//
// From converted pages to sheets: what is printed when, and where a joined sheet's pages lie.
#include "filter/sheet_assembly.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "job/job_state.h"
#include "tests/unit/capture.h"
#include "tests/unit/filter/job_fixture.h"
#include "tests/unit/settings.h"

namespace {

/// Bytes of a sheet ahead of its pixels: status request, query, job header, image header.
constexpr std::size_t kAhead = 8 + 512 + 512 + 512;

/// Pixels of one half of a sheet of 10x15.
constexpr std::size_t kHalfSheet = std::size_t{1852} * 616;

/// `count` white pixels of the sheet.
std::string White(std::size_t count) {
  std::string pixels;
  for (std::size_t i = 0; i < count; ++i) {
    pixels += "\xFF\x3F\xFF\x3F\xFF\x3F";
  }
  return pixels;
}

/// `count` pixels of one byte value.
std::string Pixels(std::size_t count, char byte) {
  return std::string(count * 6, byte);
}

/// Whether the two are equal, without printing megabytes when not.
bool Same(const std::string& a, const std::string& b) {
  return a == b;
}

class SheetAssembly : public JobTest {
 protected:
  /// The next page comes out of its conversion in this byte value.
  static void NextPageIs(char paint) { NextConversions().push_back({0, 1, 2, paint, 'm'}); }

  static Outcome PrintLast(const tagPRINTSETTING& settings) {
    Outcome outcome;
    Capture out(stdout);
    Capture err(stderr);
    outcome.result = print_last_page(&settings);
    std::fflush(stdout);
    outcome.out = out.Arrived();
    outcome.err = err.Text();
    return outcome;
  }

  static tagPRINTSETTING FullSizeJoined() {
    tagPRINTSETTING settings = SettingsOf10x15();
    settings.nImageHeight = 616;
    settings.byTwoUpMode = 1;
    settings.nTwoUpSplit = 616;
    settings.byTwoUpOption = 1;
    settings.nJoinPages = 1;
    return settings;
  }
};

}  // namespace

TEST_F(SheetAssembly, APageThatIsASheetIsPrintedAtItsEnd) {
  NextPageIs('a');
  PrinterTakesASheet();
  const Outcome outcome = RunPage(SettingsOfSmallSheet());
  EXPECT_TRUE(outcome.result);
  EXPECT_EQ(outcome.out.size(), kAhead + 48);
  EXPECT_EQ(outcome.out.substr(kAhead), Pixels(8, 'a'));
  EXPECT_EQ(gImageCount, 0);
  EXPECT_EQ(gImageCache.pBits, nullptr);
}

TEST_F(SheetAssembly, OnlyTheValueOneJoinsPages) {
  for (const int join : {0, 2, -1}) {
    NextPageIs('a');
    PrinterTakesASheet();
    tagPRINTSETTING settings = SettingsOfSmallSheet();
    settings.nJoinPages = join;
    EXPECT_EQ(RunPage(settings).out.size(), kAhead + 48) << join;
  }
}

TEST_F(SheetAssembly, AFirstPageIsParkedAndNothingIsSent) {
  NextPageIs('a');
  const Outcome outcome = RunPage(SettingsOfSmallJoinedSheet());
  EXPECT_TRUE(outcome.result);
  EXPECT_EQ(outcome.out, "");
  EXPECT_TRUE(Connection().journal.empty());
  EXPECT_EQ(gImageCount, 1);
}

TEST_F(SheetAssembly, AParkedPageLiesInTheLowerHalfOfAWhiteSheet) {
  NextPageIs('a');
  RunPage(SettingsOfSmallJoinedSheet());
  ASSERT_NE(gImageCache.pBits, nullptr);
  EXPECT_EQ(gImageCache.lStride, -24);
  EXPECT_EQ(gImageCache.rcBand.left, 0);
  EXPECT_EQ(gImageCache.rcBand.top, 0);
  EXPECT_EQ(gImageCache.rcBand.right, 4);
  EXPECT_EQ(gImageCache.rcBand.bottom, 4);
  EXPECT_EQ(Bytes(gImageCache.pBits, 96), White(8) + Pixels(8, 'a'));
}

TEST_F(SheetAssembly, TheSecondPageFillsTheUpperHalfAndTheSheetIsPrinted) {
  NextPageIs('a');
  NextPageIs('b');
  PrinterTakesASheet();
  RunPage(SettingsOfSmallJoinedSheet());
  const Outcome outcome = RunPage(SettingsOfSmallJoinedSheet());
  EXPECT_TRUE(outcome.result);
  EXPECT_EQ(outcome.out.substr(kAhead), Pixels(8, 'b') + Pixels(8, 'a'));
  EXPECT_EQ(gImageCount, 0);
  EXPECT_EQ(gImageCache.pBits, nullptr);
}

TEST_F(SheetAssembly, AJoinedSheetsHeadersNameTheWholeSheet) {
  NextPageIs('a');
  NextPageIs('b');
  PrinterTakesASheet();
  RunPage(SettingsOfSmallJoinedSheet());
  const std::string out = RunPage(SettingsOfSmallJoinedSheet()).out;
  const std::string job_header = out.substr(8 + 512, 512);
  const std::string image_header = out.substr(8 + 512 + 512, 512);
  EXPECT_EQ(job_header.substr(6, 4), Bytes({0, 4, 0, 4}));
  EXPECT_EQ(job_header.substr(15, 4), Bytes({1, 0, 2, 1}));
  EXPECT_EQ(image_header.substr(10, 4), Bytes({0, 4, 0, 4}));
}

TEST_F(SheetAssembly, AJoinedSheetsHeadersCarryTheRatesOfBothPages) {
  NextConversions().push_back({0, 10, 40, 'a', 'm'});
  NextConversions().push_back({0, 20, 45, 'b', 'm'});
  PrinterTakesASheet();
  RunPage(SettingsOfSmallJoinedSheet());
  const std::string out = RunPage(SettingsOfSmallJoinedSheet()).out;
  EXPECT_EQ(out.substr(8 + 81, 2), Bytes({30, 80}));
  EXPECT_EQ(out.substr(8 + 512 + 81, 2), Bytes({30, 80}));
}

TEST_F(SheetAssembly, AGapBetweenTheImagesStaysWhite) {
  NextPageIs('a');
  NextPageIs('b');
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  settings.nPaperHeight = 5;
  settings.nJoinGap = 1;
  PrinterTakesASheet();
  RunPage(settings);
  EXPECT_EQ(RunPage(settings).out.substr(kAhead), Pixels(8, 'b') + White(4) + Pixels(8, 'a'));
}

TEST_F(SheetAssembly, TheThirdPageStartsASheetOfItsOwn) {
  NextPageIs('a');
  NextPageIs('b');
  NextPageIs('c');
  PrinterTakesASheet();
  RunPage(SettingsOfSmallJoinedSheet());
  RunPage(SettingsOfSmallJoinedSheet());
  const Outcome third = RunPage(SettingsOfSmallJoinedSheet());
  EXPECT_TRUE(third.result);
  EXPECT_EQ(third.out, "");
  EXPECT_EQ(gImageCount, 1);
  EXPECT_EQ(Bytes(gImageCache.pBits, 96), White(8) + Pixels(8, 'c'));
}

TEST_F(SheetAssembly, ALoneFirstPageIsPrintedAtTheEndWithAWhiteUpperHalf) {
  NextPageIs('a');
  PrinterTakesASheet();
  RunPage(SettingsOfSmallJoinedSheet());
  const Outcome last = PrintLast(SettingsOfSmallJoinedSheet());
  EXPECT_TRUE(last.result);
  EXPECT_EQ(last.out.substr(kAhead), White(8) + Pixels(8, 'a'));
  EXPECT_EQ(gImageCount, 0);
  EXPECT_EQ(gImageCache.pBits, nullptr);
  EXPECT_EQ(gMatteImage.pBits, nullptr);
}

TEST_F(SheetAssembly, ALonePageKeepsTheSheetsTwoPrintLayout) {
  NextPageIs('a');
  PrinterTakesASheet();
  RunPage(SettingsOfSmallJoinedSheet());
  const std::string out = PrintLast(SettingsOfSmallJoinedSheet()).out;
  EXPECT_EQ(out.substr(8 + 512 + 6, 4), Bytes({0, 4, 0, 4}));
  EXPECT_EQ(out.substr(8 + 512 + 15, 4), Bytes({1, 0, 2, 1}));
}

TEST_F(SheetAssembly, WithoutAWaitingSheetTheEndPrintsNothing) {
  const Outcome last = PrintLast(SettingsOfSmallJoinedSheet());
  EXPECT_TRUE(last.result);
  EXPECT_EQ(last.out, "");
  EXPECT_EQ(last.err, "");
}

TEST_F(SheetAssembly, WhenPagesAreNotJoinedTheEndPrintsNothing) {
  gImageCount = 1;
  const Outcome last = PrintLast(SettingsOfSmallSheet());
  EXPECT_TRUE(last.result);
  EXPECT_EQ(last.out, "");
  EXPECT_EQ(gImageCount, 1);
}

TEST_F(SheetAssembly, ALonePageThatCannotBePrintedIsReleasedAllTheSame) {
  NextPageIs('a');
  RunPage(SettingsOfSmallJoinedSheet());
  const Outcome last = PrintLast(SettingsOfSmallJoinedSheet());
  EXPECT_FALSE(last.result);
  EXPECT_EQ(gImageCount, 0);
  EXPECT_EQ(gImageCache.pBits, nullptr);
}

TEST_F(SheetAssembly, AJoinedSheetThatCannotBePrintedFailsAndIsReleased) {
  NextPageIs('a');
  NextPageIs('b');
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  settings.byPrintFinish = 3;
  RunPage(settings);
  EXPECT_NE(gMatteImage.pBits, nullptr);
  const Outcome second = RunPage(settings);
  EXPECT_FALSE(second.result);
  EXPECT_EQ(second.out.size(), 8U);
  EXPECT_EQ(gImageCount, 0);
  EXPECT_EQ(gImageCache.pBits, nullptr);
  EXPECT_EQ(gMatteImage.pBits, nullptr);
}

TEST_F(SheetAssembly, ASinglePageThatCannotBePrintedFails) {
  NextPageIs('a');
  const Outcome outcome = RunPage(SettingsOfSmallSheet());
  EXPECT_FALSE(outcome.result);
  EXPECT_EQ(outcome.out.size(), 8U);
}

TEST_F(SheetAssembly, APageThatIsASheetKeepsItsMattePlaneUntilTheNextOne) {
  tagPRINTSETTING settings = SettingsOfSmallSheet();
  settings.byPrintFinish = 3;
  NextPageIs('a');
  PrinterTakesASheet();
  const std::string out = RunPage(settings).out;
  EXPECT_EQ(out.substr(kAhead), Pixels(8, 'a') + std::string(56, 'm'));
  EXPECT_NE(gMatteImage.pBits, nullptr);
}

TEST_F(SheetAssembly, AJoinedMatteSheetEndsWithTheFirstPagesPlane) {
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  settings.byPrintFinish = 3;
  NextPageIs('a');
  NextPageIs('b');
  PrinterTakesASheet();
  RunPage(settings);
  EXPECT_EQ(RunPage(settings).out.substr(kAhead),
            Pixels(8, 'b') + Pixels(8, 'a') + std::string(64, 'm'));
  EXPECT_EQ(gMatteImage.pBits, nullptr);
}

TEST_F(SheetAssembly, ASheetCacheTakesTheImagesLineOrder) {
  std::string bits = Pixels(4, 'l') + Pixels(4, 'u');  // lower line first
  tagMVBandImageParams image = {reinterpret_cast<unsigned char*>(bits.data()), 24, {0, 0, 4, 2}};
  const tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  EXPECT_TRUE(print_page(&settings, &image));
  EXPECT_EQ(gImageCache.lStride, 24);
  EXPECT_EQ(Bytes(gImageCache.pBits, 96), Pixels(4, 'l') + Pixels(4, 'u') + White(8));
}

TEST_F(SheetAssembly, ParkingAPageLeavesItsRecordAsItWas) {
  std::string bits = Pixels(8, 'a');
  tagMVBandImageParams image = {reinterpret_cast<unsigned char*>(bits.data()), -24, {0, 0, 4, 2}};
  const tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  EXPECT_TRUE(print_page(&settings, &image));
  EXPECT_EQ(image.rcBand.top, 0);
  EXPECT_EQ(image.rcBand.bottom, 2);
}

TEST_F(SheetAssembly, ALonePageThatPrintsAloneIsReadOneSheetBelowTheTop) {
  // No paper size does this: the lines come from behind a sheet's height, here a larger cache's.
  const std::string lines = Pixels(16, '-') + Pixels(8, 'p');
  gImageCache = {new unsigned char[lines.size()], -24, {0, 0, 4, 4}};
  lines.copy(reinterpret_cast<char*>(gImageCache.pBits), lines.size());
  gImageCount = 1;
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  settings.bHalfSheetLast = true;
  PrinterTakesASheet();
  const Outcome last = PrintLast(settings);
  EXPECT_TRUE(last.result);
  EXPECT_EQ(last.out.substr(8 + 512 + 6, 4), Bytes({0, 4, 0, 2}));
  EXPECT_EQ(last.out.substr(8 + 512 + 15, 4), Bytes({0, 0, 0, 1}));
  EXPECT_EQ(last.out.substr(8 + 512 + 512 + 10, 4), Bytes({0, 4, 0, 2}));
  EXPECT_EQ(last.out.substr(kAhead), Pixels(8, 'p'));
  EXPECT_EQ(gImageCount, 0);
  EXPECT_EQ(gImageCache.pBits, nullptr);
  EXPECT_EQ(settings.nPaperHeight, 4);
  EXPECT_EQ(settings.byTwoUpMode, 1);
}

TEST_F(SheetAssembly, ALonePageThatPrintsAloneSkipsTheGapToo) {
  const std::string lines = Pixels(20, '-') + Pixels(8, 'p');
  gImageCache = {new unsigned char[lines.size()], -24, {0, 0, 4, 4}};
  lines.copy(reinterpret_cast<char*>(gImageCache.pBits), lines.size());
  gImageCount = 1;
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  settings.bHalfSheetLast = true;
  settings.nJoinGap = 1;
  PrinterTakesASheet();
  EXPECT_EQ(PrintLast(settings).out.substr(kAhead), Pixels(8, 'p'));
}

TEST_F(SheetAssembly, ALoneBottomUpPageThatPrintsAloneIsReadOneSheetBelowTheTop) {
  // Eight lines in memory, the top row last: four lines below it begins the image.
  const std::string lines = Pixels(12, '-') + Pixels(4, 'l') + Pixels(4, 'u') + Pixels(12, '-');
  gImageCache = {new unsigned char[lines.size()], 24, {0, 0, 4, 8}};
  lines.copy(reinterpret_cast<char*>(gImageCache.pBits), lines.size());
  gImageCount = 1;
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  settings.bHalfSheetLast = true;
  PrinterTakesASheet();
  EXPECT_EQ(PrintLast(settings).out.substr(kAhead), Pixels(4, 'u') + Pixels(4, 'l'));
}

TEST_F(SheetAssembly, AJoinedSheetOfFullSizeHoldsPageTwoAbovePageOne) {
  NextPageIs('1');
  NextPageIs('2');
  PrinterTakesASheet();
  EXPECT_EQ(RunPage(FullSizeJoined()).out, "");
  const std::string out = RunPage(FullSizeJoined()).out;
  ASSERT_EQ(out.size(), kAhead + 2 * kHalfSheet * 6);
  EXPECT_TRUE(Same(out.substr(kAhead), Pixels(kHalfSheet, '2') + Pixels(kHalfSheet, '1')));
}

TEST_F(SheetAssembly, ALonePageOfFullSizeHasAWhiteUpperHalf) {
  NextPageIs('3');
  PrinterTakesASheet();
  RunPage(FullSizeJoined());
  const std::string out = PrintLast(FullSizeJoined()).out;
  ASSERT_EQ(out.size(), kAhead + 2 * kHalfSheet * 6);
  EXPECT_TRUE(Same(out.substr(kAhead), White(kHalfSheet) + Pixels(kHalfSheet, '3')));
}

TEST_F(SheetAssembly, AFullSizeMattePlaneHas1244Lines) {
  tagPRINTSETTING settings = FullSizeJoined();
  settings.byPrintFinish = 3;
  RunPage(settings);
  EXPECT_EQ(gMatteImage.rcBand.right, 1852);
  EXPECT_EQ(gMatteImage.rcBand.bottom, 1244);
}
