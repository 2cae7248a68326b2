// SPDX-License-Identifier: Apache-2.0
//
// What a page costs, in instructions: no clock and no busy machine comes into it. The counts are
// for the processor that valgrind plays (bench/speed/instruction_count.h), so loops for AVX-512 are
// not among what is counted.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

#include "bench/speed/empty_job.h"
#include "bench/speed/instruction_count.h"
#include "bench/speed/page_instructions.h"

namespace {

using bench::Content;
using bench::PageInstructions;

const PageInstructions& Floor() {
  static const PageInstructions counted = bench::floor_page(Content::White);
  return counted;
}

const PageInstructions& FilterOfWhite() {
  static const PageInstructions counted = bench::filter_page(Content::White);
  return counted;
}

const PageInstructions& FilterOfPhoto() {
  static const PageInstructions counted = bench::filter_page(Content::Photo);
  return counted;
}

void ExpectAtMost(std::uint64_t filter, std::uint64_t floor, double factor) {
  const double ratio = static_cast<double>(filter) / static_cast<double>(floor);
  EXPECT_LE(ratio, factor) << "the filter takes " << filter << " instructions, its floor " << floor;
}

// A floor that did more than that would let the filter do more, too.
TEST(Cost, OfTheFloorIsThatOfMovingBytes) {
  constexpr double kPixels = 1852 * 1232;
  EXPECT_LE(static_cast<double>(Floor().further) / kPixels, 6.0) << "instructions a pixel";
}

TEST(Cost, OfTheFirstPageIsAtMostAFifthAboveMovingItsBytes) {
  ExpectAtMost(FilterOfPhoto().first, Floor().first, 1.2);
}

TEST(Cost, OfAFurtherPageIsAtMostAFifthAboveMovingItsBytes) {
  ExpectAtMost(FilterOfPhoto().further, Floor().further, 1.2);
}

TEST(Cost, OfAPhotoIsThatOfAWhitePage) {
  const auto photo = static_cast<double>(FilterOfPhoto().further);
  const auto white = static_cast<double>(FilterOfWhite().further);
  EXPECT_LE(std::abs(photo - white), 0.01 * white)
      << "instructions: the photo " << photo << ", the white page " << white;
}

// Most of it is the loader's work with the C++ library: what loads more libraries is found.
TEST(Cost, OfStartingIsAtMostTwoFifthsAboveLoadingLibcupsAndThePpd) {
  const bench::EmptyJob job;
  ExpectAtMost(bench::count_instructions(job.filter()).total,
               bench::count_instructions(job.floor()).total, 1.4);
}

}  // namespace
