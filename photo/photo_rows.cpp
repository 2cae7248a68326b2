// SPDX-License-Identifier: Apache-2.0
#include "photo/photo_rows.h"

#include "language/messages.h"

namespace photo {

std::size_t bytes_per_pixel(Samples samples) {
  constexpr std::size_t kInks = 4;
  switch (samples) {
    case Samples::Grey:
      return 1;
    case Samples::Rgb:
      return 3;
    default:
      return kInks;
  }
}

using language::_;

std::string refuse_size(std::size_t width, std::size_t height) {
  if (width == 0 || height == 0) {
    return "it has no pixels";
  }
  if (width > kSideMost || height > kSideMost || width > kPixelsMost / height) {
    return language::filled(_("it claims to have %1$zu x %2$zu pixels, more than any photo"), width,
                            height);
  }
  return {};
}

std::unique_ptr<PhotoRows> find_reader(std::FILE* file) {
  constexpr int kJpegBegins = 0xFF;
  constexpr int kPngBegins = 0x89;
  std::rewind(file);
  const int first = std::fgetc(file);
  std::rewind(file);
  if (first == kJpegBegins) {
    return read_jpeg_rows(file);
  }
  return first == kPngBegins ? read_png_rows(file) : nullptr;
}

}  // namespace photo
