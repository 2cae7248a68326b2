// SPDX-License-Identifier: Apache-2.0
//
// A picture in memory, read from JPEG or PNG and written as PNG.
#ifndef TQR7_DEMO_PICTURE_H
#define TQR7_DEMO_PICTURE_H

#include <cstddef>
#include <string>
#include <vector>

/// 8-bit RGB, rows from the top, white at first.
struct Picture {
  Picture() = default;
  Picture(std::size_t pictureWidth, std::size_t pictureHeight)
      : width(pictureWidth), height(pictureHeight), rgb(3 * pictureWidth * pictureHeight, 0xFF) {}

  unsigned char* At(std::size_t x, std::size_t y) { return &rgb[3 * (y * width + x)]; }
  const unsigned char* At(std::size_t x, std::size_t y) const { return &rgb[3 * (y * width + x)]; }

  std::size_t width = 0;
  std::size_t height = 0;
  std::vector<unsigned char> rgb;
};

/// Reads a JPEG or PNG file. Throws std::runtime_error, which says why it cannot be read; of a
/// broken JPEG libjpeg says it, and ends the program with status 1.
Picture read_picture(const std::string& path);

/// Writes a PNG file that says that it is sRGB. Throws std::runtime_error.
void write_picture(const std::string& path, const Picture& picture);

#endif  // TQR7_DEMO_PICTURE_H
