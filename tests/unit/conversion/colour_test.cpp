// SPDX-License-Identifier: Apache-2.0
//
// Levels to engine samples, and lines of pixels through the mapping.
#include "conversion/colour.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(Colour, ALevelBecomesTheNearestOf16383Steps) {
  EXPECT_EQ(sample_of_level(0.0), 0);
  EXPECT_EQ(sample_of_level(1.0), 0x3FFF);
  EXPECT_EQ(sample_of_level(0.25), 4096);   // 4095.75
  EXPECT_EQ(sample_of_level(0.75), 12287);  // 12287.25
  EXPECT_EQ(sample_of_level(0.00003), 0);   // 0.49
  EXPECT_EQ(sample_of_level(0.000031), 1);  // 0.51
}

TEST(Colour, EachChannelOfALineGoesThroughItsOwnTable) {
  ColourMapping mapping{};
  mapping.channels[0][7] = 100;
  mapping.channels[1][7] = 200;
  mapping.channels[2][7] = 300;
  mapping.channels[0][255] = 11;
  mapping.channels[1][0] = 22;
  mapping.channels[2][128] = 33;
  const std::vector<unsigned char> rgb{7, 7, 7, 255, 0, 128};
  std::vector<EngineSample> samples(6);
  map_line(mapping, rgb.data(), 2, samples.data());
  EXPECT_EQ(samples, (std::vector<EngineSample>{100, 200, 300, 11, 22, 33}));
}

TEST(Colour, AMappingWithoutAdjustmentsEndsAtBlackAndWhite) {
  const ColourMapping mapping = make_colour_mapping({});
  for (const auto& channel : mapping.channels) {
    EXPECT_EQ(channel[0], 0);
    EXPECT_EQ(channel[128], 8224);
    EXPECT_EQ(channel[255], 0x3FFF);
  }
}

}  // namespace
