// SPDX-License-Identifier: Apache-2.0
#include "tests/filter/raster_maker.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace filter_test {
namespace {

std::string WholeFile(int file) {
  std::string text(static_cast<std::size_t>(lseek(file, 0, SEEK_END)), '\0');
  if (pread(file, text.data(), text.size(), 0) != static_cast<ssize_t>(text.size())) {
    throw std::runtime_error("raster stream cannot be read back");
  }
  return text;
}

void WriteLines(cups_raster_t* raster, const RasterPage& page) {
  const std::size_t bytes = page.header.cupsBytesPerLine;
  for (std::size_t at = 0; at + bytes <= page.lines.size(); at += bytes) {
    std::string line = page.lines.substr(at, bytes);
    cupsRasterWritePixels(raster, reinterpret_cast<unsigned char*>(line.data()),
                          static_cast<unsigned>(bytes));
  }
}

}  // namespace

Pixels Pixels::Pattern(int width, int height, int number) {
  Pixels page = White(width, height);
  char* place = page.rgb.data();
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      *place++ = static_cast<char>(x + 3 * y + 50 * number);
      *place++ = static_cast<char>(7 * x - y + 90 * number);
      *place++ = static_cast<char>(x / 8 + 11 * y + 20 * number);
    }
  }
  return page;
}

Pixels Pixels::White(int width, int height) {
  return {
      width, height,
      std::string(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3, '\xFF')};
}

Pixels Pixels::On(int other_width, int other_height) const {
  Pixels result = White(other_width, other_height);
  const auto common = static_cast<std::size_t>(std::min(width, other_width)) * 3;
  for (int y = 0; y < std::min(height, other_height); ++y) {
    const auto row = static_cast<std::size_t>(y);
    std::memcpy(result.rgb.data() + row * static_cast<std::size_t>(other_width) * 3,
                rgb.data() + row * static_cast<std::size_t>(width) * 3, common);
  }
  return result;
}

RasterPage::RasterPage(const Pixels& pixels, unsigned copies)
    : RasterPage(static_cast<unsigned>(pixels.width), static_cast<unsigned>(pixels.height), 24,
                 static_cast<unsigned>(pixels.width) * 3, pixels.rgb) {
  header.NumCopies = copies;
}

RasterPage::RasterPage(unsigned width, unsigned height, unsigned bits_per_pixel,
                       unsigned bytes_per_line, std::string page_lines)
    : lines(std::move(page_lines)) {
  constexpr unsigned kBitsPerColor = 8;
  header.NumCopies = 1;
  header.HWResolution[0] = header.HWResolution[1] = 300;
  header.cupsWidth = width;
  header.cupsHeight = height;
  header.cupsBitsPerPixel = bits_per_pixel;
  header.cupsBitsPerColor = std::min(bits_per_pixel, kBitsPerColor);
  header.cupsBytesPerLine = bytes_per_line;
  header.cupsColorOrder = CUPS_ORDER_CHUNKED;
  header.cupsNumColors = bits_per_pixel / header.cupsBitsPerColor;
  header.cupsColorSpace = header.cupsNumColors == 1   ? CUPS_CSPACE_W
                          : header.cupsNumColors == 3 ? CUPS_CSPACE_RGB
                                                      : CUPS_CSPACE_CMYK;
}

std::string RasterStream(const std::vector<RasterPage>& pages, cups_mode_t mode) {
  const int file = memfd_create("raster", 0);
  cups_raster_t* raster = cupsRasterOpen(file, mode);
  for (const RasterPage& page : pages) {
    cups_page_header2_t header = page.header;
    if (cupsRasterWriteHeader2(raster, &header) == 0) {
      throw std::runtime_error("raster header cannot be written");
    }
    WriteLines(raster, page);
  }
  cupsRasterClose(raster);
  std::string stream = WholeFile(file);
  close(file);
  return stream;
}

std::string UncheckedStream(const RasterPage& page) {
  const unsigned sync = CUPS_RASTER_SYNC;
  std::string stream(reinterpret_cast<const char*>(&sync), sizeof sync);
  stream.append(reinterpret_cast<const char*>(&page.header), sizeof page.header);
  return stream + page.lines;
}

std::string FirstVersionStream(const Pixels& pixels) {
  const RasterPage page(pixels);
  const unsigned sync = CUPS_RASTER_SYNCv1;
  std::string stream(reinterpret_cast<const char*>(&sync), sizeof sync);
  stream.append(reinterpret_cast<const char*>(&page.header), sizeof(cups_page_header_t));
  return stream + page.lines;
}

}  // namespace filter_test
