// SPDX-License-Identifier: Apache-2.0
#include <png.h>

#include <cstdint>
#include <stdexcept>
#include <vector>

#include "tests/fuzz/seeds.h"
#include "tests/unit/photo_files.h"
#include "tests/unit/profile_maker.h"

namespace fuzz {
namespace {

// A ramp in the format, PNG_FORMAT_RGBA for instance.
std::string png_file(png_uint_32 format) {
  constexpr png_uint_32 kSide = 16;
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = kSide;
  image.height = kSide;
  image.format = format;
  std::vector<std::uint8_t> pixels(PNG_IMAGE_SIZE(image));
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    pixels[i] = static_cast<std::uint8_t>(i);
  }
  png_alloc_size_t length = 0;
  if (png_image_write_get_memory_size(image, length, 0, pixels.data(), 0, nullptr) == 0) {
    throw std::runtime_error(image.message);
  }
  std::string file(length, '\0');
  if (png_image_write_to_memory(&image, file.data(), &length, 0, pixels.data(), 0, nullptr) == 0) {
    throw std::runtime_error(image.message);
  }
  return file;
}

}  // namespace

// Two bytes of the job's wishes stand before the file.
Seeds photo_seeds() {
  const std::string fit(2, '\0');
  const std::string fill("\x01\x64");
  const std::string jpeg = jpeg_file(16, 16);
  return {{"jpeg", fit + jpeg},
          {"jpeg-filled", fill + jpeg},
          {"jpeg-turned", fill + jpeg_file(24, 16, exif_data(6))},
          {"jpeg-with-a-profile", fit + jpeg_file(16, 16, {}, matrix_profile({}))},
          {"jpeg-in-steps", fit + jpeg_in_steps(16, 16)},
          {"jpeg-cut", fit + jpeg.substr(0, jpeg.size() / 2)},
          {"png", fit + png_file(PNG_FORMAT_RGB)},
          {"png-grey", fit + png_file(PNG_FORMAT_GRAY)},
          {"png-transparent", fill + png_file(PNG_FORMAT_RGBA)},
          {"png-16-bit", fit + png_file(PNG_FORMAT_LINEAR_RGB)},
          {"png-without-pixels", fit + png_claim(16, 16)},
          {"png-in-steps", fit + png_claim(16, 16, true)},
          {"no-photo", fit + "hello"}};
}

}  // namespace fuzz
