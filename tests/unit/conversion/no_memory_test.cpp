// SPDX-License-Identifier: Apache-2.0
//
// A computer without memory: this program's own allocator refuses at a chosen request.
#include <gtest/gtest.h>

#include <new>

#include "conversion/change_codes.h"
#include "tests/unit/conversion/test_page.h"

namespace {

/// Requests still to be granted before one is refused; negative: all are granted.
int grantsLeft = -1;

/// Bytes asked for so far.
std::size_t bytesAsked = 0;

bool refuse_next() {
  return grantsLeft >= 0 && grantsLeft-- == 0;
}

}  // namespace

// The library asks in this form only. What is granted comes from the array-new that array-delete
// belongs to.
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  bytesAsked += size;
  if (refuse_next()) {
    return nullptr;
  }
  try {
    return ::operator new[](size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

namespace {

/// The requests of a page: its planes, three for the sharpening, the tables of its tones.
constexpr int kRequests = 5;

class NoMemory : public testing::Test {
 protected:
  long callWithGrants(int grants) {
    grantsLeft = grants;
    const long code = MVChangeImage(&source.record, &params, &destination.record, &matte.record,
                                    &rates[0], &rates[1]);
    grantsLeft = -1;
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
  bytesAsked = 0;
  ASSERT_EQ(
      MVChangeImage(&sheet.record, &params, &engine.record, &overcoat.record, &rates[0], &rates[1]),
      0);
  EXPECT_GT(bytesAsked, 3U * 2 * 1852);
  EXPECT_LT(bytesAsked, 250000U);
}

}  // namespace
