// SPDX-License-Identifier: Apache-2.0
//
// A picture in memory: how it is turned and mirrored by Exif's eight orientations, and written as
// PNG.
#ifndef TQR7_PHOTO_PICTURE_H
#define TQR7_PHOTO_PICTURE_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace photo {

/// 8-bit RGB, rows from the top, white at first.
struct Picture {
  Picture() = default;
  Picture(std::size_t pictureWidth, std::size_t pictureHeight)
      : width(pictureWidth), height(pictureHeight), rgb(3 * pictureWidth * pictureHeight, 0xFF) {}

  std::uint8_t* At(std::size_t x, std::size_t y) { return &rgb[3 * (y * width + x)]; }
  const std::uint8_t* At(std::size_t x, std::size_t y) const { return &rgb[3 * (y * width + x)]; }

  std::size_t width = 0;
  std::size_t height = 0;
  std::vector<std::uint8_t> rgb;
};

/// A part of a picture in its pixels, which need not be whole ones.
struct PictureArea {
  double left;
  double top;
  double width;
  double height;
};

/// Whether width and height are exchanged when a picture of this orientation is turned upright.
constexpr bool swaps_sides(int orientation) {
  constexpr int kFirstSwapped = 5;
  return orientation >= kFirstSwapped;
}

/// The orientation that turns a picture back.
constexpr int opposite(int orientation) {
  constexpr int kQuarterRight = 6;
  constexpr int kQuarterLeft = 8;
  return orientation == kQuarterRight  ? kQuarterLeft
         : orientation == kQuarterLeft ? kQuarterRight
                                       : orientation;
}

/// Returns the picture upright; `orientation`, 1 to 8, says how it is turned now.
Picture turned(const Picture& picture, int orientation);

/// Returns where a part of the upright picture is in the file, whose picture has width x height
/// pixels and this orientation.
PictureArea area_in_file(const PictureArea& upright, std::size_t width, std::size_t height,
                         int orientation);

/// Exchanges left and right.
void mirror(Picture& picture);

/// Writes a PNG file that says that it is sRGB. Returns why it cannot be written, or nothing.
std::string write_picture(const std::string& path, const Picture& picture);

}  // namespace photo

#endif  // TQR7_PHOTO_PICTURE_H
