// SPDX-License-Identifier: Apache-2.0
//
// The ranks that the void-and-cluster method gives: each once, and evenly spread up to any of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "conversion/blue_noise/void_and_cluster.h"

namespace {

constexpr std::size_t kSide = 40;

const std::vector<std::uint32_t>& ranks() {
  static const std::vector<std::uint32_t> made = blue_noise_ranks(kSide);
  return made;
}

struct Dot {
  int x;
  int y;
};

std::vector<Dot> dots_with_ranks(std::uint32_t from, std::uint32_t below) {
  std::vector<Dot> dots;
  for (std::size_t place = 0; place < ranks().size(); ++place) {
    if (ranks()[place] >= from && ranks()[place] < below) {
      dots.push_back({static_cast<int>(place % kSide), static_cast<int>(place / kSide)});
    }
  }
  return dots;
}

/// The distance between two dots when the square's edges are joined.
double distance(const Dot& a, const Dot& b) {
  const auto shorter = [](int way) {
    return std::min(std::abs(way), static_cast<int>(kSide) - std::abs(way));
  };
  return std::hypot(shorter(a.x - b.x), shorter(a.y - b.y));
}

double least_distance(const std::vector<Dot>& dots) {
  double least = std::numeric_limits<double>::max();
  for (std::size_t i = 0; i < dots.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k) {
      least = std::min(least, distance(dots[i], dots[k]));
    }
  }
  return least;
}

TEST(BlueNoise, EachRankComesOnce) {
  std::vector<std::uint32_t> sorted = ranks();
  std::sort(sorted.begin(), sorted.end());
  ASSERT_EQ(sorted.size(), kSide * kSide);
  for (std::uint32_t rank = 0; rank < sorted.size(); ++rank) {
    ASSERT_EQ(sorted[rank], rank);
  }
}

TEST(BlueNoise, TheSquareIsTheSameEveryTime) {
  EXPECT_EQ(blue_noise_ranks(kSide), ranks());
}

TEST(BlueNoise, TheSmallestSquareHasEachRankOnceToo) {
  std::vector<std::uint32_t> sorted = blue_noise_ranks(kLeastBlueNoiseSide);
  std::sort(sorted.begin(), sorted.end());
  ASSERT_EQ(sorted.size(), 289U);
  EXPECT_EQ(sorted.front(), 0U);
  EXPECT_EQ(sorted.back(), 288U);
  EXPECT_EQ(std::adjacent_find(sorted.begin(), sorted.end()), sorted.end());
}

// A lattice of n dots on 1600 places, as even as can be, has √(2 / √3 × 1600 / n) from dot to dot.

TEST(BlueNoise, TheFirstHundredthKeepsItsDotsApartAlsoAcrossTheEdges) {
  EXPECT_GT(least_distance(dots_with_ranks(0, 16)), 6.4);  // of 10.7
}

TEST(BlueNoise, TheFirstTenthKeepsItsDotsApartAlsoAcrossTheEdges) {
  EXPECT_GT(least_distance(dots_with_ranks(0, 160)), 1.9);  // of 3.4
}

TEST(BlueNoise, TheLastTenthKeepsItsPlacesApartAsTheFirstItsDots) {
  EXPECT_GT(least_distance(dots_with_ranks(1440, 1600)), 1.9);
}

}  // namespace
