// SPDX-License-Identifier: Apache-2.0
#include "demo/picture.h"

#include <png.h>

#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>

#include <jpeglib.h>

namespace {

// A hundred megapixels, more than cameras have: what claims to be larger is not read.
constexpr std::size_t kPixelsMost = 100'000'000;

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

[[noreturn]] void fail(const std::string& path, const std::string& why) {
  throw std::runtime_error(path + ": " + why);
}

Picture picture_of(const std::string& path, std::size_t width, std::size_t height) {
  if (width == 0 || height == 0 || width > kPixelsMost / height) {
    fail(path, "too large a picture, or none");
  }
  return {width, height};
}

// What is wrong with a JPEG libjpeg says itself, and ends the program with status 1.
Picture read_jpeg(const std::string& path, std::FILE* file) {
  jpeg_error_mgr errors;
  jpeg_decompress_struct jpeg;
  jpeg.err = jpeg_std_error(&errors);
  jpeg_create_decompress(&jpeg);
  const std::unique_ptr<jpeg_decompress_struct, decltype(&jpeg_destroy_decompress)> destroyed(
      &jpeg, jpeg_destroy_decompress);
  jpeg_stdio_src(&jpeg, file);
  jpeg_read_header(&jpeg, TRUE);
  jpeg.out_color_space = JCS_RGB;
  jpeg_start_decompress(&jpeg);
  Picture picture = picture_of(path, jpeg.output_width, jpeg.output_height);
  while (jpeg.output_scanline < jpeg.output_height) {
    std::array<unsigned char*, 1> rows = {picture.At(0, jpeg.output_scanline)};
    jpeg_read_scanlines(&jpeg, rows.data(), 1);
  }
  jpeg_finish_decompress(&jpeg);
  return picture;
}

Picture read_png(const std::string& path, std::FILE* file) {
  png_image png{};
  png.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_stdio(&png, file) == 0) {
    fail(path, png.message);
  }
  png.format = PNG_FORMAT_RGB;
  const std::unique_ptr<png_image, decltype(&png_image_free)> freed(&png, png_image_free);
  Picture picture = picture_of(path, png.width, png.height);
  // What is transparent lies on white paper.
  const png_color paper = {0xFF, 0xFF, 0xFF};
  if (png_image_finish_read(&png, &paper, picture.rgb.data(), 0, nullptr) == 0) {
    fail(path, png.message);
  }
  return picture;
}

}  // namespace

Picture read_picture(const std::string& path) {
  const File file(std::fopen(path.c_str(), "rb"));
  if (!file) {
    fail(path, "cannot be read");
  }
  const int first = std::fgetc(file.get());
  std::rewind(file.get());
  constexpr int kJpegBegins = 0xFF;
  return first == kJpegBegins ? read_jpeg(path, file.get()) : read_png(path, file.get());
}

void write_picture(const std::string& path, const Picture& picture) {
  png_image png{};
  png.version = PNG_IMAGE_VERSION;
  png.width = static_cast<png_uint_32>(picture.width);
  png.height = static_cast<png_uint_32>(picture.height);
  png.format = PNG_FORMAT_RGB;
  if (png_image_write_to_file(&png, path.c_str(), 0, picture.rgb.data(), 0, nullptr) == 0) {
    fail(path, png.message);
  }
}
