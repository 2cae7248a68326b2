// SPDX-License-Identifier: Apache-2.0
//
// The sharpening of whole pages, with values worked out by hand and against plain arithmetic.
#include "conversion/sharpening.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/unit/conversion/plain_kernels.h"

namespace {

using plain::Bytes;
using Rows = std::vector<plain::Planes>;

/// A page through the sharpener, line by line. Rows lie top row first.
Rows sharpen(std::vector<Bytes> page, int strength) {
  const std::size_t width = page[0].size() / 3;
  Bytes all;
  for (const Bytes& row : page) {
    all.insert(all.end(), row.begin(), row.end());
  }
  const BandRows rows{all.data(), static_cast<std::ptrdiff_t>(3 * width), width, page.size()};
  Sharpener sharpener;
  EXPECT_TRUE(sharpener.reserve(width));
  LineMemory memory;
  EXPECT_TRUE(memory.reserve(3, width));
  const LinePlanes line{memory.line(0), memory.line(1), memory.line(2)};
  Rows sharpened;
  for (std::size_t y = 0; y < page.size(); ++y) {
    sharpener.sharpen(rows, y, strength, line);
    plain::Planes planes;
    for (std::size_t channel = 0; channel < 3; ++channel) {
      planes[channel].assign(line[channel], line[channel] + width);
    }
    sharpened.push_back(planes);
  }
  return sharpened;
}

/// `width` pixels, each of the colour that `picture` gives for its column.
template <typename Picture>
Bytes row_of(std::size_t width, Picture picture) {
  Bytes row;
  for (std::size_t x = 0; x < width; ++x) {
    const std::array<int, 3> colour = picture(x);
    for (const int channel : colour) {
      row.push_back(static_cast<unsigned char>(channel));
    }
  }
  return row;
}

/// Greys 100 up to column 5, 156 from there on.
Bytes edge_row() {
  return row_of(12, [](std::size_t x) {
    const int grey = x < 6 ? 100 : 156;
    return std::array<int, 3>{grey, grey, grey};
  });
}

Bytes grey_row(std::size_t width, int grey) {
  return row_of(width, [grey](std::size_t) { return std::array<int, 3>{grey, grey, grey}; });
}

TEST(Sharpening, EachLevelAddsAnEighth) {
  EXPECT_EQ(sharpening_strength(0), 1);
  EXPECT_EQ(sharpening_strength(1), 2);
  EXPECT_EQ(sharpening_strength(2), 3);
  EXPECT_EQ(sharpening_strength(3), 4);
  EXPECT_EQ(sharpening_strength(4), 5);
  EXPECT_EQ(sharpening_strength(5), 6);
  EXPECT_EQ(sharpening_strength(6), 7);
}

TEST(Sharpening, LevelsBeyondAnEndCountAsThatEnd) {
  EXPECT_EQ(sharpening_strength(-1), 1);
  EXPECT_EQ(sharpening_strength(-32768), 1);
  EXPECT_EQ(sharpening_strength(7), 7);
  EXPECT_EQ(sharpening_strength(32767), 7);
}

TEST(Sharpening, AnEdgeGetsAnOvershootTwoPixelsWideOnEachSide) {
  // On the fine scale 1600 and 2496. Blurred, the four pixels at the edge are 1730, 1926, 2170,
  // 2366: 130 and 326 away from what they were. Less the threshold of 48, half of it is added. The
  // next ones, 32 away, are left alone.
  const plain::Line expected{1600, 1600, 1600, 1600, 1559, 1461,
                             2635, 2537, 2496, 2496, 2496, 2496};
  for (const plain::Planes& row : sharpen(std::vector<Bytes>(7, edge_row()), 4)) {
    EXPECT_EQ(row[0], expected);
    EXPECT_EQ(row[1], expected);
    EXPECT_EQ(row[2], expected);
  }
}

TEST(Sharpening, AnEdgeAcrossTheLinesGetsTheSame) {
  std::vector<Bytes> page(6, grey_row(5, 100));
  page.insert(page.end(), 6, grey_row(5, 156));
  const Rows rows = sharpen(page, 4);
  const plain::Line expected{1600, 1600, 1600, 1600, 1559, 1461,
                             2635, 2537, 2496, 2496, 2496, 2496};
  for (std::size_t y = 0; y < 12; ++y) {
    EXPECT_EQ(rows[y][1], plain::Line(5, expected[y])) << "row " << y;
  }
}

TEST(Sharpening, AllChannelsMoveByTheDifferenceOfTheirLuma) {
  // Only green steps, by 64: luma by 183/256 of 1024, 732.
  const auto colours = [](std::size_t x) { return std::array<int, 3>{200, x < 6 ? 60 : 124, 90}; };
  const plain::Planes row = sharpen({row_of(12, colours)}, 7)[0];
  for (std::size_t x = 0; x < 12; ++x) {
    const int moved = row[0][x] - 16 * 200;
    EXPECT_EQ(row[1][x] - 16 * (x < 6 ? 60 : 124), moved) << "column " << x;
    EXPECT_EQ(row[2][x] - 16 * 90, moved) << "column " << x;
  }
  EXPECT_LT(row[0][5], 16 * 200 - 150);
  EXPECT_GT(row[0][6], 16 * 200 + 150);
}

TEST(Sharpening, FlatFieldsStayExactlyAsTheyAre) {
  for (int value = 0; value < 256; ++value) {
    const auto flat = [value](std::size_t) {
      return std::array<int, 3>{value, 255 - value, value / 2};
    };
    for (const plain::Planes& row : sharpen(std::vector<Bytes>(5, row_of(5, flat)), 7)) {
      ASSERT_EQ(row[0], plain::Line(5, static_cast<std::uint16_t>(16 * value)));
      ASSERT_EQ(row[1], plain::Line(5, static_cast<std::uint16_t>(16 * (255 - value))));
      ASSERT_EQ(row[2], plain::Line(5, static_cast<std::uint16_t>(16 * (value / 2))));
    }
  }
}

TEST(Sharpening, ABlackToWhiteEdgeStaysWithinTheScale) {
  const auto edge = [](std::size_t x) {
    return std::array<int, 3>{x < 6 ? 2 : 253, x < 6 ? 2 : 253, x < 6 ? 2 : 253};
  };
  const plain::Planes row = sharpen({row_of(12, edge)}, 7)[0];
  EXPECT_EQ(row[0][5], 0);
  EXPECT_EQ(row[0][6], 4080);
}

TEST(Sharpening, WhatRunsIntoThePagesEdgeIsSharpenedThereAsInTheMiddle) {
  std::vector<Bytes> page(21, edge_row());
  const Rows rows = sharpen(page, 7);
  EXPECT_EQ(rows.front(), rows[10]);
  EXPECT_EQ(rows.back(), rows[10]);
}

TEST(Sharpening, APixelReachesFourPixelsFar) {
  // NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp): the same numbers in every run
  std::mt19937 generator(4);
  std::vector<Bytes> page;
  for (std::size_t y = 0; y < 19; ++y) {
    page.push_back(row_of(19, [&generator](std::size_t) {
      const int grey = static_cast<int>(generator() % 256);
      return std::array<int, 3>{grey, grey, grey};
    }));
  }
  page[9][27] = page[9][28] = page[9][29] = 0;
  const Rows dark = sharpen(page, 7);
  page[9][27] = page[9][28] = page[9][29] = 255;
  const Rows light = sharpen(page, 7);
  std::size_t changed = 0;
  for (std::size_t y = 0; y < 19; ++y) {
    for (std::size_t x = 0; x < 19; ++x) {
      if (dark[y][0][x] != light[y][0][x]) {
        ++changed;
        EXPECT_TRUE(x >= 5 && x <= 13 && y >= 5 && y <= 13) << "column " << x << ", row " << y;
      }
    }
  }
  EXPECT_GT(changed, 20U);
}

TEST(Sharpening, AfterAnotherReserveAnotherPageBeginsAtItsTop) {
  Bytes bytes = grey_row(5, 90);
  Bytes others = grey_row(3, 200);
  Sharpener sharpener;
  LineMemory memory;
  ASSERT_TRUE(memory.reserve(3, 5));
  const LinePlanes line{memory.line(0), memory.line(1), memory.line(2)};
  ASSERT_TRUE(sharpener.reserve(5));
  sharpener.sharpen({bytes.data(), 15, 5, 1}, 0, 7, line);
  ASSERT_TRUE(sharpener.reserve(3));
  sharpener.sharpen({others.data(), 9, 3, 1}, 0, 7, line);
  EXPECT_EQ(plain::Line(line[0], line[0] + 3), plain::Line(3, 3200));
}

TEST(Sharpening, PagesOfEveryShapeComeOutAsPlainArithmeticHasThem) {
  // NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp): the same numbers in every run
  std::mt19937 generator(5);
  for (const std::size_t width : {1U, 2U, 3U, 4U, 5U, 8U, 9U, 17U, 33U, 100U}) {
    for (const std::size_t height : {1U, 2U, 3U, 4U, 5U, 6U, 9U, 11U}) {
      std::vector<Bytes> page(height, Bytes(3 * width));
      for (Bytes& row : page) {
        for (unsigned char& byte : row) {
          byte = static_cast<unsigned char>(generator() % 256);
        }
      }
      EXPECT_EQ(sharpen(page, 7), plain::sharpen_page(page, 7)) << width << " x " << height;
    }
  }
}

}  // namespace
