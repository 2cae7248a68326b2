// SPDX-License-Identifier: Apache-2.0
// Writes the sample photo that the demonstration prints: make-sample-photo FILE.jpg
#include <cstdio>
#include <vector>

// jpeglib.h uses FILE and size_t without declaring them.
#include <jpeglib.h>

#include "demo/scene.h"
#include "image/file_handle.h"

namespace {

// The dots of a 10x15 print, so that every pixel of the photo is a dot of the sheet.
constexpr int kWidth = 1852;
constexpr int kHeight = 1232;
constexpr int kQuality = 93;
// Points a pixel, each way, so that edges are smooth.
constexpr int kSamples = 2;

Colour pixel_at(int column, int row) {
  Colour sum{};
  for (int i = 0; i < kSamples * kSamples; ++i) {
    const double x = column + (i % kSamples + 0.5) / kSamples;
    const double y = row + (i / kSamples + 0.5) / kSamples;  // NOLINT(bugprone-integer-division)
    const Colour colour = scene_at(x * kSceneWidth / kWidth, y * kSceneHeight / kHeight);
    sum.red += colour.red;
    sum.green += colour.green;
    sum.blue += colour.blue;
  }
  constexpr double count = kSamples * kSamples;
  return {sum.red / count, sum.green / count, sum.blue / count};
}

std::vector<unsigned char> line_at(int row) {
  std::vector<unsigned char> line;
  line.reserve(static_cast<std::size_t>(kWidth) * 3);
  for (int column = 0; column < kWidth; ++column) {
    const Colour colour = pixel_at(column, row);
    line.push_back(screen_level(colour.red));
    line.push_back(screen_level(colour.green));
    line.push_back(screen_level(colour.blue));
  }
  return line;
}

void write_jpeg(std::FILE* file) {
  jpeg_error_mgr errors;
  jpeg_compress_struct jpeg;
  jpeg.err = jpeg_std_error(&errors);  // a write that fails ends the program with a message
  jpeg_create_compress(&jpeg);
  jpeg_stdio_dest(&jpeg, file);
  jpeg.image_width = kWidth;
  jpeg.image_height = kHeight;
  jpeg.input_components = 3;
  jpeg.in_color_space = JCS_RGB;
  jpeg_set_defaults(&jpeg);
  jpeg_set_quality(&jpeg, kQuality, TRUE);
  jpeg_start_compress(&jpeg, TRUE);
  for (int row = 0; row < kHeight; ++row) {
    std::vector<unsigned char> line = line_at(row);
    unsigned char* lines[] = {line.data()};
    jpeg_write_scanlines(&jpeg, lines, 1);
  }
  jpeg_finish_compress(&jpeg);
  jpeg_destroy_compress(&jpeg);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: make-sample-photo FILE.jpg\n");
    return 2;
  }
  const FileHandle file(std::fopen(argv[1], "wb"));
  if (!file) {
    std::perror(argv[1]);
    return 1;
  }
  write_jpeg(file.get());
  return 0;
}
