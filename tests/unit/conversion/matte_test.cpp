// SPDX-License-Identifier: Apache-2.0
//
// The matte texture as an eye would judge it: grain, but no clouds, no repeat, no direction.
#include "conversion/matte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {

constexpr std::size_t kWidth = 512;
constexpr std::size_t kHeight = 400;

using Plane = std::vector<unsigned char>;

Plane make_plane(std::size_t width, std::size_t height) {
  MatteTexture texture;
  EXPECT_TRUE(texture.reserve(width));
  Plane plane(width * height);
  for (std::size_t y = 0; y < height; ++y) {
    texture.next_row(&plane[y * width]);
  }
  return plane;
}

const Plane& plane() {
  static const Plane made = make_plane(kWidth, kHeight);
  return made;
}

double mean_of(const Plane& values) {
  double sum = 0;
  for (const unsigned char value : values) {
    sum += value;
  }
  return sum / static_cast<double>(values.size());
}

double deviation_of(const Plane& values) {
  const double mean = mean_of(values);
  double squares = 0;
  for (const unsigned char value : values) {
    squares += (value - mean) * (value - mean);
  }
  return std::sqrt(squares / static_cast<double>(values.size()));
}

/// How alike the plane is to itself moved by (dx, dy): 1 the same, 0 nothing in common.
double likeness(std::size_t dx, std::size_t dy) {
  const double mean = mean_of(plane());
  double products = 0;
  for (std::size_t y = 0; y + dy < kHeight; ++y) {
    for (std::size_t x = 0; x + dx < kWidth; ++x) {
      products += (plane()[y * kWidth + x] - mean) * (plane()[(y + dy) * kWidth + x + dx] - mean);
    }
  }
  const double deviation = deviation_of(plane());
  return products / (static_cast<double>((kHeight - dy) * (kWidth - dx)) * deviation * deviation);
}

using SixteenDots = std::array<unsigned char, 16>;

SixteenDots dots_at(const unsigned char* first) {
  SixteenDots dots{};
  std::copy_n(first, dots.size(), dots.begin());
  return dots;
}

TEST(Matte, TheTextureIsTheSameEveryTime) {
  EXPECT_EQ(make_plane(64, 48), make_plane(64, 48));
}

TEST(Matte, TheTextureIsFixedDownToItsBytes) {
  EXPECT_EQ(make_plane(8, 2), (Plane{177, 112, 172, 175, 201, 167, 139, 148, 185, 144, 177, 107,
                                     185, 190, 111, 141}));
}

TEST(Matte, ASmallerSheetHasTheTopLeftCornerOfALargerOne) {
  const Plane small = make_plane(100, 50);
  for (std::size_t y = 0; y < 50; ++y) {
    EXPECT_TRUE(std::equal(&small[y * 100], &small[y * 100] + 100, &plane()[y * kWidth]))
        << "row " << y;
  }
}

TEST(Matte, TheOvercoatSwingsAroundItsMiddle) {
  EXPECT_NEAR(mean_of(plane()), kMatteMiddle, 0.1);
  EXPECT_NEAR(deviation_of(plane()), 29.6, 0.5);
}

TEST(Matte, NoDotIsLeftBareAndTheExtremesAreNearlyReached) {
  const auto [lowest, highest] = std::minmax_element(plane().begin(), plane().end());
  EXPECT_GE(int{*lowest}, kMatteLowest);
  EXPECT_LE(int{*lowest}, 80);
  EXPECT_GE(int{*highest}, 238);
  EXPECT_LE(int{*highest}, kMatteHighest);
}

TEST(Matte, EveryRowAndEveryColumnHasGrain) {
  for (std::size_t y = 0; y < kHeight; ++y) {
    EXPECT_GT(deviation_of(Plane(&plane()[y * kWidth], &plane()[y * kWidth] + kWidth)), 24.0)
        << "row " << y;
  }
  for (std::size_t x = 0; x < kWidth; ++x) {
    Plane column;
    for (std::size_t y = 0; y < kHeight; ++y) {
      column.push_back(plane()[y * kWidth + x]);
    }
    EXPECT_GT(deviation_of(column), 24.0) << "column " << x;
  }
}

TEST(Matte, SquaresOfSixteenDotsAreAllAlikeToAnEyeAtArmsLength) {
  // 16 dots are 1.4 mm. Plain noise of this strength would differ by 1.85 from square to square.
  double squares = 0;
  for (std::size_t top = 0; top < kHeight; top += 16) {
    for (std::size_t left = 0; left < kWidth; left += 16) {
      double sum = 0;
      for (std::size_t y = top; y < top + 16; ++y) {
        for (std::size_t x = left; x < left + 16; ++x) {
          sum += plane()[y * kWidth + x] - kMatteMiddle;
        }
      }
      squares += (sum / 256.0) * (sum / 256.0);
    }
  }
  EXPECT_LT(std::sqrt(squares / (25.0 * 32.0)), 0.6);
}

TEST(Matte, NeighboursAreContraryAsFineGrainHasIt) {
  // From the weights: −40/164 beside and below, −12/164 across the corner.
  EXPECT_LT(likeness(1, 0), -0.1);
  EXPECT_LT(likeness(0, 1), -0.1);
}

TEST(Matte, ThePlaneIsLikeItselfMovedByNoDistanceUpTo130Dots) {
  for (std::size_t distance = 3; distance <= 130; ++distance) {
    EXPECT_LT(std::abs(likeness(distance, 0)), 0.02) << distance << " columns";
    EXPECT_LT(std::abs(likeness(0, distance)), 0.02) << distance << " rows";
    EXPECT_LT(std::abs(likeness(distance, distance)), 0.02) << distance << " of both";
  }
}

TEST(Matte, NoEightDotsOfTheFirstRowComeBackInTheWholePlane) {
  const auto begin = plane().begin();
  EXPECT_EQ(std::search(begin + 1, plane().end(), begin, begin + 8), plane().end());
}

TEST(Matte, ALargeSheetDoesNotRepeatItsRowsOrItsColumns) {
  const std::size_t width = 1852;
  const std::size_t height = 2446;
  const Plane sheet = make_plane(width, height);
  std::vector<SixteenDots> starts;
  for (std::size_t y = 0; y < height; ++y) {
    starts.push_back(dots_at(&sheet[y * width]));
  }
  std::sort(starts.begin(), starts.end());
  EXPECT_EQ(std::adjacent_find(starts.begin(), starts.end()), starts.end());
  std::vector<SixteenDots> pieces;
  for (std::size_t x = 0; x + 16 <= width; ++x) {
    pieces.push_back(dots_at(&sheet[x]));
  }
  std::sort(pieces.begin(), pieces.end());
  EXPECT_EQ(std::adjacent_find(pieces.begin(), pieces.end()), pieces.end());
}

TEST(Matte, ASheetOfOneColumnWorks) {
  const Plane column = make_plane(1, 400);
  for (std::size_t y = 0; y < 400; ++y) {
    EXPECT_EQ(column[y], plane()[y * kWidth]);
  }
}

}  // namespace
