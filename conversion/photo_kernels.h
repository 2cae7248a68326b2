// SPDX-License-Identifier: Apache-2.0
//
// The inner loops that read the photo and sharpen it, a line at a time, in the widest vectors that
// the processor has. Every processor gives the same numbers.
//
// Lines of numbers have kLineMargin numbers of room to each side, which the loops may overwrite.
#ifndef TQR7_CONVERSION_PHOTO_KERNELS_H
#define TQR7_CONVERSION_PHOTO_KERNELS_H

#include <array>
#include <cstddef>
#include <cstdint>

#include "conversion/line_planes.h"

/// Takes `pixels` R, G, B bytes apart.
void split_line(const unsigned char* rgb, std::size_t pixels, const LinePlanes& line);

/// The fine scale: sixteen steps to each of the photo's 8-bit ones, white 4080.
inline constexpr unsigned kFineSteps = 16;
inline constexpr std::uint16_t kFineWhite = 255 * kFineSteps;

/// Luma of `pixels` R, G, B bytes on the fine scale: (54 R + 183 G + 19 B) / 16 rounded, the
/// weights of ITU-R BT.709 in 1/256.
void luma_line(const unsigned char* rgb, std::size_t pixels, std::uint16_t* luma);

/// Weighs each number with its neighbours along the line: 1 4 6 4 1 sixteenths, rounded. Beyond an
/// end the end counts on; `line`'s margins are set to it. A flat line comes out as it went in.
void blur_along(std::uint16_t* line, std::size_t pixels, std::uint16_t* blurred);

/// The same across five lines, above to below.
void blur_across(const std::array<const std::uint16_t*, 5>& lines, std::size_t pixels,
                 std::uint16_t* blurred);

/// How far luma may differ from its surroundings and still be left alone: three 8-bit steps, which
/// is where the grain of skies and skin ends.
inline constexpr std::uint16_t kSharpeningThreshold = 3 * kFineSteps;

/// Sharpens one line: each pixel's luma less its blurred luma, less the threshold, times strength /
/// 8, is added to all three of its channels, which are kept within 0 … kFineWhite. `strength` is
/// 0 … 7.
void sharpen_line(const unsigned char* rgb, const std::uint16_t* blurred, std::size_t pixels,
                  int strength, const LinePlanes& fine);

#endif  // TQR7_CONVERSION_PHOTO_KERNELS_H
