// SPDX-License-Identifier: Apache-2.0
//
// Raster headers that promise what cannot be: nothing is read past a line, and what is missing
// stays white.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/seeded_random.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

Pixels White() {
  return Pixels::White(1550, 1082);
}

TEST(HostileHeader, OfOneByteALineAndAHugeWidthFillsOneByteARow) {
  Pixels seen = White();
  for (std::size_t row = 0; row < 5; ++row) {
    seen.rgb[row * 4650] = static_cast<char>('a' + row);
  }
  ExpectSheet(Print({.input = UncheckedStream(RasterPage(500000000, 5, 8, 1, "abcde"))}), seen,
              "0");
}

TEST(HostileHeader, OfThreeBytesALineAndAHugeWidthFillsOnePixelARow) {
  Pixels seen = White();
  seen.rgb.replace(0, 3, "abc");
  seen.rgb.replace(4650, 3, "def");
  ExpectSheet(Print({.input = UncheckedStream(RasterPage(500000000, 2, 24, 3, "abcdef"))}), seen,
              "0");
}

TEST(HostileHeader, OfANegativeWidthFillsNothing) {
  ExpectSheet(
      Print({.input = UncheckedStream(RasterPage(0xFFFFFFFF, 4, 24, 30, SmallPixels().rgb))}),
      White(), "0");
}

TEST(HostileHeader, OfTheMostNegativeWidthFillsNothing) {
  ExpectSheet(
      Print({.input = UncheckedStream(RasterPage(0x80000000, 4, 24, 30, SmallPixels().rgb))}),
      White(), "0");
}

TEST(HostileHeader, OfNoWidthFillsNothing) {
  ExpectSheet(Print({.input = UncheckedStream(RasterPage(0, 4, 24, 30, SmallPixels().rgb))}),
              White(), "0");
}

TEST(HostileHeader, OfANegativeHeightReadsNoLine) {
  ExpectSheet(Print({.input = UncheckedStream(RasterPage(10, 0x80000000, 24, 30, ""))}), White(),
              "");
}

TEST(HostileHeader, OfAHugeHeightEndsWithItsLines) {
  ExpectSheet(
      Print({.input = UncheckedStream(RasterPage(10, 0x7FFFFFFF, 24, 30, SmallPixels().rgb))}),
      SmallPixels().On(1550, 1082), "0");
}

TEST(HostileHeader, OfNegativeCopiesIsAccountedAsItStands) {
  const Outcome outcome = Print({.input = UncheckedStream(RasterPage(SmallPixels(), 0xFFFFFFFF))});

  EXPECT_NE(outcome.log.find("\nPAGE: 1 -1\n"), std::string::npos);
  EXPECT_EQ(outcome.status, 0);
}

/// Numbers at which arithmetic goes wrong, and others.
unsigned HostileNumber(std::mt19937* random) {
  constexpr unsigned kEdges[] = {0,          1,          2,          127,        128,
                                 4650,       0xFFFF,     500000000,  715827883,  0x7FFFFFFF,
                                 0x80000000, 0xAAAAAAAB, 0xFFFFFFFD, 0xFFFFFFFF, 1551};
  const auto choice = static_cast<std::size_t>((*random)() % (std::size(kEdges) + 4));
  return choice < std::size(kEdges) ? kEdges[choice] : static_cast<unsigned>((*random)() % 5000);
}

TEST(HostileHeader, OfAnyNumbersEndsTheJobInAnOrdinaryWay) {
  std::mt19937 random = SeededRandom(20260304);
  constexpr unsigned kDepths[] = {1, 8, 24, 32};
  for (int round = 0; round < 40; ++round) {
    SCOPED_TRACE(round);
    const unsigned depth = kDepths[random() % std::size(kDepths)];
    const auto pixels_per_line = static_cast<unsigned>(1 + random() % 6000);
    const RasterPage page(HostileNumber(&random), HostileNumber(&random), depth,
                          pixels_per_line * (depth + 7) / 8, Pixels::Pattern(1000, 20).rgb);

    const Outcome outcome = Print({.input = UncheckedStream(page)});

    EXPECT_EQ(outcome.signal, 0);
    EXPECT_TRUE(outcome.status == 0 || outcome.log.ends_with(kNoPages)) << outcome.status;
    EXPECT_TRUE(outcome.stream.ends_with(PrintOut()));
  }
}

TEST(HostileHeader, OfRandomBytesEndsTheJobInAnOrdinaryWay) {
  std::mt19937 random = SeededRandom(4032026);
  for (int round = 0; round < 20; ++round) {
    SCOPED_TRACE(round);
    std::string stream = RasterStream({});
    for (int byte = 0; byte < 4000; ++byte) {
      stream += static_cast<char>(random() & 0xFF);
    }

    const Outcome outcome = Print({.input = stream});

    EXPECT_EQ(outcome.signal, 0);
    EXPECT_TRUE(outcome.status == 0 || outcome.status == 1) << outcome.status;
  }
}

}  // namespace
}  // namespace filter_test
