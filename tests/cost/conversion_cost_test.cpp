// SPDX-License-Identifier: Apache-2.0
//
// What a pixel costs in the conversion's loops, in instructions. The limits are half as much again
// as the loops took when they were written: they are there for a loop that has become twice as
// long, or that the compiler no longer makes of vectors.
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "bench/speed/page_instructions.h"

namespace {

struct Limits {
  double off;  ///< instructions a pixel with all settings off
  double on;   ///< with colours, sharpening and a matte plane
};

const std::map<std::string, Limits> kLimits = {
    {"AVX2", {5.4, 57}},
    {"SSE4", {12.4, 112}},
    {"SSSE3", {13, 121}},
    {"what every processor has", {27, 462}},
};

TEST(ConversionCost, OfAPixelWithAllSettingsOffHasNotDoubled) {
  const std::string target = bench::counted_target().name;
  EXPECT_LE(bench::conversion_pixel(false), kLimits.at(target).off)
      << "instructions a pixel, loops for " << target;
}

TEST(ConversionCost, OfAPixelWithColoursSharpeningAndMatteHasNotDoubled) {
  const std::string target = bench::counted_target().name;
  EXPECT_LE(bench::conversion_pixel(true), kLimits.at(target).on)
      << "instructions a pixel, loops for " << target;
}

}  // namespace
