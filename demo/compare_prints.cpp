// SPDX-License-Identifier: Apache-2.0
// Puts a photo and its print beside each other, to be looked at:
//
//   compare-prints PHOTO SHEET.png OUT.png WIDTH HEIGHT LEFT TOP
//
// The photo, JPEG or PNG, is on the left: on white paper of the sheet's size, in the area given in
// dots, turned and cropped as the printing system does for pictures that fill it. Both are sRGB.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>

#include "tools/picture.h"

namespace {

using tools::Picture;

constexpr std::size_t kGap = 40;
constexpr unsigned char kGapGrey = 0x80;

struct Area {
  std::size_t width, height, left, top;
};

// A quarter to the left: the top right corner comes to the top left.
Picture turned(const Picture& picture) {
  Picture out(picture.height, picture.width);
  for (std::size_t y = 0; y < out.height; ++y) {
    for (std::size_t x = 0; x < out.width; ++x) {
      std::copy_n(picture.At(out.height - 1 - y, x), 3, out.At(x, y));
    }
  }
  return out;
}

// The middle of the picture in the area's shape.
Area crop_to_shape(const Picture& picture, const Area& shape) {
  const std::size_t width = std::min(
      picture.width, std::max<std::size_t>(1, picture.height * shape.width / shape.height));
  const std::size_t height = std::min(
      picture.height, std::max<std::size_t>(1, picture.width * shape.height / shape.width));
  return {width, height, (picture.width - width) / 2, (picture.height - height) / 2};
}

// The mean of the dots that come to lie on one; the nearest when the picture is enlarged.
void scale_dot(const Picture& from, const Area& crop, const Area& to, std::size_t x, std::size_t y,
               unsigned char* dot) {
  const std::size_t left = x * crop.width / to.width;
  const std::size_t top = y * crop.height / to.height;
  const std::size_t right = std::max(left + 1, (x + 1) * crop.width / to.width);
  const std::size_t bottom = std::max(top + 1, (y + 1) * crop.height / to.height);
  for (std::size_t channel = 0; channel < 3; ++channel) {
    std::size_t sum = 0;
    for (std::size_t row = top; row < bottom; ++row) {
      for (std::size_t column = left; column < right; ++column) {
        sum += from.At(crop.left + column, crop.top + row)[channel];
      }
    }
    const std::size_t count = (right - left) * (bottom - top);
    dot[channel] = static_cast<unsigned char>((sum + count / 2) / count);
  }
}

void place_photo(const Picture& photo, const Area& area, Picture& out) {
  const bool turn = photo.width != photo.height && area.width != area.height &&
                    (photo.width > photo.height) != (area.width > area.height);
  const Picture upright = turn ? turned(photo) : photo;
  const Area crop = crop_to_shape(upright, area);
  for (std::size_t y = 0; y < area.height; ++y) {
    for (std::size_t x = 0; x < area.width; ++x) {
      scale_dot(upright, crop, area, x, y, out.At(area.left + x, area.top + y));
    }
  }
}

Picture side_by_side(const Picture& photo, const Picture& sheet, const Area& area) {
  Picture out(2 * sheet.width + kGap, sheet.height);
  place_photo(photo, area, out);
  for (std::size_t y = 0; y < sheet.height; ++y) {
    std::fill_n(out.At(sheet.width, y), 3 * kGap, kGapGrey);
    std::copy_n(sheet.At(0, y), 3 * sheet.width, out.At(sheet.width + kGap, y));
  }
  return out;
}

// The area that the command line names.
Area area_in(const Picture& sheet, char** numbers) {
  const Area area = {std::strtoul(numbers[0], nullptr, 10), std::strtoul(numbers[1], nullptr, 10),
                     std::strtoul(numbers[2], nullptr, 10), std::strtoul(numbers[3], nullptr, 10)};
  if (area.width == 0 || area.height == 0 || area.left >= sheet.width || area.top >= sheet.height ||
      area.width > sheet.width - area.left || area.height > sheet.height - area.top) {
    throw std::runtime_error("the sheet has no such area");
  }
  return area;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 8) {
    std::fprintf(stderr, "usage: compare-prints PHOTO SHEET.png OUT.png WIDTH HEIGHT LEFT TOP\n");
    return 2;
  }
  try {
    const Picture sheet = tools::read_picture(argv[2]);
    const Area area = area_in(sheet, argv + 4);
    tools::write_picture(argv[3], side_by_side(tools::read_picture(argv[1]), sheet, area));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "compare-prints: %s\n", error.what());
    return 1;
  }
  return 0;
}
