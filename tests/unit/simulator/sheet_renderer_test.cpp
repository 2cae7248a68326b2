// SPDX-License-Identifier: Apache-2.0
//
// The sheet as a person sees it: values, place, border and matte.
#include "simulator/sheet_renderer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "tests/unit/test_profiles.h"

namespace {

using simulator::SheetRenderer;
using testing::ElementsAre;

using Rows = std::vector<std::vector<std::uint8_t>>;

// Sheets far smaller than any paper: four dots wide, three rows high, the image one dot inside.
decoder::Sheet small_sheet(std::uint16_t matteHeight) {
  decoder::Sheet sheet{};
  sheet.job.sheetWidth = 4;
  sheet.job.sheetHeight = 3;
  sheet.image.left = 1;
  sheet.image.top = 1;
  sheet.image.width = 2;
  sheet.image.height = 1;
  sheet.image.matteWidth = matteHeight == 0 ? 0 : 4;
  sheet.image.matteHeight = matteHeight;
  return sheet;
}

simulator::RowSink into(Rows& rows) {
  return [&rows](std::span<const std::uint8_t> row) { rows.emplace_back(row.begin(), row.end()); };
}

TEST(Samples, BecomeTheNearestByte) {
  EXPECT_EQ(simulator::sample_to_byte(0), 0);
  EXPECT_EQ(simulator::sample_to_byte(32), 0);       // 0.498
  EXPECT_EQ(simulator::sample_to_byte(33), 1);       // 0.514
  EXPECT_EQ(simulator::sample_to_byte(0x1234), 73);  // 72.53
  EXPECT_EQ(simulator::sample_to_byte(8191), 127);   // 127.49
  EXPECT_EQ(simulator::sample_to_byte(8192), 128);   // 127.51
  EXPECT_EQ(simulator::sample_to_byte(0x3FFE), 255);
  EXPECT_EQ(simulator::sample_to_byte(0x3FFF), 255);
}

TEST(Samples, Above14BitsAreWhite) {
  EXPECT_EQ(simulator::sample_to_byte(0x4000), 255);
  EXPECT_EQ(simulator::sample_to_byte(0xFFFF), 255);
}

TEST(Matte, LeavesTheValueAtFullOvercoatAndTakesAnEighthAtMost) {
  EXPECT_EQ(simulator::under_matte(255, 255), 255);
  EXPECT_EQ(simulator::under_matte(73, 255), 73);
  EXPECT_EQ(simulator::under_matte(255, 128), 239);  // 239.125
  EXPECT_EQ(simulator::under_matte(255, 0), 223);    // 223.125
  EXPECT_EQ(simulator::under_matte(80, 0), 70);
  EXPECT_EQ(simulator::under_matte(0, 0), 0);
}

TEST(Sheet, HasTheImageOnItsPlaceOnWhite) {
  Rows rows;
  SheetRenderer renderer(small_sheet(0), nullptr, into(rows));
  renderer.ImageRow(0, std::vector<std::uint16_t>{0, 0x1234, 8192, 0x3FFF, 33, 0});
  renderer.Finish();
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_THAT(rows[0], testing::Each(255));
  EXPECT_THAT(rows[1], ElementsAre(255, 255, 255, 0, 73, 128, 255, 1, 0, 255, 255, 255));
  EXPECT_THAT(rows[2], testing::Each(255));
}

TEST(Sheet, IsDrawnThroughTheProof) {
  std::string why;
  const auto proof = decoder::SoftProof::Through(profiles::linear(), why);
  ASSERT_NE(proof, nullptr) << why;
  Rows rows;
  SheetRenderer renderer(small_sheet(0), proof.get(), into(rows));
  renderer.ImageRow(0, std::vector<std::uint16_t>{3000, 10000, 8192, 0x3FFF, 0, 20});
  renderer.Finish();
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_THAT(rows[1], ElementsAre(255, 255, 255, 119, 205, 188, 255, 0, 4, 255, 255, 255));
}

TEST(Sheet, HasTheMatteOverTheProof) {
  std::string why;
  const auto proof = decoder::SoftProof::Through(profiles::linear(), why);
  ASSERT_NE(proof, nullptr) << why;
  Rows rows;
  SheetRenderer renderer(small_sheet(3), proof.get(), into(rows));
  renderer.ImageRow(0, std::vector<std::uint16_t>{3000, 10000, 8192, 0x3FFF, 0, 20});
  for (std::uint32_t row = 0; row < 3; ++row) {
    renderer.MatteRow(row, std::vector<std::uint8_t>{255, 0, 128, 0});
  }
  renderer.Finish();
  ASSERT_EQ(rows.size(), 3U);
  // 119, 205 and 188 under 0: 104.1, 179.4 and 164.5; 255, 0 and 4 under 128: 239.1, 0 and 3.75.
  EXPECT_THAT(rows[1], ElementsAre(255, 255, 255, 104, 179, 165, 239, 0, 4, 223, 223, 223));
}

TEST(Sheet, IsHandedOnRowByRowWhenAsked) {
  Rows rows;
  SheetRenderer renderer(small_sheet(0), nullptr, into(rows));
  EXPECT_FALSE(renderer.HandOnRow());
  renderer.ImageRow(0, std::vector<std::uint16_t>(6, 0));
  EXPECT_EQ(rows.size(), 0U);
  EXPECT_TRUE(renderer.HandOnRow());
  EXPECT_EQ(rows.size(), 1U);
  EXPECT_TRUE(renderer.HandOnRow());
  EXPECT_EQ(rows.size(), 2U);
  EXPECT_FALSE(renderer.HandOnRow());
}

TEST(Sheet, IsHandedOnOnceHoweverMuchOfItWasAskedFor) {
  Rows rows;
  SheetRenderer renderer(small_sheet(0), nullptr, into(rows));
  renderer.ImageRow(0, std::vector<std::uint16_t>(6, 0));
  EXPECT_TRUE(renderer.HandOnRow());
  renderer.Finish();
  EXPECT_EQ(rows.size(), 3U);
  EXPECT_FALSE(renderer.HandOnRow());
}

TEST(Sheet, WaitsForTheMatteRows) {
  Rows rows;
  SheetRenderer renderer(small_sheet(3), nullptr, into(rows));
  renderer.ImageRow(0, std::vector<std::uint16_t>(6, 0));
  EXPECT_FALSE(renderer.HandOnRow());
  renderer.MatteRow(0, std::vector<std::uint8_t>{0, 128, 255, 255});
  EXPECT_TRUE(renderer.HandOnRow());
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_THAT(rows[0], ElementsAre(223, 223, 223, 239, 239, 239, 255, 255, 255, 255, 255, 255));
}

TEST(Sheet, ShowsTheMatteOverTheImageAndNotBelowTheSheet) {
  Rows rows;
  SheetRenderer renderer(small_sheet(5), nullptr, into(rows));
  renderer.ImageRow(0, std::vector<std::uint16_t>{0, 0x1234, 8192, 0x3FFF, 33, 0});
  for (std::uint32_t row = 0; row < 5; ++row) {
    renderer.MatteRow(row, std::vector<std::uint8_t>{255, 0, 128, 255});
  }
  renderer.Finish();
  ASSERT_EQ(rows.size(), 3U);
  // 73 and 128 under 0: 63.875 and 112; 255 and 1 under 128: 239.125 and 0.94.
  EXPECT_THAT(rows[1], ElementsAre(255, 255, 255, 0, 64, 112, 239, 1, 0, 255, 255, 255));
}

TEST(Sheet, ThatIsCutStaysWhiteBelow) {
  Rows rows;
  SheetRenderer renderer(small_sheet(5), nullptr, into(rows));
  renderer.ImageRow(0, std::vector<std::uint16_t>(6, 0));
  renderer.MatteRow(0, std::vector<std::uint8_t>{0, 0, 0, 0});
  renderer.Finish();
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_THAT(rows[0], testing::Each(223));
  EXPECT_THAT(rows[1], ElementsAre(255, 255, 255, 0, 0, 0, 0, 0, 0, 255, 255, 255));
  EXPECT_THAT(rows[2], testing::Each(255));
}

}  // namespace
