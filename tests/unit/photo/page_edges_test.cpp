// SPDX-License-Identifier: Apache-2.0
//
// Raster pages laid on the printer's page.
#include "photo/page_edges.h"

#include <gmock/gmock.h>

#include <array>

#include <string>

namespace photo {
namespace {

// What a small sheet shows: a letter a dot, "." for white, rows parted by a stroke.
std::string shown(const PageSheet& sheet, std::size_t width, std::size_t height) {
  std::string text;
  for (std::size_t y = 0; y < height; ++y) {
    text += y > 0 ? "/" : "";
    for (std::size_t x = 0; x < width; ++x) {
      const std::uint8_t sample = sheet.Rows()[3 * (y * width + x)];
      text += sample == 0xFF ? '.' : static_cast<char>(sample);
    }
  }
  return text;
}

void lay(PageSheet& sheet, const Corner& corner, const std::vector<std::string>& rows) {
  for (std::size_t y = 0; y < rows.size(); ++y) {
    std::vector<std::uint8_t> rgb;
    for (const char letter : rows[y]) {
      rgb.insert(rgb.end(), 3, letter == '.' ? 0xFF : static_cast<std::uint8_t>(letter));
    }
    sheet.Lay(corner, y, rgb.data(), rows[y].size());
  }
}

TEST(PageSheet, IsWhiteWhereNothingLies) {
  PageSheet sheet(4, 3);
  lay(sheet, {1, 1}, {"ab"});
  EXPECT_EQ(shown(sheet, 4, 3), "..../.ab./....");
}

TEST(PageSheet, CutsWhatGoesBeyondIt) {
  PageSheet sheet(3, 2);
  lay(sheet, {-1, -1}, {"abcde", "fghij", "klmno", "pqrst"});
  EXPECT_EQ(shown(sheet, 3, 2), "ghi/lmn");
}

TEST(PageSheet, DropsAPageThatLiesBesideIt) {
  PageSheet sheet(3, 2);
  lay(sheet, {3, 0}, {"abc"});
  lay(sheet, {-3, 0}, {"abc"});
  lay(sheet, {0, 2}, {"abc"});
  EXPECT_EQ(shown(sheet, 3, 2), ".../...");
}

TEST(PageSheet, ClosesSmallGapsAtAllEdges) {
  PageSheet sheet(6, 4);
  lay(sheet, {1, 1}, {"ab", "cd"});
  sheet.CloseGaps({1, 1}, 2, 2);
  EXPECT_EQ(shown(sheet, 6, 4), "aabbbb/aabbbb/ccdddd/ccdddd");
}

TEST(PageSheet, LeavesGapsThatAreMeant) {
  PageSheet sheet(2, 12);
  lay(sheet, {0, 5}, {"ab", "cd"});
  sheet.CloseGaps({0, 5}, 2, 2);
  EXPECT_EQ(shown(sheet, 2, 12), "../../../../../ab/cd/../../../../..");
}

TEST(PageSheet, FillsALineOrTwoThatADrawingFilterLeftBlank) {
  PageSheet sheet(4, 5);
  lay(sheet, {0, 0}, {"....", "abcd", "efgh", "....", "...."});
  sheet.FillBlankLines();
  EXPECT_EQ(shown(sheet, 4, 5), "abcd/abcd/efgh/efgh/efgh");
}

TEST(PageSheet, FillsColumnsAsItFillsRows) {
  PageSheet sheet(5, 2);
  lay(sheet, {0, 0}, {".abc.", ".def."});
  sheet.FillBlankLines();
  EXPECT_EQ(shown(sheet, 5, 2), "aabcc/ddeff");
}

TEST(PageSheet, LeavesThreeBlankLinesAsTheyAre) {
  PageSheet sheet(2, 5);
  lay(sheet, {0, 0}, {"..", "..", "..", "ab", "cd"});
  sheet.FillBlankLines();
  EXPECT_EQ(shown(sheet, 2, 5), "../../../ab/cd");
}

TEST(PageSheet, LeavesAWhitePageWhite) {
  PageSheet sheet(2, 2);
  sheet.FillBlankLines();
  EXPECT_EQ(shown(sheet, 2, 2), "../..");
}

// RQ_9x13: 372 x 259.68 points, 1550 x 1082 dots.
JobPage page_of_9x13() {
  JobPage page;
  page.width = 1550;
  page.height = 1082;
  page.top = 259.68;
  return page;
}

cups_page_header2_t header_of(unsigned width, unsigned height, std::array<float, 4> box) {
  cups_page_header2_t header{};
  header.cupsWidth = width;
  header.cupsHeight = height;
  for (std::size_t i = 0; i < box.size(); ++i) {
    header.cupsImagingBBox[i] = box.at(i);
  }
  return header;
}

void expect_corner(const cups_page_header2_t& header, const JobPage& page, long left, long top) {
  const Corner corner = find_corner(header, page);
  EXPECT_EQ(corner.left, left);
  EXPECT_EQ(corner.top, top);
}

TEST(FindCorner, GoesByThePlaceInTheHeader) {
  expect_corner(header_of(1550, 1033, {0, 5.88F, 372, 253.8F}), page_of_9x13(), 0, 24);
}

TEST(FindCorner, CountsFromTheImageAreaInsideABorder) {
  JobPage page = page_of_9x13();
  page.width = 1382;
  page.height = 934;
  page.left = 20.16;
  page.top = 241.92;
  expect_corner(header_of(691, 460, {103.08F, 74.4F, 268.92F, 184.8F}), page, 346, 238);
}

TEST(FindCorner, TakesTheMiddleWhereTheHeaderTellsNoPlace) {
  expect_corner(header_of(1000, 1000, {0, 0, 0, 0}), page_of_9x13(), 275, 41);
}

TEST(FindCorner, CutsAtBothEndsWhatIsTooLargeAndTellsNoPlace) {
  expect_corner(header_of(1750, 1282, {0, 0, 0, 0}), page_of_9x13(), -100, -100);
}

TEST(FindCorner, KeepsAPageOnThePaper) {
  expect_corner(header_of(1550, 1082, {100, 100, 472, 359.68F}), page_of_9x13(), 0, 0);
  expect_corner(header_of(100, 100, {1e30F, -1e30F, 2e30F, 1e30F}), page_of_9x13(), 1450, 0);
}

}  // namespace
}  // namespace photo
