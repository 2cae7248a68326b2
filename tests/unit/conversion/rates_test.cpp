// SPDX-License-Identifier: Apache-2.0
//
// The arithmetic of the two rates.
#include "conversion/rates.h"

#include <gtest/gtest.h>

namespace {

TEST(Rates, WhitePaperTakesNoDyeAndBlackAllOfIt) {
  EXPECT_EQ(rgb_rate({49149, 3}), 0);
  EXPECT_EQ(rgb_rate({0, 3}), 100);
}

TEST(Rates, HalvesOfAPerCentAreRoundedUpwards) {
  // 200 samples, all white but one black one: exactly half a per cent.
  EXPECT_EQ(rgb_rate({3260217, 200}), 1);
  EXPECT_EQ(rgb_rate({3260218, 200}), 0);
  EXPECT_EQ(op_rate({255, 200}), 1);
  EXPECT_EQ(op_rate({254, 200}), 0);
}

TEST(Rates, OvercoatIsTheMeanByteOf255) {
  EXPECT_EQ(op_rate({1020, 4}), 100);
  EXPECT_EQ(op_rate({0, 4}), 0);
  EXPECT_EQ(op_rate({159, 1}), 62);  // 62.35
}

TEST(Rates, TheLargestBandDoesNotOverflow) {
  const std::uint64_t samples = (std::uint64_t{1} << 34) / 2;
  EXPECT_EQ(rgb_rate({0, samples}), 100);
  EXPECT_EQ(rgb_rate({samples * 16383, samples}), 0);
  const std::uint64_t bytes = std::uint64_t{1} << 34;
  EXPECT_EQ(op_rate({bytes * 255, bytes}), 100);
}

}  // namespace
