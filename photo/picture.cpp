// SPDX-License-Identifier: Apache-2.0
#include "photo/picture.h"

#include <png.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace photo {
namespace {

constexpr std::size_t kColours = 3;

// How each orientation leads from a place in the upright picture to the same place in the file:
// first across and down are exchanged, then counted from the other end.
struct Way {
  bool swapped;
  bool fromRight;   ///< of the file's picture
  bool fromBottom;  ///< the same
};

constexpr std::array<Way, 9> kWays = {{{false, false, false},
                                       {false, false, false},
                                       {false, true, false},
                                       {false, true, true},
                                       {false, false, true},
                                       {true, false, false},
                                       {true, false, true},
                                       {true, true, true},
                                       {true, true, false}}};

}  // namespace

Picture turned(const Picture& picture, int orientation) {
  const Way& way = kWays.at(static_cast<std::size_t>(orientation));
  Picture upright(way.swapped ? picture.height : picture.width,
                  way.swapped ? picture.width : picture.height);
  for (std::size_t y = 0; y < upright.height; ++y) {
    for (std::size_t x = 0; x < upright.width; ++x) {
      std::size_t column = way.swapped ? y : x;
      std::size_t row = way.swapped ? x : y;
      column = way.fromRight ? picture.width - 1 - column : column;
      row = way.fromBottom ? picture.height - 1 - row : row;
      std::memcpy(upright.At(x, y), picture.At(column, row), kColours);
    }
  }
  return upright;
}

PictureArea area_in_file(const PictureArea& upright, std::size_t width, std::size_t height,
                         int orientation) {
  const Way& way = kWays.at(static_cast<std::size_t>(orientation));
  PictureArea area = upright;
  if (way.swapped) {
    std::swap(area.left, area.top);
    std::swap(area.width, area.height);
  }
  if (way.fromRight) {
    area.left = static_cast<double>(width) - area.left - area.width;
  }
  if (way.fromBottom) {
    area.top = static_cast<double>(height) - area.top - area.height;
  }
  return area;
}

void mirror(Picture& picture) {
  for (std::size_t y = 0; y < picture.height; ++y) {
    for (std::size_t left = 0, right = picture.width - 1; left < right; ++left, --right) {
      std::swap_ranges(picture.At(left, y), picture.At(left, y) + kColours, picture.At(right, y));
    }
  }
}

std::string write_picture(const std::string& path, const Picture& picture) {
  png_image png{};
  png.version = PNG_IMAGE_VERSION;
  png.width = static_cast<png_uint_32>(picture.width);
  png.height = static_cast<png_uint_32>(picture.height);
  png.format = PNG_FORMAT_RGB;
  const int written =
      png_image_write_to_file(&png, path.c_str(), 0, picture.rgb.data(), 0, nullptr);
  return written != 0 ? "" : png.message;
}

}  // namespace photo
