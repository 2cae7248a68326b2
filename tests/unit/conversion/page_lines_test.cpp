// SPDX-License-Identifier: Apache-2.0
//
// Line orders, strides, padding and places of the three bands.
#include <gtest/gtest.h>

#include "tests/unit/conversion/test_page.h"

namespace {

constexpr std::size_t kSmallWidth = 7;
constexpr std::size_t kSmallHeight = 9;
constexpr std::size_t kMatteWidth = 11;
constexpr std::size_t kMatteHeight = 21;

/// The pixels of a converted page, whichever way the bands lay in memory.
struct Page {
  std::vector<unsigned char> image;
  std::vector<unsigned char> matte;
  bool surroundingsUntouched = false;
};

Page convert_laid_out(const BandLayout& sourceLayout, const BandLayout& destinationLayout,
                      const BandLayout& matteLayout, bool sharpen) {
  TestBand source(kSmallWidth, kSmallHeight, 3, sourceLayout);
  TestBand destination(kSmallWidth, kSmallHeight, 6, destinationLayout);
  TestBand matte(kMatteWidth, kMatteHeight, 1, matteLayout);
  for (std::size_t y = 0; y < kSmallHeight; ++y) {
    for (std::size_t x = 0; x < kSmallWidth; ++x) {
      source.setRgb(x, y, busy_picture(x, y));
    }
  }
  const auto sourcePixels = source.pixels();
  tagMVChangeParams params = plain_params();
  params.dwFlags |= sharpen ? kChangeFlagSharpness : 0;
  params.nSharpness = 3;
  unsigned char rates[2] = {};
  EXPECT_EQ(MVChangeImage(&source.record, &params, &destination.record, &matte.record, &rates[0],
                          &rates[1]),
            0);
  EXPECT_EQ(source.pixels(), sourcePixels);
  return {destination.pixels(), matte.pixels(),
          source.surroundingsUntouched() && destination.surroundingsUntouched() &&
              matte.surroundingsUntouched()};
}

BandLayout laid_out(LineOrder order, std::size_t padding = 0, unsigned char canary = 0xA5) {
  BandLayout layout;
  layout.order = order;
  layout.padding = padding;
  layout.canary = canary;
  return layout;
}

TEST(PageLines, TheTopRowOfTheSourceIsTheTopRowOfTheResultInEveryMixOfOrders) {
  constexpr LineOrder kOrders[] = {LineOrder::kTopDown, LineOrder::kBottomUp};
  for (const bool sharpen : {false, true}) {
    const Page expected = convert_laid_out({}, {}, {}, sharpen);
    for (const LineOrder from : kOrders) {
      for (const LineOrder to : kOrders) {
        for (const LineOrder overcoat : kOrders) {
          const Page page =
              convert_laid_out(laid_out(from), laid_out(to), laid_out(overcoat), sharpen);
          EXPECT_EQ(page.image, expected.image);
          EXPECT_EQ(page.matte, expected.matte);
          EXPECT_TRUE(page.surroundingsUntouched);
        }
      }
    }
  }
}

TEST(PageLines, ABottomUpSourceIsReadFromItsLastLine) {
  // Two rows of one pixel: in memory black comes first, so on the page it is below.
  std::vector<unsigned char> rgb{0, 0, 0, 255, 255, 255};
  std::vector<unsigned char> samples(12, 0xA5);
  const tagMVBandImageParams source{rgb.data(), 3, {0, 0, 1, 2}};
  tagMVBandImageParams destination{samples.data(), -6, {0, 0, 1, 2}};
  const tagMVChangeParams params = plain_params();
  unsigned char rates[2] = {};
  ASSERT_EQ(MVChangeImage(&source, &params, &destination, nullptr, &rates[0], &rates[1]), 0);
  EXPECT_EQ(samples,
            (std::vector<unsigned char>{0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F, 0, 0, 0, 0, 0, 0}));
}

TEST(PageLines, ABottomUpDestinationIsWrittenFromItsLastLine) {
  std::vector<unsigned char> rgb{0, 0, 0, 255, 255, 255};
  std::vector<unsigned char> samples(12, 0xA5);
  const tagMVBandImageParams source{rgb.data(), -3, {0, 0, 1, 2}};
  tagMVBandImageParams destination{samples.data(), 6, {0, 0, 1, 2}};
  const tagMVChangeParams params = plain_params();
  unsigned char rates[2] = {};
  ASSERT_EQ(MVChangeImage(&source, &params, &destination, nullptr, &rates[0], &rates[1]), 0);
  EXPECT_EQ(samples,
            (std::vector<unsigned char>{0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F, 0, 0, 0, 0, 0, 0}));
}

TEST(PageLines, PaddingBetweenLinesIsNeitherReadNorWritten) {
  constexpr unsigned char kCanaries[] = {0x00, 0x5A, 0xFF};
  constexpr LineOrder kOrders[] = {LineOrder::kTopDown, LineOrder::kBottomUp};
  for (const bool sharpen : {false, true}) {
    const Page expected = convert_laid_out({}, {}, {}, sharpen);
    for (const LineOrder order : kOrders) {
      for (const unsigned char canary : kCanaries) {
        const Page page = convert_laid_out(laid_out(order, 5, canary), laid_out(order, 7, canary),
                                           laid_out(order, 3, canary), sharpen);
        EXPECT_EQ(page.image, expected.image);
        EXPECT_EQ(page.matte, expected.matte);
        EXPECT_TRUE(page.surroundingsUntouched);
      }
    }
  }
}

TEST(PageLines, LinesMayBeginAtOddAddresses) {
  BandLayout odd = laid_out(LineOrder::kTopDown, 1);
  odd.bytesBefore = 17;
  const Page page = convert_laid_out(odd, odd, odd, true);
  EXPECT_EQ(page.image, convert_laid_out({}, {}, {}, true).image);
  EXPECT_TRUE(page.surroundingsUntouched);
}

TEST(PageLines, ThePlacesOfTheBandsDoNotMatter) {
  BandLayout far = laid_out(LineOrder::kTopDown);
  far.left = INT64_MAX - 100;
  far.top = INT64_MIN;
  BandLayout negative = laid_out(LineOrder::kTopDown);
  negative.left = -3;
  negative.top = 616;
  const Page page = convert_laid_out(far, negative, far, true);
  const Page expected = convert_laid_out({}, {}, {}, true);
  EXPECT_EQ(page.image, expected.image);
  EXPECT_EQ(page.matte, expected.matte);
}

TEST(PageLines, NothingOfTheRecordsIsChanged) {
  TestBand source(2, 2, 3);
  TestBand destination(2, 2, 6);
  unsigned char* const pixels = destination.record.pBits;
  const tagMVChangeParams params = plain_params();
  unsigned char rates[2] = {};
  ASSERT_EQ(
      MVChangeImage(&source.record, &params, &destination.record, nullptr, &rates[0], &rates[1]),
      0);
  EXPECT_EQ(destination.record.pBits, pixels);
  EXPECT_EQ(destination.record.lStride, -12);
  EXPECT_EQ(destination.record.rcBand.right, 2);
  EXPECT_EQ(destination.record.rcBand.bottom, 2);
}

}  // namespace
