// SPDX-License-Identifier: Apache-2.0
#include "tools/picture.h"

#include <png.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "language/messages.h"
#include "tools/picture_formats.h"

namespace tools {
namespace {

using language::_;
using language::filled;

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

[[noreturn]] void fail(const std::string& path, const std::string& why) {
  throw std::runtime_error(path + ": " + why);
}

}  // namespace

std::string refuse_size(std::size_t width, std::size_t height) {
  if (width == 0 || height == 0) {
    return _("a picture without pixels");
  }
  if (width > kPixelsMost / height) {
    return filled(_("%1$zu x %2$zu pixels, more than %3$zu"), width, height,
                  std::size_t{kPixelsMost});
  }
  return {};
}

PictureFile read_picture_file(const std::string& path) {
  const File file(std::fopen(path.c_str(), "rbe"));
  if (!file) {
    fail(path, std::generic_category().message(errno));
  }
  const int first = std::fgetc(file.get());
  if (std::ferror(file.get()) != 0) {
    fail(path, std::generic_category().message(errno));
  }
  std::rewind(file.get());
  constexpr int kJpegBegins = 0xFF;
  constexpr int kPngBegins = 0x89;
  if (first != kJpegBegins && first != kPngBegins) {
    fail(path, _("neither a JPEG nor a PNG file"));
  }
  PictureFile result;
  const std::string why =
      first == kJpegBegins ? read_jpeg(file.get(), result) : read_png(file.get(), result);
  if (!why.empty()) {
    fail(path, why);
  }
  return result;
}

Picture read_picture(const std::string& path) {
  return std::move(read_picture_file(path).picture);
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

}  // namespace tools
