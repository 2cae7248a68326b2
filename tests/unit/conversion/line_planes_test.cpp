// SPDX-License-Identifier: Apache-2.0
//
// The memory of lines: its margins, and widths that no computer has the memory for.
#include "conversion/line_planes.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

/// How many of line `number`'s 100 numbers and of its margins are `value`.
long count(const LineMemory& memory, std::size_t number, std::uint16_t value) {
  const std::uint16_t* line = memory.line(number);
  return std::count(line - kLineMargin, line + 100 + kLineMargin, value);
}

void fill(const LineMemory& memory, std::size_t number, std::uint16_t value) {
  std::fill_n(memory.line(number) - kLineMargin, 100 + 2 * kLineMargin, value);
}

constexpr long kAll = 100 + 2 * static_cast<long>(kLineMargin);

TEST(LinePlanes, EachLineAndItsMarginsAreNobodyElses) {
  LineMemory memory;
  ASSERT_TRUE(memory.reserve(2, 100));
  fill(memory, 0, 7);
  fill(memory, 1, 9);
  EXPECT_EQ(count(memory, 0, 7), kAll);
  EXPECT_EQ(count(memory, 1, 9), kAll);
}

TEST(LinePlanes, LinesAndMarginsBeginAsZeros) {
  // The second request is likely to get what the first one left behind.
  LineMemory memory;
  ASSERT_TRUE(memory.reserve(1, 100));
  fill(memory, 0, 7);
  memory = LineMemory();
  ASSERT_TRUE(memory.reserve(1, 100));
  EXPECT_EQ(count(memory, 0, 0), kAll);
}

TEST(LinePlanes, AWidthThatItsMarginsLiftBeyondAllAddressesIsRefused) {
  LineMemory memory;
  EXPECT_FALSE(memory.reserve(3, SIZE_MAX));
  EXPECT_FALSE(memory.reserve(3, SIZE_MAX - 2 * kLineMargin + 1));
}

TEST(LinePlanes, LinesWhoseBytesWrapAroundToAFewAreRefused) {
  // Four lines of a quarter of all addresses and 16 numbers: 64 numbers, were it not for the wrap.
  LineMemory memory;
  EXPECT_FALSE(memory.reserve(4, SIZE_MAX / 4 + 1 - 2 * kLineMargin + 16));
}

}  // namespace
