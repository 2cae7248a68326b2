// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/raster_pages.h"

#include <cups/raster.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace {

using bench::Content;
using bench::page_picture;
using bench::Picture;
using bench::RasterColours;
using bench::RasterForm;
using bench::write_raster;
using testing::ElementsAre;

std::string stream_of(const Picture& page, int pages, RasterForm form,
                      RasterColours colours = RasterColours::Rgb) {
  const int file = memfd_create("raster", 0);
  EXPECT_TRUE(write_raster(file, page, pages, {.form = form, .colours = colours}));
  std::string stream(static_cast<std::size_t>(lseek(file, 0, SEEK_END)), '\0');
  EXPECT_EQ(pread(file, stream.data(), stream.size(), 0), static_cast<ssize_t>(stream.size()));
  close(file);
  return stream;
}

struct ReadPage {
  cups_page_header2_t header = {};
  std::vector<unsigned char> lines = {};
};

std::vector<ReadPage> read_back(const std::string& stream) {
  const int file = memfd_create("raster", 0);
  EXPECT_EQ(pwrite(file, stream.data(), stream.size(), 0), static_cast<ssize_t>(stream.size()));
  cups_raster_t* raster = cupsRasterOpen(file, CUPS_RASTER_READ);
  std::vector<ReadPage> pages;
  for (ReadPage page; cupsRasterReadHeader2(raster, &page.header) != 0;) {
    const unsigned bytes = page.header.cupsBytesPerLine * page.header.cupsHeight;
    page.lines.resize(bytes);
    EXPECT_EQ(cupsRasterReadPixels(raster, page.lines.data(), bytes), bytes);
    pages.push_back(page);
  }
  cupsRasterClose(raster);
  close(file);
  return pages;
}

const Picture kFourPixels{2, 2, {{1, 2, 3}, {255, 255, 255}, {0, 0, 0}, {7, 8, 9}}};

TEST(RasterPages, HoldThePixelsInEachOfThePages) {
  for (const RasterForm form : {RasterForm::Raw, RasterForm::Compressed}) {
    const std::vector<ReadPage> pages = read_back(stream_of(kFourPixels, 2, form));
    ASSERT_EQ(pages.size(), 2U);
    for (const ReadPage& page : pages) {
      EXPECT_THAT(page.lines, ElementsAre(1, 2, 3, 255, 255, 255, 0, 0, 0, 7, 8, 9));
    }
  }
}

TEST(RasterPages, HaveTheHeaderOfAPageOf300DotsAnInch) {
  const Picture page = page_picture(Content::White, 1852, 1232, 0);
  const cups_page_header2_t header = read_back(stream_of(page, 1, RasterForm::Raw))[0].header;
  EXPECT_THAT(header.HWResolution, ElementsAre(300, 300));
  EXPECT_THAT(header.PageSize, ElementsAre(444, 296));
  EXPECT_FLOAT_EQ(header.cupsPageSize[0], 444.48F);
  EXPECT_FLOAT_EQ(header.cupsPageSize[1], 295.68F);
  EXPECT_EQ(header.NumCopies, 1U);
  EXPECT_EQ(header.cupsWidth, 1852U);
  EXPECT_EQ(header.cupsHeight, 1232U);
  EXPECT_EQ(header.cupsBytesPerLine, 5556U);
  EXPECT_EQ(header.cupsBitsPerColor, 8U);
  EXPECT_EQ(header.cupsBitsPerPixel, 24U);
  EXPECT_EQ(header.cupsNumColors, 3U);
  EXPECT_EQ(header.cupsColorSpace, CUPS_CSPACE_RGB);
  EXPECT_EQ(header.cupsColorOrder, CUPS_ORDER_CHUNKED);
}

TEST(RasterPages, AreWrittenInTheVersionsThatLibcupsReadsAsRawAndAsCompressed) {
  EXPECT_EQ(stream_of(kFourPixels, 1, RasterForm::Raw).substr(0, 4), "3SaR");
  EXPECT_EQ(stream_of(kFourPixels, 1, RasterForm::Compressed).substr(0, 4), "2SaR");
}

TEST(RasterPages, WithoutAPageAreTheMarkAlone) {
  EXPECT_EQ(stream_of(kFourPixels, 0, RasterForm::Raw), "3SaR");
}

TEST(RasterPages, GetSmallerCompressedAsTheirContentHasIt) {
  constexpr std::size_t kRaw = 1852UL * 100 * 3;
  const auto compressed = [](Content content) {
    return stream_of(page_picture(content, 1852, 100, 1), 1, RasterForm::Compressed).size();
  };
  EXPECT_LT(compressed(Content::White), kRaw / 50);
  EXPECT_GT(compressed(Content::Photo), kRaw * 9 / 10) << "grain leaves no runs";
  EXPECT_GT(compressed(Content::Noise), kRaw);
}

TEST(RasterPages, HaveTheSameNoiseForTheSameSeed) {
  EXPECT_EQ(page_picture(Content::Noise, 5, 5, 1).pixels,
            page_picture(Content::Noise, 5, 5, 1).pixels);
  EXPECT_NE(page_picture(Content::Noise, 5, 5, 1).pixels,
            page_picture(Content::Noise, 5, 5, 2).pixels);
}

TEST(RasterPages, HaveOneBitAPixelInBlack) {
  const Picture page{2, 1, {{0, 0, 0}, {255, 255, 255}}};
  const std::vector<ReadPage> pages =
      read_back(stream_of(page, 1, RasterForm::Raw, RasterColours::Black));
  EXPECT_THAT(pages.at(0).lines, ElementsAre(0x80));
}

TEST(RasterPages, HaveFourPlanesALineInKcmy) {
  const Picture page{9,
                     1,
                     {{0, 0, 0},
                      {0, 255, 255},
                      {255, 0, 255},
                      {255, 255, 0},
                      {255, 255, 255},
                      {255, 255, 255},
                      {255, 255, 255},
                      {255, 255, 255},
                      {255, 0, 0}}};
  const std::vector<ReadPage> pages =
      read_back(stream_of(page, 1, RasterForm::Raw, RasterColours::KcmyPlanes));
  EXPECT_THAT(pages.at(0).lines, ElementsAre(0x80, 0x00, 0x40, 0x00, 0x20, 0x80, 0x10, 0x80));
  EXPECT_EQ(pages.at(0).header.cupsColorOrder, CUPS_ORDER_BANDED);
}

}  // namespace
