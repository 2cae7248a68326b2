// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/raster_pages.h"

#include <cups/raster.h>

#include <algorithm>
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
  unsigned bits_per_colour;
  unsigned colours;
};

Layout layout_of(RasterColours colours) {
  switch (colours) {
    case RasterColours::Cmyk:
      return {CUPS_CSPACE_CMYK, 8, 4};
    case RasterColours::Grey:
      return {CUPS_CSPACE_W, 8, 1};
    case RasterColours::Black:
      return {CUPS_CSPACE_K, 1, 1};
    case RasterColours::Rgb:
      break;
  }
  return {CUPS_CSPACE_RGB, 8, 3};
}

cups_page_header2_t header_of(const Picture& page, const Layout& layout) {
  const auto width = static_cast<unsigned>(page.width);
  const auto height = static_cast<unsigned>(page.height);
  const double across = kPointsPerDot * width;
  const double down = kPointsPerDot * height;
  cups_page_header2_t header{};
  header.NumCopies = 1;
  header.HWResolution[0] = header.HWResolution[1] = kDotsPerInch;
  header.PageSize[0] = static_cast<unsigned>(std::lround(across));
  header.PageSize[1] = static_cast<unsigned>(std::lround(down));
  header.ImagingBoundingBox[2] = header.PageSize[0];
  header.ImagingBoundingBox[3] = header.PageSize[1];
  header.cupsPageSize[0] = header.cupsImagingBBox[2] = static_cast<float>(across);
  header.cupsPageSize[1] = header.cupsImagingBBox[3] = static_cast<float>(down);
  header.cupsWidth = width;
  header.cupsHeight = height;
  header.cupsBitsPerColor = layout.bits_per_colour;
  header.cupsBitsPerPixel = layout.bits_per_colour * layout.colours;
  header.cupsBytesPerLine = (width * header.cupsBitsPerPixel + kPixelsPerByte - 1) / kPixelsPerByte;
  header.cupsColorOrder = CUPS_ORDER_CHUNKED;
  header.cupsColorSpace = layout.space;
  header.cupsNumColors = layout.colours;
  return header;
}

unsigned char grey_of(const Rgb8& pixel) {
  return static_cast<unsigned char>((31U * pixel[0] + 61U * pixel[1] + 8U * pixel[2]) / 100U);
}

void put_cmyk(unsigned char* to, const Rgb8& pixel) {
  const unsigned char lightest = *std::max_element(pixel.begin(), pixel.end());
  for (std::size_t channel = 0; channel < pixel.size(); ++channel) {
    to[channel] = static_cast<unsigned char>(lightest - pixel[channel]);
  }
  to[3] = static_cast<unsigned char>(255 - lightest);
}

// One row as the page's lines hold it. Black dots come from an ordered 4 × 4 screen, as a page of
// one bit a pixel has them.
std::vector<unsigned char> line_of(const Picture& page, std::size_t y, RasterColours colours,
                                   std::size_t bytes) {
  constexpr unsigned char kScreen[4][4] = {
      {8, 136, 40, 168}, {200, 72, 232, 104}, {56, 184, 24, 152}, {248, 120, 216, 88}};
  std::vector<unsigned char> line(bytes);
  const Rgb8* row = page.pixels.data() + y * page.width;
  for (std::size_t x = 0; x < page.width; ++x) {
    const Rgb8& pixel = row[x];
    switch (colours) {
      case RasterColours::Rgb:
        std::copy(pixel.begin(), pixel.end(), line.begin() + static_cast<std::ptrdiff_t>(3 * x));
        break;
      case RasterColours::Cmyk:
        put_cmyk(line.data() + 4 * x, pixel);
        break;
      case RasterColours::Grey:
        line[x] = grey_of(pixel);
        break;
      case RasterColours::Black:
        if (grey_of(pixel) < kScreen[y % 4][x % 4]) {
          line[x / kPixelsPerByte] |= static_cast<unsigned char>(0x80U >> (x % kPixelsPerByte));
        }
        break;
    }
  }
  return line;
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

bool write_raster(int descriptor, const Picture& page, int pages, RasterForm form,
                  RasterColours colours) {
  const cups_mode_t mode =
      form == RasterForm::Compressed ? CUPS_RASTER_WRITE_COMPRESSED : CUPS_RASTER_WRITE;
  const std::unique_ptr<cups_raster_t, RasterCloser> raster(cupsRasterOpen(descriptor, mode));
  if (raster == nullptr) {
    return false;
  }
  const cups_page_header2_t header = header_of(page, layout_of(colours));
  std::vector<std::vector<unsigned char>> lines;
  for (std::size_t y = 0; y < page.height; ++y) {
    lines.push_back(line_of(page, y, colours, header.cupsBytesPerLine));
  }
  for (int number = 0; number < pages; ++number) {
    if (!write_page(raster.get(), header, lines)) {
      return false;
    }
  }
  return true;
}

}  // namespace bench
