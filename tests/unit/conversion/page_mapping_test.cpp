// SPDX-License-Identifier: Apache-2.0
//
// Device values as they are: conversion off, tones 0, sharpness None.
#include <gtest/gtest.h>

#include "tests/unit/conversion/test_page.h"

namespace {

TEST(PageMapping, BlackIsZeroAndWhiteIsTheWholeFourteenBits) {
  const Converted page = convert(2, 1, plain_params(), [](std::size_t x, std::size_t) {
    return x == 0 ? std::array<unsigned char, 3>{0, 0, 0}
                  : std::array<unsigned char, 3>{255, 255, 255};
  });
  EXPECT_EQ(page.code, 0);
  EXPECT_EQ(page.samples, (std::vector<std::uint16_t>{0, 0, 0, 0x3FFF, 0x3FFF, 0x3FFF}));
}

TEST(PageMapping, ChannelsKeepTheOrderRedGreenBlue) {
  const Converted page = convert(1, 1, plain_params(), [](std::size_t, std::size_t) {
    return std::array<unsigned char, 3>{255, 1, 128};
  });
  EXPECT_EQ(page.samples, (std::vector<std::uint16_t>{16383, 64, 8224}));
}

TEST(PageMapping, KnownValuesComeOutAsWrittenDown) {
  const auto grey = channel_of(convert_grey_ramp(plain_params()).samples, 0);
  EXPECT_EQ(grey[2], 128);
  EXPECT_EQ(grey[3], 193);
  EXPECT_EQ(grey[16], 1028);
  EXPECT_EQ(grey[48], 3084);
  EXPECT_EQ(grey[64], 4112);
  EXPECT_EQ(grey[100], 6425);
  EXPECT_EQ(grey[127], 8159);
  EXPECT_EQ(grey[192], 12335);
  EXPECT_EQ(grey[208], 13363);
  EXPECT_EQ(grey[254], 16319);
}

TEST(PageMapping, EveryValueBecomesTheNearestSample) {
  const Converted page = convert_grey_ramp(plain_params());
  for (std::size_t channel = 0; channel < 3; ++channel) {
    const auto samples = channel_of(page.samples, channel);
    for (int value = 0; value < 256; ++value) {
      // Less than half a step away from value × 16383 / 255, in 255ths of a step.
      EXPECT_LT(std::abs(255 * samples[static_cast<std::size_t>(value)] - 16383 * value) * 2, 255)
          << "value " << value << ", channel " << channel;
    }
  }
}

TEST(PageMapping, FieldsWithoutAMeaningHereChangeNothing) {
  tagMVChangeParams odd = plain_params();
  odd.lParam0 = -1;
  odd.nParam8 = 77;
  odd.nReserved12 = 0x5A5A5A5A;
  odd.dwFlags = ~(kChangeFlagColorConversion | kChangeFlagSharpness);
  odd.pszModulePath = "/nowhere/";
  odd.wParam32 = -3;
  odd.byOption[0] = 9;
  odd.byOption[3] = 255;
  odd.nSharpness = 6;
  odd.byReserved58[0] = 255;
  const Converted page = convert(16, 9, odd, busy_picture);
  EXPECT_EQ(page.code, 0);
  EXPECT_EQ(page.samples, convert(16, 9, plain_params(), busy_picture).samples);
}

TEST(PageMapping, OnePixelIsAPage) {
  const Converted page = convert(1, 1, plain_params(), [](std::size_t, std::size_t) {
    return std::array<unsigned char, 3>{48, 100, 208};
  });
  EXPECT_EQ(page.code, 0);
  EXPECT_EQ(page.samples, (std::vector<std::uint16_t>{3084, 6425, 13363}));
}

}  // namespace
