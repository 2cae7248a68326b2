// SPDX-License-Identifier: Apache-2.0
//
// Pages converted at the same time, or one after the other, come out as alone.
#include <gtest/gtest.h>

#include <thread>

#include "tests/unit/conversion/test_page.h"

namespace {

tagMVChangeParams soft_params() {
  tagMVChangeParams params = plain_params();
  params.nTone[0] = -5;
  return params;
}

tagMVChangeParams sharp_params() {
  tagMVChangeParams params = plain_params();
  params.dwFlags |= kChangeFlagSharpness;
  params.nSharpness = 6;
  params.nTone[6] = 100;
  return params;
}

std::size_t pages_unlike(const Converted& expected, std::size_t width,
                         const tagMVChangeParams& params) {
  std::size_t unlike = 0;
  for (int i = 0; i < 40; ++i) {
    const Converted page = convert(width, 30, params, busy_picture);
    unlike += page.samples != expected.samples || page.rgbRate != expected.rgbRate ? 1 : 0;
  }
  return unlike;
}

TEST(CalledFromTwoThreads, EachThreadGetsThePageItWouldGetAlone) {
  const Converted soft = convert(50, 30, soft_params(), busy_picture);
  const Converted sharp = convert(33, 30, sharp_params(), busy_picture);
  std::size_t softUnlike = 1;
  std::size_t sharpUnlike = 1;
  std::thread first([&] { softUnlike = pages_unlike(soft, 50, soft_params()); });
  std::thread second([&] { sharpUnlike = pages_unlike(sharp, 33, sharp_params()); });
  first.join();
  second.join();
  EXPECT_EQ(softUnlike, 0U);
  EXPECT_EQ(sharpUnlike, 0U);
}

TEST(CalledFromTwoThreads, APageAfterAnotherComesOutAsTheFirstOfAll) {
  const Converted before = convert(20, 9, soft_params(), busy_picture);
  convert(50, 30, sharp_params(), busy_picture);
  EXPECT_EQ(convert(20, 9, soft_params(), busy_picture).samples, before.samples);
}

}  // namespace
