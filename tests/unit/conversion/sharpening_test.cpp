// SPDX-License-Identifier: Apache-2.0
//
// The sharpening of engine samples, with values worked out by hand.
#include "conversion/sharpening.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace {

using Pixel = std::array<EngineSample, 3>;
using Samples = std::vector<EngineSample>;

/// A page through the sharpener, lines in and out in their order.
Samples sharpen(std::size_t width, std::size_t height, int amount,
                const std::function<Pixel(std::size_t, std::size_t)>& picture) {
  Sharpener sharpener;
  EXPECT_TRUE(sharpener.reserve(width));
  Samples page(3 * width * height);
  for (std::size_t next = 0; next < height + kSharpeningReach; ++next) {
    if (next < height) {
      for (std::size_t x = 0; x < width; ++x) {
        const Pixel pixel = picture(x, next);
        std::copy(pixel.begin(), pixel.end(), sharpener.line(next) + 3 * x);
      }
      sharpener.take_line(next);
    }
    if (next >= kSharpeningReach) {
      const std::size_t y = next - kSharpeningReach;
      sharpener.sharpen_line(y, height, amount, &page[y * 3 * width]);
    }
  }
  return page;
}

Pixel grey(int value) {
  const auto sample = static_cast<EngineSample>(value);
  return {sample, sample, sample};
}

/// Greys of the first row, one number a pixel.
std::vector<int> first_row(const Samples& page, std::size_t width) {
  std::vector<int> row;
  for (std::size_t x = 0; x < width; ++x) {
    row.push_back(page[3 * x]);
  }
  return row;
}

TEST(Sharpening, LevelsGoFromALittleToMoreThanTheWholeDifference) {
  EXPECT_EQ(sharpening_amount(0), 10);
  EXPECT_EQ(sharpening_amount(1), 20);
  EXPECT_EQ(sharpening_amount(2), 30);
  EXPECT_EQ(sharpening_amount(3), 40);
  EXPECT_EQ(sharpening_amount(4), 50);
  EXPECT_EQ(sharpening_amount(5), 60);
  EXPECT_EQ(sharpening_amount(6), 70);
}

TEST(Sharpening, LevelsBeyondAnEndCountAsThatEnd) {
  EXPECT_EQ(sharpening_amount(-1), 10);
  EXPECT_EQ(sharpening_amount(-32768), 10);
  EXPECT_EQ(sharpening_amount(7), 70);
  EXPECT_EQ(sharpening_amount(32767), 70);
}

TEST(Sharpening, AnEdgeGetsTheSharesOfOneFourSixFourOneOnBothSides) {
  // A step of 1600 in a single row: the blurs differ by 1/16 and 5/16 of it, times the amount 1.
  const Samples page =
      sharpen(8, 1, 64, [](std::size_t x, std::size_t) { return grey(x < 4 ? 4000 : 5600); });
  EXPECT_EQ(first_row(page, 8), (std::vector<int>{4000, 4000, 3900, 3500, 6100, 5700, 5600, 5600}));
}

TEST(Sharpening, AnEdgeAcrossTheLinesGetsTheSame) {
  const Samples page =
      sharpen(1, 8, 64, [](std::size_t, std::size_t y) { return grey(y < 4 ? 4000 : 5600); });
  EXPECT_EQ(first_row(page, 8), (std::vector<int>{4000, 4000, 3900, 3500, 6100, 5700, 5600, 5600}));
}

