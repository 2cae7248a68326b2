// SPDX-License-Identifier: Apache-2.0
//
// Sheets made small, dot by dot.
#include "simulator/thumbnail.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using simulator::Thumbnail;
using testing::ElementsAre;

TEST(ThumbnailSize, IsTheSheetsWhenThatIsSmall) {
  const Thumbnail thumbnail(320, 2);
  EXPECT_EQ(thumbnail.Width(), 320U);
  EXPECT_EQ(thumbnail.Height(), 2U);
}

TEST(ThumbnailSize, IsAWholeFractionOfTheSheets) {
  const Thumbnail thumbnail(1852, 2434);
  EXPECT_EQ(thumbnail.Width(), 232U);
  EXPECT_EQ(thumbnail.Height(), 305U);
}

TEST(ThumbnailDots, AreTheAverageOfASquare) {
  Thumbnail thumbnail(2, 640);
  for (int pair = 0; pair < 320; ++pair) {
    thumbnail.AddRow(std::vector<std::uint8_t>{0, 10, 255, 4, 20, 255});
    thumbnail.AddRow(std::vector<std::uint8_t>{8, 30, 255, 4, 41, 255});
  }
  EXPECT_EQ(thumbnail.Width(), 1U);
  EXPECT_THAT(thumbnail.Row(0), ElementsAre(4, 25, 255));
  EXPECT_THAT(thumbnail.Row(319), ElementsAre(4, 25, 255));
}

TEST(ThumbnailDots, AtTheEndsAreTheAverageOfWhatIsThere) {
  Thumbnail thumbnail(3, 641);
  for (int row = 0; row < 640; ++row) {
    thumbnail.AddRow(std::vector<std::uint8_t>{0, 0, 0, 0, 0, 0, 0, 0, 0});
  }
  thumbnail.AddRow(std::vector<std::uint8_t>{9, 30, 255, 9, 30, 255, 9, 30, 255});
  EXPECT_EQ(thumbnail.Width(), 1U);
  EXPECT_EQ(thumbnail.Height(), 214U);
  EXPECT_THAT(thumbnail.Row(212), ElementsAre(0, 0, 0));
  // Two rows of three: one black, one not.
  EXPECT_THAT(thumbnail.Row(213), ElementsAre(5, 15, 128));
}

}  // namespace
