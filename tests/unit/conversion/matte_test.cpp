// SPDX-License-Identifier: Apache-2.0
//
// The matte texture's rows: their bytes, their sums, and how evenly the overcoat is spread.
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

Plane column_of(std::size_t x) {
  Plane column;
  for (std::size_t y = 0; y < kPlaneHeight; ++y) {
    column.push_back(plane()[y * kPlaneWidth + x]);
  }
  return column;
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

/// The root mean square of the differences between column x of the tile and the next.
double step_to_the_next_column(std::size_t x) {
  double squares = 0;
  for (std::size_t y = 0; y < kTile; ++y) {
    squares += (dot(x + 1, y) - dot(x, y)) * (dot(x + 1, y) - dot(x, y));
  }
  return std::sqrt(squares / static_cast<double>(kTile));
}

double step_to_the_next_row(std::size_t y) {
  double squares = 0;
  for (std::size_t x = 0; x < kTile; ++x) {
    squares += (dot(x, y + 1) - dot(x, y)) * (dot(x, y + 1) - dot(x, y));
  }
  return std::sqrt(squares / static_cast<double>(kTile));
}

/// How far the mean of a square of 16 × 16 dots lies from the middle.
double cloud_at(std::size_t left, std::size_t top) {
  double sum = 0;
  for (std::size_t y = top; y < top + 16; ++y) {
    for (std::size_t x = left; x < left + 16; ++x) {
      sum += dot(x, y) - kMatteMiddle;
    }
  }
  return sum / 256.0;
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

TEST(Matte, EveryRowAndEveryColumnHasGrain) {
  for (std::size_t y = 0; y < kPlaneHeight; ++y) {
    EXPECT_GT(
        deviation_of(Plane(&plane()[y * kPlaneWidth], &plane()[y * kPlaneWidth] + kPlaneWidth)),
        50.0)
        << "row " << y;
  }
  for (std::size_t x = 0; x < kPlaneWidth; ++x) {
    EXPECT_GT(deviation_of(column_of(x)), 50.0) << "column " << x;
  }
}

TEST(Matte, SquaresOfSixteenDotsAreAllAlikeToAnEyeAtArmsLength) {
  // 16 dots are 1.4 mm. Plain noise of this strength would differ by 3.5 from square to square.
  double squares = 0;
  for (std::size_t top = 0; top < 512; top += 16) {
    for (std::size_t left = 0; left < 592; left += 16) {
      squares += cloud_at(left, top) * cloud_at(left, top);
    }
  }
  EXPECT_LT(std::sqrt(squares / (32.0 * 37.0)), 0.8);
}

TEST(Matte, SquaresAcrossASeamAreNoDarkerAndNoLighterThanOthers) {
  double acrossColumns = 0;
  double acrossRows = 0;
  for (std::size_t at = 0; at < kTile; at += 2) {
    acrossColumns += cloud_at(kTile - 8, at) * cloud_at(kTile - 8, at);
    acrossRows += cloud_at(at, kTile - 8) * cloud_at(at, kTile - 8);
  }
  EXPECT_LT(std::sqrt(acrossColumns / 128), 0.85);
  EXPECT_LT(std::sqrt(acrossRows / 128), 0.85);
}

TEST(Matte, TheStepAcrossASeamIsAsLargeAsAnyOther) {
  // Dots that know nothing of each other would differ by 78.8; here neighbours are contrary.
  for (std::size_t at = 0; at < kTile - 1; ++at) {
    EXPECT_NEAR(step_to_the_next_column(at), 88.9, 9.5) << "column " << at;
    EXPECT_NEAR(step_to_the_next_row(at), 88.9, 9.5) << "row " << at;
  }
  EXPECT_NEAR(step_to_the_next_column(kTile - 1), 88.9, 3.0);
  EXPECT_NEAR(step_to_the_next_row(kTile - 1), 88.9, 3.0);
}

}  // namespace
