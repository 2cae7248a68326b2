// SPDX-License-Identifier: Apache-2.0
//
// A picture in memory, read from JPEG or PNG with what its file says of itself, and written as PNG.
#ifndef TQR7_TOOLS_PICTURE_H
#define TQR7_TOOLS_PICTURE_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tools {

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

/// Whole pixels to the inch; 0 where the file does not say.
struct PixelDensity {
  bool IsKnown() const { return across > 0 && down > 0; }

  std::uint32_t across = 0;
  std::uint32_t down = 0;
};

/// A picture and the state of its file.
struct PictureFile {
  Picture picture;
  std::string damage;  ///< what is wrong with a file that could be read all the same
};

/// Reads a JPEG or PNG file. Throws std::runtime_error, which says why it cannot be read: what
/// claims more than a hundred million pixels is refused before memory is taken for it.
PictureFile read_picture_file(const std::string& path);

/// The same without the state of the file.
Picture read_picture(const std::string& path);

/// Writes a PNG file that says that it is sRGB. Throws std::runtime_error.
void write_picture(const std::string& path, const Picture& picture);

}  // namespace tools

#endif  // TQR7_TOOLS_PICTURE_H
