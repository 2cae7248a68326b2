// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/png_file.h"

#include <png.h>

#include <csetjmp>
#include <cstdio>

namespace {

// setjmp is libpng's way to report errors; nothing here needs destruction between it and the jump.
// NOLINTNEXTLINE(cert-err52-cpp)
bool read_into(PngFile& file, png_structp png, png_infop info, std::FILE* stream) {
  // NOLINTNEXTLINE(cert-err52-cpp)
  if (setjmp(png_jmpbuf(png)) != 0) {
    return false;
  }
  png_init_io(png, stream);
  png_read_info(png, info);
  file.width = png_get_image_width(png, info);
  file.height = png_get_image_height(png, info);
  file.bitDepth = png_get_bit_depth(png, info);
  file.colorType = png_get_color_type(png, info);
  int intent = 0;
  file.sRgb = png_get_sRGB(png, info, &intent) != 0;
  file.dotsPerMetre = png_get_pixels_per_meter(png, info);
  file.pixels.resize(png_get_rowbytes(png, info) * file.height);
  for (std::uint32_t row = 0; row < file.height; ++row) {
    png_read_row(png, file.pixels.data() + row * png_get_rowbytes(png, info), nullptr);
  }
  png_read_end(png, info);
  return true;
}

}  // namespace

PngFile::Rgb PngFile::At(std::size_t x, std::size_t y) const {
  const std::size_t at = 3 * (y * width + x);
  return {pixels.at(at), pixels.at(at + 1), pixels.at(at + 2)};
}

PngFile read_png(const std::filesystem::path& path) {
  PngFile file;
  std::FILE* const stream = std::fopen(path.c_str(), "rbe");
  if (stream == nullptr) {
    return file;
  }
  png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  if (!read_into(file, png, info, stream)) {
    file = {};
  }
  png_destroy_read_struct(&png, &info, nullptr);
  std::fclose(stream);
  return file;
}
