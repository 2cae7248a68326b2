// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/raster_pages.h"

#include <cups/raster.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <random>
#include <vector>

#include "bench/test_pictures.h"

namespace bench {

namespace {

constexpr unsigned kDotsPerInch = 300;
constexpr double kPointsPerDot = 72.0 / kDotsPerInch;
constexpr unsigned kPixelsPerByte = 8;  // of one bit each

struct RasterCloser {
  void operator()(cups_raster_t* raster) const { cupsRasterClose(raster); }
};

struct Layout {
  cups_cspace_t space;
  cups_order_t order;
  unsigned bits_per_colour;
  unsigned colours;
};

Layout layout_of(RasterColours colours) {
  switch (colours) {
    case RasterColours::Black:
      return {CUPS_CSPACE_K, CUPS_ORDER_CHUNKED, 1, 1};
    case RasterColours::KcmyPlanes:
      return {CUPS_CSPACE_KCMY, CUPS_ORDER_BANDED, 1, 4};
    case RasterColours::Rgb:
      break;
  }
  return {CUPS_CSPACE_RGB, CUPS_ORDER_CHUNKED, 8, 3};
}

void set_size(cups_page_header2_t* header, const Picture& page) {
  header->cupsWidth = static_cast<unsigned>(page.width);
  header->cupsHeight = static_cast<unsigned>(page.height);
  const double across = kPointsPerDot * header->cupsWidth;
  const double down = kPointsPerDot * header->cupsHeight;
  header->HWResolution[0] = header->HWResolution[1] = kDotsPerInch;
  header->PageSize[0] = static_cast<unsigned>(std::lround(across));
  header->PageSize[1] = static_cast<unsigned>(std::lround(down));
  header->ImagingBoundingBox[2] = header->PageSize[0];
  header->ImagingBoundingBox[3] = header->PageSize[1];
  header->cupsPageSize[0] = header->cupsImagingBBox[2] = static_cast<float>(across);
  header->cupsPageSize[1] = header->cupsImagingBBox[3] = static_cast<float>(down);
}

cups_page_header2_t header_of(const Picture& page, const RasterStyle& style) {
  const Layout layout = layout_of(style.colours);
  const bool planes = layout.order == CUPS_ORDER_BANDED;
  cups_page_header2_t header{};
  set_size(&header, page);
  header.NumCopies = 1;
  header.cupsBitsPerColor = layout.bits_per_colour;
  header.cupsBitsPerPixel =
      planes ? layout.bits_per_colour : layout.bits_per_colour * layout.colours;
  header.cupsBytesPerLine = (header.cupsWidth * header.cupsBitsPerPixel + kPixelsPerByte - 1) /
                            kPixelsPerByte * (planes ? layout.colours : 1);
  header.cupsColorOrder = layout.order;
  header.cupsColorSpace = layout.space;
  header.cupsNumColors = layout.colours;
  header.cupsCompression = style.compression;
  header.cupsRowCount = style.row_count;
  header.cupsRowFeed = style.row_feed;
  header.cupsRowStep = style.row_step;
  return header;
}

// How much of each ink a pixel has: black, cyan, magenta, yellow.
std::array<unsigned, 4> inks_of(const Rgb8& pixel) {
  const unsigned lightest = *std::max_element(pixel.begin(), pixel.end());
  return {255U - lightest, lightest - pixel[0], lightest - pixel[1], lightest - pixel[2]};
}

// As much black as the pixel is dark.
std::array<unsigned, 1> darkness_of(const Rgb8& pixel) {
  return {255U - (31U * pixel[0] + 61U * pixel[1] + 8U * pixel[2]) / 100U};
}

// One row as planes of one bit a dot, each at the byte behind the one before.
template <typename Inks>
std::vector<unsigned char> screened(const Picture& page, std::size_t y, Inks inks) {
  constexpr unsigned kScreen[4][4] = {
      {8, 136, 40, 168}, {200, 72, 232, 104}, {56, 184, 24, 152}, {248, 120, 216, 88}};
  const std::size_t plane = (page.width + kPixelsPerByte - 1) / kPixelsPerByte;
  const Rgb8* row = page.pixels.data() + y * page.width;
  std::vector<unsigned char> line(plane * inks(row[0]).size());
  for (std::size_t x = 0; x < page.width; ++x) {
    const auto amounts = inks(row[x]);
    for (std::size_t ink = 0; ink < amounts.size(); ++ink) {
      if (amounts[ink] > kScreen[y % 4][x % 4]) {
        line[ink * plane + x / kPixelsPerByte] |=
            static_cast<unsigned char>(0x80U >> (x % kPixelsPerByte));
      }
    }
  }
  return line;
}

std::vector<unsigned char> line_of(const Picture& page, std::size_t y, RasterColours colours) {
  switch (colours) {
    case RasterColours::Black:
      return screened(page, y, darkness_of);
    case RasterColours::KcmyPlanes:
      return screened(page, y, inks_of);
    case RasterColours::Rgb:
      break;
  }
  return {page.row(y), page.row(y) + 3 * page.width};
}

bool write_page(cups_raster_t* raster, cups_page_header2_t header,
                std::vector<std::vector<unsigned char>>& lines) {
  if (cupsRasterWriteHeader2(raster, &header) == 0) {
    return false;
  }
  return std::all_of(lines.begin(), lines.end(), [&](std::vector<unsigned char>& line) {
    return cupsRasterWritePixels(raster, line.data(), header.cupsBytesPerLine) ==
           header.cupsBytesPerLine;
  });
}

}  // namespace

Picture page_picture(Content content, std::size_t width, std::size_t height, std::uint32_t seed) {
  if (content == Content::Photo) {
    return photo(width, height);
  }
  std::mt19937 source(seed);
  return painted(width, height, [&](std::size_t, std::size_t) {
    if (content == Content::White) {
      return Rgb8{255, 255, 255};
    }
    const auto bits = static_cast<std::uint32_t>(source());
    return Rgb8{static_cast<unsigned char>(bits >> 24U), static_cast<unsigned char>(bits >> 16U),
                static_cast<unsigned char>(bits >> 8U)};
  });
}

bool write_raster(int descriptor, const Picture& page, int pages, const RasterStyle& style) {
  const cups_mode_t mode =
      style.form == RasterForm::Compressed ? CUPS_RASTER_WRITE_COMPRESSED : CUPS_RASTER_WRITE;
  const std::unique_ptr<cups_raster_t, RasterCloser> raster(cupsRasterOpen(descriptor, mode));
  if (raster == nullptr) {
    return false;
  }
  const cups_page_header2_t header = header_of(page, style);
  std::vector<std::vector<unsigned char>> lines;
  for (std::size_t y = 0; y < page.height; ++y) {
    lines.push_back(line_of(page, y, style.colours));
  }
  for (int number = 0; number < pages; ++number) {
    if (!write_page(raster.get(), header, lines)) {
      return false;
    }
  }
  return true;
}

}  // namespace bench