TEST(Sharpening, ADotSpreadsItsShareOverFiveByFivePixels) {
  // A dot of 2560 above its surroundings, in 256ths: 10 times the products of 1 4 6 4 1.
  const Samples page = sharpen(
      7, 7, 64, [](std::size_t x, std::size_t y) { return grey(x == 3 && y == 3 ? 6560 : 4000); });
  const auto row = [&page](std::size_t y) {
    std::vector<int> greys;
    for (std::size_t x = 0; x < 7; ++x) {
      greys.push_back(page[(y * 7 + x) * 3]);
    }
    return greys;
  };
  EXPECT_EQ(row(0), (std::vector<int>{4000, 4000, 4000, 4000, 4000, 4000, 4000}));
  EXPECT_EQ(row(1), (std::vector<int>{4000, 3990, 3960, 3940, 3960, 3990, 4000}));
  EXPECT_EQ(row(2), (std::vector<int>{4000, 3960, 3840, 3760, 3840, 3960, 4000}));
  EXPECT_EQ(row(3), (std::vector<int>{4000, 3940, 3760, 8760, 3760, 3940, 4000}));
  EXPECT_EQ(row(4), row(2));
  EXPECT_EQ(row(5), row(1));
  EXPECT_EQ(row(6), row(0));
}

TEST(Sharpening, TheAmountIsIn64ths) {
  const Samples page =
      sharpen(8, 1, 16, [](std::size_t x, std::size_t) { return grey(x < 4 ? 4000 : 5600); });
  EXPECT_EQ(first_row(page, 8), (std::vector<int>{4000, 4000, 3975, 3875, 5725, 5625, 5600, 5600}));
}

TEST(Sharpening, BeyondThePageItsOutermostPixelsContinue) {
  // The left pixel alone is lighter by 1600; beyond the edge it counts twice more.
  const Samples page =
      sharpen(4, 1, 64, [](std::size_t x, std::size_t) { return grey(x == 0 ? 5600 : 4000); });
  EXPECT_EQ(first_row(page, 4), (std::vector<int>{6100, 3500, 3900, 4000}));
  const Samples column =
      sharpen(1, 4, 64, [](std::size_t, std::size_t y) { return grey(y == 3 ? 5600 : 4000); });
  EXPECT_EQ(first_row(column, 4), (std::vector<int>{4000, 3900, 3500, 6100}));
}

TEST(Sharpening, AllChannelsMoveByTheDifferenceOfTheirLuminance) {
  // Only green steps, by 2560: the luminance by 150/256 of it, 1500, of which 5/16 is 469.
  const Samples page = sharpen(6, 1, 64, [](std::size_t x, std::size_t) {
    return Pixel{8000, static_cast<EngineSample>(x < 3 ? 4000 : 6560), 7000};
  });
  EXPECT_EQ(page[6], 8000 - 469);
  EXPECT_EQ(page[7], 4000 - 469);
  EXPECT_EQ(page[8], 7000 - 469);
  EXPECT_EQ(page[9], 8000 + 469);
  EXPECT_EQ(page[10], 6560 + 469);
  EXPECT_EQ(page[11], 7000 + 469);
}

TEST(Sharpening, FlatFieldsOfEveryLevelStayExactlyAsTheyAre) {
  for (int value = 0; value <= 16383; value += 13) {
    const Pixel pixel{static_cast<EngineSample>(value), static_cast<EngineSample>(16383 - value),
                      static_cast<EngineSample>(value / 2)};
    const Samples page = sharpen(3, 3, 70, [&pixel](std::size_t, std::size_t) { return pixel; });
    for (std::size_t i = 0; i < page.size(); ++i) {
      ASSERT_EQ(page[i], pixel[i % 3]) << "value " << value;
    }
  }
}

TEST(Sharpening, NothingLeavesTheFourteenBits) {
  const Samples page = sharpen(16, 16, 70, [](std::size_t x, std::size_t y) {
    return grey((x / 2 + y / 3) % 2 == 0 ? 0 : 16383);
  });
  for (const EngineSample sample : page) {
    ASSERT_LE(sample, 16383);
  }
  EXPECT_EQ(page[0], 0);  // what would fall below black stays black
}

TEST(Sharpening, PagesOfASingleRowColumnOrPixelWork) {
  const auto flat = [](std::size_t, std::size_t) { return grey(900); };
  EXPECT_EQ(sharpen(1, 1, 70, flat), (Samples{900, 900, 900}));
  EXPECT_EQ(sharpen(2, 1, 70, flat), Samples(6, 900));
  EXPECT_EQ(sharpen(1, 2, 70, flat), Samples(6, 900));
}

}  // namespace
