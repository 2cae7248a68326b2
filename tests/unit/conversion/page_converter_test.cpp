// SPDX-License-Identifier: Apache-2.0
//
// Whole pages, with each mix of sharpening, tone and colour, against plain arithmetic.
#include "conversion/page_converter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "conversion/tone.h"
#include "tests/unit/conversion/plain_kernels.h"
#include "tests/unit/conversion/test_page.h"

namespace {

constexpr std::size_t kPageWidth = 67;
constexpr std::size_t kPageHeight = 11;

/// The page's rows as planes of numbers from 0 to `white`: sharpened, or as the photo has them.
std::vector<plain::Planes> plain_lines(bool sharpened, int strength) {
  std::vector<plain::Bytes> page(kPageHeight);
  std::vector<plain::Planes> lines(kPageHeight);
  for (std::size_t y = 0; y < kPageHeight; ++y) {
    for (std::size_t x = 0; x < kPageWidth; ++x) {
      const auto pixel = busy_picture(x, y);
      for (std::size_t channel = 0; channel < 3; ++channel) {
        page[y].push_back(pixel[channel]);
        lines[y][channel].push_back(pixel[channel]);
      }
    }
  }
  return sharpened ? plain::sharpen_page(page, strength) : lines;
}

/// What the page's samples must be, pixel by pixel.
std::vector<std::uint16_t> plain_page(const tagMVChangeParams& params, int strength) {
  const bool sharpened = (params.dwFlags & 4U) != 0;
  const bool converted = (params.dwFlags & 1U) != 0;
  const double white = sharpened ? 4080 : 255;
  std::vector<std::uint16_t> samples;
  for (const plain::Planes& line : plain_lines(sharpened, strength)) {
    for (std::size_t x = 0; x < kPageWidth; ++x) {
      std::array<std::uint16_t, 3> pixel{};
      for (std::size_t channel = 0; channel < 3; ++channel) {
        const double level = tone_level(tone_of_channel(params, channel), line[channel][x] / white);
        pixel[channel] =
            static_cast<std::uint16_t>(std::lround(level * (converted ? 16384 : 16383)));
      }
      const auto sent = converted ? plain::interpolate(builtin_table(), pixel) : pixel;
      samples.insert(samples.end(), sent.begin(), sent.end());
    }
  }
  return samples;
}

tagMVChangeParams params_with(std::uint64_t flags) {
  tagMVChangeParams params = plain_params();
  params.dwFlags |= flags;
  params.nSharpness = 4;  // strength 5
  return params;
}

/// Sliders that differ from channel to channel.
tagMVChangeParams toned(tagMVChangeParams params) {
  constexpr std::array<std::int16_t, 9> kTones{-2, 1, 4, 30, -40, 10, 20, -30, 50};
  std::copy(kTones.begin(), kTones.end(), params.nTone);
  return params;
}

TEST(PageConverter, SharpensAndConvertsColours) {
  const tagMVChangeParams params = params_with(5);
  EXPECT_EQ(convert(kPageWidth, kPageHeight, params, busy_picture).samples, plain_page(params, 5));
}

TEST(PageConverter, ConvertsColoursOfAnUnsharpenedPhoto) {
  const tagMVChangeParams params = params_with(1);
  EXPECT_EQ(convert(kPageWidth, kPageHeight, params, busy_picture).samples, plain_page(params, 5));
}

TEST(PageConverter, SharpensDeviceValues) {
  const tagMVChangeParams params = params_with(4);
  EXPECT_EQ(convert(kPageWidth, kPageHeight, params, busy_picture).samples, plain_page(params, 5));
}

TEST(PageConverter, SharpensSetsTonesAndConvertsColoursInThatOrder) {
  const tagMVChangeParams params = toned(params_with(5));
  EXPECT_EQ(convert(kPageWidth, kPageHeight, params, busy_picture).samples, plain_page(params, 5));
}

TEST(PageConverter, SetsTonesAheadOfTheColours) {
  const tagMVChangeParams params = toned(params_with(1));
  EXPECT_EQ(convert(kPageWidth, kPageHeight, params, busy_picture).samples, plain_page(params, 5));
}

TEST(PageConverter, SetsTheTonesOfSharpenedDeviceValues) {
  const tagMVChangeParams params = toned(params_with(4));
  EXPECT_EQ(convert(kPageWidth, kPageHeight, params, busy_picture).samples, plain_page(params, 5));
}

TEST(PageConverter, WhiteStaysThePapersOwnWhateverGammaIsSet) {
  for (const std::uint64_t flags : {std::uint64_t{1}, std::uint64_t{5}}) {
    tagMVChangeParams params = params_with(flags);
    params.nTone[0] = params.nTone[1] = params.nTone[2] = 3;
    const Converted page = convert(2, 2, params, [](std::size_t, std::size_t) {
      return std::array<unsigned char, 3>{255, 255, 255};
    });
    EXPECT_EQ(page.samples, std::vector<std::uint16_t>(12, 0x3FFF)) << "flags " << flags;
  }
}

TEST(PageConverter, TheSumIsThatOfAllSamplesAndTheCountTheirNumber) {
  for (const std::uint64_t flags : {std::uint64_t{0}, std::uint64_t{1}}) {
    TestBand source(kPageWidth, kPageHeight, 3);
    TestBand destination(kPageWidth, kPageHeight, 6);
    for (std::size_t x = 0; x < kPageWidth; ++x) {
      source.setRgb(x, 3, busy_picture(x, 3));
    }
    PageConverter converter;
    ASSERT_TRUE(converter.prepare(params_with(flags), kPageWidth));
    const RateSum sum = converter.convert(rows_of(source.record), rows_of(destination.record));
    std::uint64_t total = 0;
    for (std::size_t y = 0; y < kPageHeight; ++y) {
      for (std::size_t x = 0; x < kPageWidth; ++x) {
        total += std::uint64_t{destination.sample(x, y, 0)} + destination.sample(x, y, 1) +
                 destination.sample(x, y, 2);
      }
    }
    EXPECT_EQ(sum.total, total) << "flags " << flags;
    EXPECT_EQ(sum.count, 3U * 67 * 11);
  }
}

}  // namespace
