// SPDX-License-Identifier: Apache-2.0
// Tells which photo a sheet shows, of photos that are one grey each: sheet-grey FILE...
//
// Prints the grey level at the middle of each sheet, one a line. A sheet that is not that grey from
// edge to edge is not the photo it should be, and gives the word "mixed".
#include <png.h>

#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

// What the proof's rounding may change.
constexpr int kTolerance = 2;

bool print_grey(const char* name) {
  png_image png{};
  png.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_file(&png, name) == 0) {
    std::fprintf(stderr, "sheet-grey: %s: %s\n", name, png.message);
    return false;
  }
  png.format = PNG_FORMAT_RGB;
  std::vector<unsigned char> samples(PNG_IMAGE_SIZE(png));
  if (png_image_finish_read(&png, nullptr, samples.data(), 0, nullptr) == 0) {
    std::fprintf(stderr, "sheet-grey: %s: %s\n", name, png.message);
    return false;
  }
  const int grey = samples[samples.size() / 2];
  for (const unsigned char sample : samples) {
    if (std::abs(sample - grey) > kTolerance) {
      std::puts("mixed");
      return true;
    }
  }
  std::printf("%d\n", grey);
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  bool good = argc > 1;
  for (int i = 1; i < argc; ++i) {
    good = print_grey(argv[i]) && good;
  }
  return good ? 0 : 1;
}
