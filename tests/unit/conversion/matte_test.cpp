// SPDX-License-Identifier: Apache-2.0
//
// The matte texture's rows: their bytes, their sums and their levels. How even the texture looks is
// tested on a whole sheet (page_matte_test.cpp).
#include "conversion/matte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <vector>

namespace {

constexpr std::size_t kTile = 256;
constexpr std::size_t kPlaneWidth = 600;
constexpr std::size_t kPlaneHeight = 520;

using Plane = std::vector<unsigned char>;

Plane make_plane(std::size_t width, std::size_t height) {
  Plane plane(width * height);
  for (std::size_t y = 0; y < height; ++y) {
    lay_matte_row(y, &plane[y * width], width);
  }
  return plane;
}

const Plane& plane() {
  static const Plane made = make_plane(kPlaneWidth, kPlaneHeight);
  return made;
}

int dot(std::size_t x, std::size_t y) {
  return plane()[y * kPlaneWidth + x];
}

double mean_of(const Plane& values) {
  return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

double deviation_of(const Plane& values) {
  const double mean = mean_of(values);
  double squares = 0;
  for (const unsigned char value : values) {
    squares += (value - mean) * (value - mean);
  }
  return std::sqrt(squares / static_cast<double>(values.size()));
}

TEST(Matte, TheTextureIsFixedDownToItsBytes) {
  EXPECT_EQ(make_plane(8, 2),
            (Plane{205, 169, 94, 129, 180, 219, 254, 145, 117, 148, 247, 210, 156, 86, 102, 206}));
}

TEST(Matte, TheWholeTileIsFixed) {
  // FNV-1a, 64 bits: each compiler and each system must draw the same tile.
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const unsigned char value : make_plane(kTile, kTile)) {
    hash = (hash ^ value) * 0x100000001B3U;
  }
  EXPECT_EQ(hash, 0x26AE28ADC5207DB9U);
}

TEST(Matte, RowsOfEachWidthBeginAlikeAndLeaveWhatIsBesideThemAlone) {
  for (std::size_t width = 0; width <= kPlaneWidth; ++width) {
    Plane row(width + 2, 1);
    lay_matte_row(3, &row[1], width);
    EXPECT_EQ(row.front(), 1) << "width " << width;
    EXPECT_EQ(row.back(), 1) << "width " << width;
    ASSERT_TRUE(std::equal(&row[1], &row[1] + width, &plane()[3 * kPlaneWidth]))
        << "width " << width;
  }
}

TEST(Matte, ARowGivesTheSumOfItsBytes) {
  for (std::size_t width = 0; width <= kPlaneWidth; ++width) {
    Plane row(width);
    const std::uint64_t sum = lay_matte_row(width, row.data(), width);
    ASSERT_EQ(sum, std::accumulate(row.begin(), row.end(), std::uint64_t{0})) << "width " << width;
  }
}

TEST(Matte, TheTextureComesBackAfter256ColumnsAndAfter256Rows) {
  for (std::size_t y = 0; y < kTile; ++y) {
    for (std::size_t x = 0; x < kTile; ++x) {
      ASSERT_EQ(dot(x + kTile, y), dot(x, y)) << x << ", " << y;
      ASSERT_EQ(dot(x, y + kTile), dot(x, y)) << x << ", " << y;
    }
  }
}

TEST(Matte, TheFarthestRowThatCanBeCountedIsALastRowOfTheTile) {
  Plane row(kPlaneWidth);
  lay_matte_row(static_cast<std::size_t>(-1), row.data(), kPlaneWidth);
  EXPECT_TRUE(std::equal(row.begin(), row.end(), &plane()[255 * kPlaneWidth]));
}

TEST(Matte, EachLevelFrom63To255ComesEquallyOftenAndNoOther) {
  std::array<int, 256> dots{};
  for (const unsigned char value : make_plane(kTile, kTile)) {
    ++dots[value];
  }
  for (std::size_t level = 0; level < 63; ++level) {
    EXPECT_EQ(dots[level], 0) << "level " << level;
  }
  for (std::size_t level = 63; level < 256; ++level) {
    // 65536 dots over 193 levels are 339.6 each.
    EXPECT_GE(dots[level], 339) << "level " << level;
    EXPECT_LE(dots[level], 340) << "level " << level;
  }
}

TEST(Matte, TheOvercoatSwingsAroundItsMiddle) {
  EXPECT_NEAR(mean_of(plane()), 159.0, 0.1);
  EXPECT_NEAR(deviation_of(plane()), 55.7, 0.1);
}

}  // namespace
