// SPDX-License-Identifier: Apache-2.0
#include <png.h>

#include <array>
#include <csetjmp>
#include <memory>

#include "tools/picture_formats.h"

namespace tools {
namespace {

std::string read_pixels(std::FILE* file, Picture& picture) {
  png_image png{};
  png.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_stdio(&png, file) == 0) {
    return png.message;
  }
  png.format = PNG_FORMAT_RGB;
  const std::unique_ptr<png_image, decltype(&png_image_free)> freed(&png, png_image_free);
  if (std::string why = refuse_size(png.width, png.height); !why.empty()) {
    return why;
  }
  picture = Picture(png.width, png.height);
  // What is transparent lies on white paper.
  const png_color paper = {0xFF, 0xFF, 0xFF};
  if (png_image_finish_read(&png, &paper, picture.rgb.data(), 0, nullptr) == 0) {
    return png.message;
  }
  return {};
}

void ignore_warning(png_structp /*png*/, png_const_charp /*text*/) {}

// libpng leaves by a jump at whatever goes wrong here; the pixels are read already, so that then
// the file just says nothing more of itself.
void read_what_it_says(png_structp png, png_infop info, std::FILE* file, PictureFile& result) {
  if (setjmp(png_jmpbuf(png)) != 0) {  // NOLINT(cert-err52-cpp)
    return;
  }
  png_init_io(png, file);
  png_read_info(png, info);
  // The Exif data's density is passed over: the printing system looks for it in JPEG files only.
  constexpr double kMetresPerInch = 0.0254;
  png_uint_32 across = 0;
  png_uint_32 down = 0;
  int unit = PNG_RESOLUTION_UNKNOWN;
  png_get_pHYs(png, info, &across, &down, &unit);
  if (unit == PNG_RESOLUTION_METER) {
    result.density = {static_cast<std::uint32_t>(across * kMetresPerInch),
                      static_cast<std::uint32_t>(down * kMetresPerInch)};
  }
  png_charp name = nullptr;
  int compression = 0;
  png_bytep profile = nullptr;
  png_uint_32 profileLength = 0;
  if (png_get_iCCP(png, info, &name, &compression, &profile, &profileLength) != 0) {
    result.profile.assign(profile, profile + profileLength);
  }
  png_bytep exif = nullptr;
  png_uint_32 exifLength = 0;
  if (png_get_eXIf_1(png, info, &exifLength, &exif) != 0) {
    result.exif.assign(exif, exif + exifLength);
  }
}

}  // namespace

std::string read_png(std::FILE* file, PictureFile& result) {
  std::string why = read_pixels(file, result.picture);
  if (!why.empty()) {
    return why;
  }
  std::rewind(file);
  png_structp png = png_create_read_struct(
      PNG_LIBPNG_VER_STRING, nullptr,
      [](png_structp failed, png_const_charp /*text*/) { png_longjmp(failed, 1); }, ignore_warning);
  png_infop info = png != nullptr ? png_create_info_struct(png) : nullptr;
  if (info != nullptr) {
    read_what_it_says(png, info, file, result);
  }
  png_destroy_read_struct(&png, &info, nullptr);
  return {};
}

}  // namespace tools
