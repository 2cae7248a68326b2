// SPDX-License-Identifier: Apache-2.0
//
// Pictures turned by the eight orientations.
#include "photo/picture.h"

#include <gmock/gmock.h>

#include <string>

#include "tests/unit/png_file.h"
#include "tests/unit/temp_file.h"

namespace photo {
namespace {

// A letter a pixel, rows parted by a stroke.
Picture picture_of(const std::string& letters, std::size_t width) {
  std::string pixels;
  for (const char letter : letters) {
    pixels += letter == '/' ? "" : std::string(1, letter);
  }
  Picture picture(width, pixels.size() / width);
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    picture.At(i % width, i / width)[0] = static_cast<unsigned char>(pixels[i]);
    picture.At(i % width, i / width)[2] = static_cast<unsigned char>(pixels[i]);
  }
  return picture;
}

std::string letters_of(const Picture& picture) {
  std::string letters;
  for (std::size_t y = 0; y < picture.height; ++y) {
    letters += y > 0 ? "/" : "";
    for (std::size_t x = 0; x < picture.width; ++x) {
      const unsigned char* const rgb = picture.At(x, y);
      letters += rgb[0] == rgb[2] ? static_cast<char>(rgb[0]) : '?';
    }
  }
  return letters;
}

TEST(PictureTurn, ShowsEachOrientationUpright) {
  EXPECT_EQ(letters_of(turned(picture_of("abc/def", 3), 1)), "abc/def");
  EXPECT_EQ(letters_of(turned(picture_of("cba/fed", 3), 2)), "abc/def");
  EXPECT_EQ(letters_of(turned(picture_of("fed/cba", 3), 3)), "abc/def");
  EXPECT_EQ(letters_of(turned(picture_of("def/abc", 3), 4)), "abc/def");
  EXPECT_EQ(letters_of(turned(picture_of("ad/be/cf", 2), 5)), "abc/def");
  EXPECT_EQ(letters_of(turned(picture_of("cf/be/ad", 2), 6)), "abc/def");
  EXPECT_EQ(letters_of(turned(picture_of("fc/eb/da", 2), 7)), "abc/def");
  EXPECT_EQ(letters_of(turned(picture_of("da/eb/fc", 2), 8)), "abc/def");
}

TEST(PictureTurn, BringsTheTopRightCornerToTheTopLeftWithOrientation8) {
  EXPECT_EQ(letters_of(turned(picture_of("abc/def", 3), 8)), "cf/be/ad");
}

// The upper left pixel of a picture of 3 x 2, as it is seen.
void expect_upper_left(int orientation, std::size_t width, std::size_t height, double left,
                       double top) {
  const PictureArea area = area_in_file({0, 0, 1, 1}, width, height, orientation);
  EXPECT_EQ(area.left, left) << orientation;
  EXPECT_EQ(area.top, top) << orientation;
  EXPECT_EQ(area.width, 1) << orientation;
  EXPECT_EQ(area.height, 1) << orientation;
}

TEST(PictureTurn, FindsTheUpperLeftPixelInTheFile) {
  expect_upper_left(1, 3, 2, 0, 0);
  expect_upper_left(2, 3, 2, 2, 0);
  expect_upper_left(3, 3, 2, 2, 1);
  expect_upper_left(4, 3, 2, 0, 1);
  expect_upper_left(5, 2, 3, 0, 0);
  expect_upper_left(6, 2, 3, 0, 2);
  expect_upper_left(7, 2, 3, 1, 2);
  expect_upper_left(8, 2, 3, 1, 0);
}

TEST(PictureTurn, FindsAnAreaThatLiesAcrossInTheFile) {
  const PictureArea area = area_in_file({1, 0.5, 2, 1}, 2, 3, 6);
  EXPECT_EQ(area.left, 0.5);
  EXPECT_EQ(area.top, 0);
  EXPECT_EQ(area.width, 1);
  EXPECT_EQ(area.height, 2);
}

TEST(PictureTurn, MirrorsRowsOfAnyLength) {
  Picture even = picture_of("abcd/efgh", 4);
  mirror(even);
  EXPECT_EQ(letters_of(even), "dcba/hgfe");
  Picture odd = picture_of("abc", 3);
  mirror(odd);
  EXPECT_EQ(letters_of(odd), "cba");
}

TEST(WrittenPicture, IsAPngOfTheSamePixels) {
  const TempFolder folder;
  ASSERT_EQ(write_picture(folder / "p.png", picture_of("abc/def", 3)), "");
  const PngFile read = read_png(folder / "p.png");
  EXPECT_EQ(read.width, 3U);
  EXPECT_EQ(read.height, 2U);
  EXPECT_EQ(read.At(2, 1), (PngFile::Rgb{'f', 255, 'f'}));
}

TEST(WrittenPicture, SaysWhyThereIsNone) {
  EXPECT_EQ(write_picture("/nonexistent/p.png", picture_of("a", 1)), "No such file or directory");
}

}  // namespace
}  // namespace photo
