// SPDX-License-Identifier: Apache-2.0
//
// Samples to calculate with.
#include "photo/light_tables.h"

#include <gmock/gmock.h>

namespace photo {
namespace {

TEST(LightTables, GiveEachNumberBackAsItWas) {
  for (const bool light : {false, true}) {
    const LightTables tables = make_light_tables(light);
    ASSERT_EQ(tables.toNumber.size(), 65536U);
    for (std::size_t number = 0; number < 256; ++number) {
      EXPECT_EQ(tables.toNumber[tables.toSample[number]], number) << light;
    }
  }
}

TEST(LightTables, GoFromNoLightToAllOfIt) {
  const LightTables tables = make_light_tables(true);
  EXPECT_EQ(tables.toSample[0], 0);
  EXPECT_EQ(tables.toSample[255], 65535);
  EXPECT_EQ(tables.toNumber[0], 0);
  EXPECT_EQ(tables.toNumber[65535], 255);
}

// IEC 61966-2-1: 188 of 255 is half the light, within a step; 10 lies on the straight part.
TEST(LightTables, FollowTheCurveOfSrgb) {
  const LightTables tables = make_light_tables(true);
  EXPECT_EQ(tables.toNumber[32768], 188);
  EXPECT_EQ(tables.toSample[10], 199);
  EXPECT_EQ(tables.toSample[128], 14146);
}

TEST(LightTables, SpreadTheNumbersEvenlyOtherwise) {
  const LightTables tables = make_light_tables(false);
  EXPECT_EQ(tables.toSample[1], 257);
  EXPECT_EQ(tables.toNumber[128 * 257 + 128], 128);
  EXPECT_EQ(tables.toNumber[128 * 257 + 129], 129);
}

}  // namespace
}  // namespace photo
