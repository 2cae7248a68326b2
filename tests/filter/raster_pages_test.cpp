// SPDX-License-Identifier: Apache-2.0
//
// What the filter makes of raster pages of other sizes and depths, and of streams that break off.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

constexpr int kPageWidth = 1550;
constexpr int kHeight = 1082;

void ExpectNoPages(const Outcome& outcome) {
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + kNoPages));
  EXPECT_EQ(outcome.status, 1);
}

/// White but for the first bytes of each row, which are the lines' own.
Pixels WithRowStarts(const std::string& lines, std::size_t bytes_per_line, std::size_t taken) {
  Pixels page = Pixels::White(kPageWidth, kHeight);
  for (std::size_t row = 0; row * bytes_per_line < lines.size(); ++row) {
    page.rgb.replace(row * kPageWidth * 3, taken, lines, row * bytes_per_line, taken);
  }
  return page;
}

std::string Bytes(std::size_t count) {
  return Pixels::Pattern(1000, 100).rgb.substr(0, count);
}

TEST(RasterPage, NarrowerThanTheImageLeavesTheRightWhite) {
  const Pixels page = Pixels::Pattern(30, kHeight);
  ExpectSheet(Print({.input = RasterStream({RasterPage(page)})}), page.On(kPageWidth, kHeight),
              "0 5 11 17 23 29 35 41 47");
}

TEST(RasterPage, ShorterThanTheImageLeavesTheBottomWhite) {
  const Pixels page = Pixels::Pattern(kPageWidth, 3);
  ExpectSheet(Print({.input = RasterStream({RasterPage(page)})}), page.On(kPageWidth, kHeight),
              "0");
}

TEST(RasterPage, WiderThanTheImageIsCutAtTheRight) {
  const Pixels page = Pixels::Pattern(1700, 5);
  ExpectSheet(Print({.input = RasterStream({RasterPage(page)})}), page.On(kPageWidth, kHeight),
              "0");
}

TEST(RasterPage, TallerThanTheImageIsCutAtTheBottom) {
  const Pixels page = Pixels::Pattern(7, 1200);
  ExpectSheet(Print({.input = RasterStream({RasterPage(page)})}), page.On(kPageWidth, kHeight),
              "0 5 10 16 21 26 32 37 42 48");
}

TEST(RasterPage, OfAThousandLinesTellsItsProgressEightTimes) {
  const Pixels page = Pixels::Pattern(4, 1000);
  ExpectSheet(Print({.input = RasterStream({RasterPage(page)})}), page.On(kPageWidth, kHeight),
              "0 6 12 19 25 32 38 44");
}

TEST(RasterPage, ThatIsTallerIsReadToItsEndBeforeTheNextOne) {
  const Pixels tall = Pixels::Pattern(7, 1100, 1);
  const Pixels next = Pixels::Pattern(9, 6, 2);

  const Outcome outcome = Print({.input = RasterStream({RasterPage(tall), RasterPage(next)})});

  EXPECT_TRUE(SameStream(
      outcome.stream,
      StatusRequest() + Sheet(kSettings, ImageData(tall.On(kPageWidth, kHeight))) +
          Sheet(kSettings, ImageData(next.On(kPageWidth, kHeight)), 1, kFirstSecond + 5) +
          PrintOut()));
  EXPECT_EQ(outcome.status, 0);
}

TEST(RasterPage, IsAccountedWithItsNumberOfCopies) {
  const Pixels page = SmallPixels();
  ExpectSheet(Print({.input = RasterStream({RasterPage(page, 3)})}), page.On(kPageWidth, kHeight),
              "0", 3);
}

TEST(RasterPage, IsAccountedWithNoCopiesWhenItSaysSo) {
  const Pixels page = SmallPixels();
  ExpectSheet(Print({.input = UncheckedStream(RasterPage(page, 0))}), page.On(kPageWidth, kHeight),
              "0", 0);
}

TEST(RasterPage, InGreyFillsOnlyTheBytesThatItsLinesHave) {
  const std::string lines = Bytes(800);
  ExpectSheet(Print({.input = RasterStream({RasterPage(100, 8, 8, 100, lines)})}),
              WithRowStarts(lines, 100, 100), "0");
}

