// SPDX-License-Identifier: Apache-2.0
//
// From converted pages to sheets: what no paper asks for and no raster brings. tests/filter prints
// the ordinary ones.
#include "filter/sheet_assembly.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "job/job_state.h"
#include "tests/unit/capture.h"
#include "tests/unit/filter/job_fixture.h"
#include "tests/unit/settings.h"

namespace {

/// Bytes of a sheet before its pixels: status request, query, job header, image header.
constexpr std::size_t kAhead = 8 + 512 + 512 + 512;

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
};

}  // namespace

TEST_F(SheetAssembly, OnlyTheValueOneJoinsPages) {
  for (const int join : {0, 2, -1}) {
    NextPageIs('a');
    PrinterTakesASheet();
    tagPRINTSETTING settings = SettingsOfSmallSheet();
    settings.nJoinPages = join;
    EXPECT_EQ(RunPage(settings).out.size(), kAhead + 48) << join;
  }
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

TEST_F(SheetAssembly, WhenPagesAreNotJoinedTheEndPrintsNothing) {
  gImageCount = 1;
  const Outcome last = PrintLast(SettingsOfSmallSheet());
  EXPECT_TRUE(last.result);
  EXPECT_EQ(last.out, "");
  EXPECT_EQ(gImageCount, 1);
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
