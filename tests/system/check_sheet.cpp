// SPDX-License-Identifier: Apache-2.0
// Holds a sheet's PNG against what it must show: check-sheet FILE WIDTH HEIGHT [X Y RRGGBB]...
//
// Says each difference on standard output and ends with status 1 when there is one.
#include <png.h>

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <vector>

namespace {

// What JPEG changes in a flat area, and what the conversion's table and the proof's rounding may,
// of 255: one each.
constexpr int kTolerance = 2;

struct Picture {
  int width = 0;
  int height = 0;
  std::vector<unsigned char> rgb;
};

std::optional<Picture> read_png(const char* name) {
  png_image png{};
  png.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_file(&png, name) == 0) {
    std::printf("%s: %s\n", name, png.message);
    return std::nullopt;
  }
  png.format = PNG_FORMAT_RGB;
  Picture picture;
  picture.width = static_cast<int>(png.width);
  picture.height = static_cast<int>(png.height);
  picture.rgb.resize(PNG_IMAGE_SIZE(png));
  if (png_image_finish_read(&png, nullptr, picture.rgb.data(), 0, nullptr) == 0) {
    std::printf("%s: %s\n", name, png.message);
    return std::nullopt;
  }
  return picture;
}

bool near(long actual, long expected) {
  return std::labs(actual - expected) <= kTolerance;
}

bool shows(const char* name, const Picture& picture, int x, int y, long expected) {
  if (x < 0 || y < 0 || x >= picture.width || y >= picture.height) {
    std::printf("%s: there is no dot at %d, %d\n", name, x, y);
    return false;
  }
  const unsigned char* dot =
      &picture.rgb[(static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) +
                    static_cast<std::size_t>(x)) *
                   3];
  if (near(dot[0], expected >> 16) && near(dot[1], (expected >> 8) & 0xFF) &&
      near(dot[2], expected & 0xFF)) {
    return true;
  }
  std::printf("%s: at %d, %d there is %02x%02x%02x and not %06lx\n", name, x, y, dot[0], dot[1],
              dot[2], static_cast<unsigned long>(expected));
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4 || (argc - 4) % 3 != 0) {
    std::fprintf(stderr, "usage: check-sheet FILE WIDTH HEIGHT [X Y RRGGBB]...\n");
    return 2;
  }
  const std::optional<Picture> picture = read_png(argv[1]);
  if (!picture) {
    return 1;
  }
  bool good = picture->width == std::atoi(argv[2]) && picture->height == std::atoi(argv[3]);
  if (!good) {
    std::printf("%s: %d x %d dots and not %s x %s\n", argv[1], picture->width, picture->height,
                argv[2], argv[3]);
  }
  for (int i = 4; i < argc; i += 3) {
    good = shows(argv[1], *picture, std::atoi(argv[i]), std::atoi(argv[i + 1]),
                 std::strtol(argv[i + 2], nullptr, 16)) &&
           good;
  }
  return good ? 0 : 1;
}