TEST(RasterPage, InGreyOfTheWholeWidthFillsOnlyTheBytesThatItsLinesHave) {
  const std::string lines = Bytes(6200);
  ExpectSheet(Print({.input = RasterStream({RasterPage(1550, 4, 8, 1550, lines)})}),
              WithRowStarts(lines, 1550, 1550), "0");
}

TEST(RasterPage, OfOneBitFillsOnlyTheBytesThatItsLinesHave) {
  const std::string lines = Bytes(500);
  ExpectSheet(Print({.input = RasterStream({RasterPage(1000, 4, 1, 125, lines)})}),
              WithRowStarts(lines, 125, 125), "0");
}

TEST(RasterPage, OfFourChannelsIsCutAtThreeBytesAPixel) {
  const std::string lines = Bytes(1600);
  ExpectSheet(Print({.input = RasterStream({RasterPage(100, 4, 32, 400, lines)})}),
              WithRowStarts(lines, 400, 300), "0");
}

TEST(RasterPage, WithPaddedLinesIsCutAtItsWidth) {
  const std::string lines = Bytes(240);
  ExpectSheet(Print({.input = UncheckedStream(RasterPage(10, 4, 24, 60, lines))}),
              WithRowStarts(lines, 60, 30), "0");
}

TEST(RasterStream, MayBeCompressed) {
  const Pixels page = Pixels::Pattern(300, 40);
  ExpectSheet(Print({.input = RasterStream({RasterPage(page)}, CUPS_RASTER_WRITE_COMPRESSED)}),
              page.On(kPageWidth, kHeight), "0");
}

TEST(RasterStream, MayBeOfTheFirstVersion) {
  const Pixels page = Pixels::Pattern(300, 40);
  ExpectSheet(Print({.input = FirstVersionStream(page)}), page.On(kPageWidth, kHeight), "0");
}

TEST(RasterStream, IsReadFromTheNamedFile) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("page.ras", SmallRaster());

  const Outcome outcome =
      Print({.input = "not a raster stream", .arguments = {{"7", "anna", "Beach", "1", "", path}}});

  ExpectSheet(outcome, SmallPixels().On(kPageWidth, kHeight), "0");
}

TEST(RasterStream, ThatIsEmptyHasNoPages) {
  ExpectNoPages(Print({.input = ""}));
}

TEST(RasterStream, OfNothingButItsFirstWordHasNoPages) {
  ExpectNoPages(Print({.input = RasterStream({})}));
}

TEST(RasterStream, OfSomethingElseHasNoPages) {
  ExpectNoPages(Print({.input = "%PDF-1.7 and so on, " + std::string(5000, 'x')}));
}

TEST(RasterStream, CutInItsFirstHeaderHasNoPages) {
  ExpectNoPages(Print({.input = SmallRaster().substr(0, 300)}));
}

TEST(RasterStream, ThatEndsAfterALineLeavesTheRestWhite) {
  const Pixels page = Pixels::Pattern(50, 200);
  Pixels seen = page;  // lines of 150 bytes: 60 of them are missing
  seen.height = 140;
  const std::string stream = RasterStream({RasterPage(page)});

  ExpectSheet(Print({.input = stream.substr(0, stream.size() - 9000)}),
              seen.On(kPageWidth, kHeight), "0 32");
}

TEST(RasterStream, ThatEndsWithinALineDropsThatLine) {
  const Pixels page = Pixels::Pattern(50, 200);
  Pixels seen = page;  // lines of 150 bytes: 180 of them and 70 bytes are missing
  seen.height = 19;
  const std::string stream = RasterStream({RasterPage(page)});

  ExpectSheet(Print({.input = stream.substr(0, stream.size() - 27070)}),
              seen.On(kPageWidth, kHeight), "0");
}

TEST(RasterStream, ThatEndsWithinTheSecondHeaderPrintsTheFirstPage) {
  const std::string stream = SmallRaster(2);

  ExpectSheet(Print({.input = stream.substr(0, SmallRaster(1).size() + 100)}),
              SmallPixels().On(kPageWidth, kHeight), "0");
}

}  // namespace
}  // namespace filter_test
