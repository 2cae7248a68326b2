// SPDX-License-Identifier: Apache-2.0
#include <png.h>

#include <memory>

#include "tools/picture_formats.h"

namespace tools {

std::string read_png(std::FILE* file, PictureFile& result) {
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
  Picture& picture = result.picture;
  picture = Picture(png.width, png.height);
  // What is transparent lies on white paper.
  const png_color paper = {0xFF, 0xFF, 0xFF};
  if (png_image_finish_read(&png, &paper, picture.rgb.data(), 0, nullptr) == 0) {
    return png.message;
  }
  return {};
}

}  // namespace tools
