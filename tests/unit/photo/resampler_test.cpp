// SPDX-License-Identifier: Apache-2.0
//
// Pictures brought to other sizes.
#include "photo/resampler.h"

#include <gmock/gmock.h>

#include <cstring>
#include <vector>

namespace photo {
namespace {

// Gives the rows of a picture, and counts them.
struct Rows {
  const Picture& picture;
  std::size_t given = 0;

  NextRow Next() {
    return [this](std::uint8_t* rgb) {
      std::memcpy(rgb, picture.At(0, given), 3 * picture.width);
      ++given;
      return std::string();
    };
  }
};

Picture resampled(const Picture& from, const PictureArea& area, std::size_t width,
                  std::size_t height) {
  Rows rows{from};
  Picture to(width, height);
  EXPECT_EQ(resample(from.width, from.height, area, rows.Next(), to), "");
  return to;
}

void set(Picture& picture, std::size_t x, std::size_t y, int red, int green, int blue) {
  unsigned char* const rgb = picture.At(x, y);
  rgb[0] = static_cast<unsigned char>(red);
  rgb[1] = static_cast<unsigned char>(green);
  rgb[2] = static_cast<unsigned char>(blue);
}

// No two pixels beside each other are alike.
Picture motley(std::size_t width, std::size_t height) {
  Picture picture(width, height);
  for (std::size_t y = 0; y < height; ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      set(picture, x, y, static_cast<int>(x * 89 % 256), static_cast<int>(y * 57 % 256),
          static_cast<int>((x + y) * 31 % 256));
    }
  }
  return picture;
}

TEST(Resampler, LeavesAPictureOfTheRightSizeAsItIs) {
  const Picture from = motley(70, 300);
  EXPECT_EQ(resampled(from, {0, 0, 70, 300}, 70, 300).rgb, from.rgb);
}

TEST(Resampler, CutsAnAreaOutOfAPicture) {
  const Picture from = motley(70, 300);
  const Picture to = resampled(from, {11, 130, 40, 150}, 40, 150);
  for (std::size_t y = 0; y < 150; ++y) {
    ASSERT_EQ(std::memcmp(to.At(0, y), from.At(11, 130 + y), 120), 0) << y;
  }
}

TEST(Resampler, AsksForNoRowThatLiesFarBelowTheArea) {
  const Picture from = motley(20, 1000);
  Rows rows{from};
  Picture to(20, 100);
  EXPECT_EQ(resample(20, 1000, {0, 50, 20, 100}, rows.Next(), to), "");
  EXPECT_LE(rows.given, 160U);
  EXPECT_GE(rows.given, 150U);
}

TEST(Resampler, AveragesLightWhenAPictureGetsSmaller) {
  Picture from(200, 200);
  for (std::size_t y = 0; y < 200; ++y) {
    for (std::size_t x = 0; x < 200; ++x) {
      const int value = (x + y) % 2 == 0 ? 255 : 0;
      set(from, x, y, value, value, value);
    }
  }
  const Picture to = resampled(from, {0, 0, 200, 200}, 50, 50);
  EXPECT_NEAR(to.At(25, 25)[0], 188, 1);
  EXPECT_NEAR(to.At(10, 40)[2], 188, 1);
}

TEST(Resampler, KeepsFlatColoursWhateverTheSize) {
  Picture from(97, 61);
  for (std::size_t i = 0; i < from.rgb.size(); i += 3) {
    set(from, i / 3 % 97, i / 3 / 97, 10, 128, 250);
  }
  for (const auto& [width, height] :
       std::vector<std::pair<std::size_t, std::size_t>>{{13, 400}, {400, 13}, {500, 500}, {1, 1}}) {
    const Picture to = resampled(from, {0, 0, 97, 61}, width, height);
    for (std::size_t i = 0; i < to.rgb.size(); i += 3) {
      ASSERT_EQ(to.rgb[i], 10);
      ASSERT_EQ(to.rgb[i + 1], 128);
      ASSERT_EQ(to.rgb[i + 2], 250);
    }
  }
}

// A ramp from top to bottom, larger and smaller: where strips meet there is no step.
TEST(Resampler, MakesNoStepsWhereItsStripsMeet) {
  Picture from(16, 512);
  for (std::size_t y = 0; y < 512; ++y) {
    for (std::size_t x = 0; x < 16; ++x) {
      set(from, x, y, static_cast<int>(y / 2), 0, 0);
    }
  }
  const Picture larger = resampled(from, {0, 0, 16, 512}, 16, 1024);
  const Picture smaller = resampled(from, {0, 0, 16, 512}, 16, 400);
  for (std::size_t y = 1; y < 1024; ++y) {
    ASSERT_LE(larger.At(8, y)[0] - larger.At(8, y - 1)[0], 1) << y;
    ASSERT_GE(larger.At(8, y)[0] - larger.At(8, y - 1)[0], 0) << y;
  }
  for (std::size_t y = 0; y < 400; ++y) {
    ASSERT_NEAR(smaller.At(8, y)[0], (static_cast<double>(y) + 0.5) * 256 / 400 - 0.5, 1.5) << y;
  }
}

// Strips of 128 rows begin elsewhere when only a part is made: what a strip looks at beyond its
// ends must not show.
TEST(Resampler, MakesTheSameRowsWhereverItsStripsMeet) {
  const Picture from = motley(40, 600);
  for (const std::size_t height : {std::size_t{300}, std::size_t{1200}}) {
    const double step = 600.0 / static_cast<double>(height);
    const Picture whole = resampled(from, {0, 0, 40, 600}, 40, height);
    const Picture part = resampled(from, {0, 100 * step, 40, 150 * step}, 40, 150);
    for (std::size_t i = 0; i < part.rgb.size(); ++i) {
      ASSERT_NEAR(part.rgb[i], whole.rgb[3UL * 40 * 100 + i], 1) << i / 120 << " of " << height;
    }
  }
}

TEST(Resampler, PutsThePictureWhereItBelongsToAFractionOfAPixel) {
  Picture from(100, 4);
  for (std::size_t x = 0; x < 100; ++x) {
    for (std::size_t y = 0; y < 4; ++y) {
      set(from, x, y, static_cast<int>(2 * x), 0, 0);
    }
  }
  // Half a pixel on, pixels are a mean of two: 2x and 2x + 2.
  const Picture to = resampled(from, {20.5, 0, 50, 4}, 50, 4);
  EXPECT_NEAR(to.At(0, 1)[0], 41, 1);
  EXPECT_NEAR(to.At(30, 1)[0], 101, 1);
}

TEST(Resampler, TellsWhyARowIsMissing) {
  std::size_t row = 0;
  Picture to(10, 10);
  const std::string why = resample(
      10, 10, {0, 0, 10, 10},
      [&row](std::uint8_t*) { return ++row < 5 ? std::string() : std::string("it is torn"); }, to);
  EXPECT_EQ(why, "it is torn");
}

TEST(Resampler, RefusesWhatWouldTakeAllMemory) {
  Picture to(1, 1);
  EXPECT_EQ(resample(
                65500, 3800, {0, 0, 65500, 3800}, [](std::uint8_t*) { return std::string(); }, to),
            "it is too large to be printed so small");
}

}  // namespace
}  // namespace photo
