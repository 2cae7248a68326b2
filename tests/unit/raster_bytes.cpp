// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/raster_bytes.h"

#include <png.h>

#include <algorithm>

namespace {

struct Reading {
  const std::string& stream;
  std::size_t place = 0;
};

ssize_t read_some(void* context, unsigned char* buffer, std::size_t bytes) {
  auto& reading = *static_cast<Reading*>(context);
  const std::size_t some = std::min(bytes, reading.stream.size() - reading.place);
  reading.stream.copy(reinterpret_cast<char*>(buffer), some, reading.place);
  reading.place += some;
  return static_cast<ssize_t>(some);
}

ssize_t write_some(void* context, unsigned char* buffer, std::size_t bytes) {
  static_cast<std::string*>(context)->append(reinterpret_cast<char*>(buffer), bytes);
  return static_cast<ssize_t>(bytes);
}

}  // namespace

std::vector<RasterPage> pages_of(const std::string& stream) {
  std::vector<RasterPage> pages;
  Reading reading{stream};
  cups_raster_t* const raster = cupsRasterOpenIO(read_some, &reading, CUPS_RASTER_READ);
  cups_page_header2_t header;
  while (raster != nullptr && cupsRasterReadHeader2(raster, &header) != 0 &&
         header.cupsBitsPerPixel == 24) {
    RasterPage page{header, header.cupsWidth, header.cupsHeight, {}};
    page.rgb.resize(3UL * page.width * page.height);
    cupsRasterReadPixels(raster, page.rgb.data(), static_cast<unsigned>(page.rgb.size()));
    pages.push_back(std::move(page));
  }
  cupsRasterClose(raster);
  return pages;
}

std::string stream_of(const std::vector<RasterPage>& pages) {
  std::string stream;
  cups_raster_t* const raster = cupsRasterOpenIO(write_some, &stream, CUPS_RASTER_WRITE);
  for (RasterPage page : pages) {
    cupsRasterWriteHeader2(raster, &page.header);
    cupsRasterWritePixels(raster, page.rgb.data(), static_cast<unsigned>(page.rgb.size()));
  }
  cupsRasterClose(raster);
  return stream;
}

RasterPage flat_page(std::uint32_t width, std::uint32_t height, const Rgb& colour) {
  RasterPage page{{}, width, height, {}};
  page.header.cupsWidth = width;
  page.header.cupsHeight = height;
  page.header.cupsBytesPerLine = 3 * width;
  page.header.cupsBitsPerColor = 8;
  page.header.cupsBitsPerPixel = 24;
  page.header.cupsColorSpace = CUPS_CSPACE_RGB;
  page.header.cupsNumColors = 3;
  page.header.HWResolution[0] = 300;
  page.header.HWResolution[1] = 300;
  for (std::size_t i = 0; i < std::size_t{width} * height; ++i) {
    for (const int sample : colour) {
      page.rgb.push_back(static_cast<std::uint8_t>(sample));
    }
  }
  return page;
}

std::string transparent_png(std::uint8_t red, std::uint8_t green, std::uint8_t blue,
                            std::uint8_t cover) {
  std::vector<std::uint8_t> rgba;
  for (int i = 0; i < 4; ++i) {
    rgba.insert(rgba.end(), {red, green, blue, cover});
  }
  png_image png{};
  png.version = PNG_IMAGE_VERSION;
  png.width = 2;
  png.height = 2;
  png.format = PNG_FORMAT_RGBA;
  std::string bytes(1000, '\0');
  png_alloc_size_t length = bytes.size();
  png_image_write_to_memory(&png, bytes.data(), &length, 0, rgba.data(), 0, nullptr);
  bytes.resize(length);
  return bytes;
}
