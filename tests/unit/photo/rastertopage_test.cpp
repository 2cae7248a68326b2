// SPDX-License-Identifier: Apache-2.0
//
// rastertopage as the scheduler runs it: raster pages in, the printer's pages out.
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "tests/unit/photo/filter_run.h"
#include "tests/unit/raster_bytes.h"

namespace {

using testing::HasSubstr;
using testing::SizeIs;

constexpr Rgb kGrey = {100, 110, 120};

ToolRun run_rastertopage(const std::string& stream, const std::string& options) {
  return run_filter(RASTERTOPAGE, {"1", options}, stream);
}

std::vector<RasterPage> pages_after(const std::string& stream, const std::string& options) {
  const ToolRun run = run_rastertopage(stream, options);
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(run.errors, "");
  return pages_of(run.out);
}

TEST(Rastertopage, LeavesAWholePageAsItIs) {
  RasterPage page = flat_page(1852, 1232, kGrey);
  for (std::size_t i = 0; i < page.rgb.size(); ++i) {
    page.rgb[i] = static_cast<std::uint8_t>(i * 7 % 251);
  }
  page.header.NumCopies = 1;
  page.header.cupsInteger[3] = 42;
  const std::vector<RasterPage> after = pages_after(stream_of({page}), "PageSize=RQ_10x15");
  ASSERT_THAT(after, SizeIs(1));
  EXPECT_EQ(after[0].rgb, page.rgb);
  EXPECT_EQ(after[0].header.cupsInteger[3], 42U);
}

TEST(Rastertopage, PutsASmallerPageWhereItsHeaderSays) {
  RasterPage page = flat_page(1550, 1033, kGrey);
  page.header.cupsImagingBBox[1] = 5.88F;
  page.header.cupsImagingBBox[2] = 372;
  page.header.cupsImagingBBox[3] = 253.8F;
  const RasterPage after = pages_after(stream_of({page}), "PageSize=RQ_9x13").at(0);
  EXPECT_EQ(after.width, 1550U);
  EXPECT_EQ(after.height, 1082U);
  EXPECT_EQ(after.header.cupsBytesPerLine, 4650U);
  EXPECT_EQ(after.At(0, 23), kWhite);
  EXPECT_EQ(after.At(0, 24), kGrey);
  EXPECT_EQ(after.At(1549, 1056), kGrey);
  EXPECT_EQ(after.At(1549, 1057), kWhite);
}

TEST(Rastertopage, ReachesEdgesThatRoundingHasMissed) {
  RasterPage page = flat_page(1850, 1231, kGrey);
  const RasterPage after = pages_after(stream_of({page}), "PageSize=RQ_10x15").at(0);
  EXPECT_EQ(after.At(0, 0), kGrey);
  EXPECT_EQ(after.At(1851, 1231), kGrey);
}

TEST(Rastertopage, FillsTheRowThatGhostscriptLeavesWhite) {
  RasterPage page = flat_page(1852, 1232, kGrey);
  std::fill_n(page.rgb.begin(), 3 * 1852, std::uint8_t{0xFF});
  const RasterPage after = pages_after(stream_of({page}), "PageSize=RQ_10x15").at(0);
  EXPECT_EQ(after.At(0, 0), kGrey);
  EXPECT_EQ(after.At(1851, 0), kGrey);
}

TEST(Rastertopage, CutsALargerPage) {
  const RasterPage after =
      pages_after(stream_of({flat_page(1900, 1300, kGrey)}), "PageSize=RQ_10x15").at(0);
  EXPECT_EQ(after.width, 1852U);
  EXPECT_EQ(after.height, 1232U);
  EXPECT_EQ(after.At(1851, 1231), kGrey);
}

TEST(Rastertopage, PassesOnEveryPage) {
  const std::vector<RasterPage> after =
      pages_after(stream_of({flat_page(1852, 616, kGrey), flat_page(1852, 616, {1, 2, 3})}),
                  "PageSize=RQ_5x15x2_2");
  ASSERT_THAT(after, SizeIs(2));
  EXPECT_EQ(after[0].At(5, 5), kGrey);
  EXPECT_EQ(after[1].At(5, 5), (Rgb{1, 2, 3}));
}

TEST(Rastertopage, HasNoPagesWithoutPages) {
  EXPECT_THAT(pages_after("", "PageSize=RQ_10x15"), SizeIs(0));
  EXPECT_THAT(pages_after("no raster", "PageSize=RQ_10x15"), SizeIs(0));
}

TEST(Rastertopage, PrintsBlackAndWhiteAsGreysThatLookAsBright) {
  RasterPage page = flat_page(1550, 1033, {200, 90, 80});
  const RasterPage after =
      pages_after(stream_of({page}), "PageSize=RQ_10x15 print-color-mode=monochrome").at(0);
  EXPECT_EQ(after.At(0, 0), kWhite);
  EXPECT_EQ(after.At(926, 616), (Rgb{113, 113, 113}));
}

void expect_refused(const std::string& stream, const std::string& why) {
  const ToolRun run = run_rastertopage(stream, "PageSize=RQ_10x15");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.errors, "ERROR: The pages " + why + ".\n");
  EXPECT_EQ(run.out, "");
}

TEST(Rastertopage, WritesNoPageThatEndsTooEarly) {
  const std::string whole = stream_of({flat_page(1852, 1232, kGrey)});
  expect_refused(whole.substr(0, whole.size() - 1), "were not printed: a page ends too early");
}

TEST(Rastertopage, RefusesOtherSamplesThan8BitRgb) {
  RasterPage grey = flat_page(1852, 1232, kGrey);
  grey.header.cupsBitsPerPixel = 8;
  expect_refused(stream_of({grey}), "cannot be printed: their raster is not 8-bit RGB");
  RasterPage planes = flat_page(1852, 1232, kGrey);
  planes.header.cupsColorOrder = CUPS_ORDER_PLANAR;
  expect_refused(stream_of({planes}), "cannot be printed: their raster is not 8-bit RGB");
}

TEST(Rastertopage, RefusesALineThatIsShorterThanItsDots) {
  RasterPage page = flat_page(10, 10, kGrey);
  page.header.cupsWidth = 60000;
  expect_refused(stream_of({page}), "cannot be printed: their raster is not 8-bit RGB");
}

TEST(Rastertopage, SaysThatItCannotWrite) {
  const std::string notPrinted = "ERROR: The pages were not printed: ";
  const auto run = [](const std::string& output) {
    const std::string command = "trap '' PIPE; '" RASTERTOPAGE "' 7 anna Beach 1 '' ";
    return run_program({"env", "PPD=" TQR7_PPD, "LC_ALL=C", "sh", "-c", command + output},
                       stream_of({flat_page(1852, 1232, kGrey)}))
        .errors;
  };
  EXPECT_EQ(run(">/dev/full"), notPrinted + "no page can be written.\n");
  EXPECT_EQ(run("| head -c 4"), notPrinted + "the printer's filter takes no more.\n");
}

TEST(Rastertopage, SaysThatThereIsNoFile) {
  const ToolRun run = run_filter(RASTERTOPAGE, {"1", "", "/nonexistent"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.errors, "ERROR: The pages were not printed: their file cannot be read.\n");
}

}  // namespace
