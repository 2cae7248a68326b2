// SPDX-License-Identifier: Apache-2.0
//
// Pages on a computer without memory.
#include <gtest/gtest.h>

#include "conversion/change_codes.h"
#include "tests/unit/conversion/refused_memory.h"
#include "tests/unit/conversion/test_page.h"

namespace {

/// The requests of a page: its planes, three for the sharpening, the tables of its tones.
constexpr int kRequests = 5;

class NoMemory : public testing::Test {
 protected:
  long callWithGrants(int grants) {
    memory_script().grantsLeft = grants;
    const long code = MVChangeImage(&source.record, &params, &destination.record, &matte.record,
                                    &rates[0], &rates[1]);
    memory_script().grantsLeft = -1;
    return code;
  }

  void SetUp() override {
    params.dwFlags |= kChangeFlagSharpness;
    params.nSharpness = 3;
  }

  TestBand source{6, 4, 3};
  TestBand destination{6, 4, 6};
  TestBand matte{6, 16, 1};
  tagMVChangeParams params = plain_params();
  unsigned char rates[2] = {0xA5, 0xA5};
};

TEST_F(NoMemory, EachRefusedRequestGives51AndNothingIsWritten) {
  for (int grants = 0; grants < kRequests; ++grants) {
    EXPECT_EQ(callWithGrants(grants), 51) << "refused after " << grants;
    EXPECT_TRUE(destination.untouched()) << "refused after " << grants;
    EXPECT_TRUE(matte.untouched()) << "refused after " << grants;
    EXPECT_EQ(rates[0], 0xA5);
    EXPECT_EQ(rates[1], 0xA5);
  }
}

TEST_F(NoMemory, APageThatGetsAllItsMemoryIsConverted) {
  EXPECT_EQ(callWithGrants(kRequests), 0);
  EXPECT_FALSE(destination.untouched());
}

TEST_F(NoMemory, AfterARefusalTheNextPageIsConverted) {
  EXPECT_EQ(callWithGrants(2), 51);
  EXPECT_EQ(callWithGrants(-1), 0);
}

TEST_F(NoMemory, TheLargestSheetTakesAQuarterOfAMegabyteBesideItsBands) {
  TestBand sheet(1852, 2434, 3);
  TestBand engine(1852, 2434, 6);
  TestBand overcoat(1852, 2446, 1);
  params.dwFlags |= kChangeFlagColorConversion;
  params.nTone[0] = 1;
  memory_script().bytesAsked = 0;
  ASSERT_EQ(
      MVChangeImage(&sheet.record, &params, &engine.record, &overcoat.record, &rates[0], &rates[1]),
      0);
  EXPECT_GT(memory_script().bytesAsked, 3U * 2 * 1852);
  EXPECT_LT(memory_script().bytesAsked, 250000U);
}

}  // namespace
