// SPDX-License-Identifier: Apache-2.0
//
// The inner loops that read the photo and sharpen it, a line at a time, in the widest vectors that
// the processor has. The numbers are the same on every processor.
//
// A line has kLineMargin more numbers on each side, which the loops may overwrite.
#ifndef TQR7_CONVERSION_PHOTO_KERNELS_H
#define TQR7_CONVERSION_PHOTO_KERNELS_H

#include <array>
#include <cstddef>
#include <cstdint>

#include "conversion/line_planes.h"

/// Splits `pixels` R, G, B bytes into planes.
void split_line(const unsigned char* rgb, std::size_t pixels, const LinePlanes& line);

/// The fine scale: sixteen steps to each of the photo's 8-bit ones, white 4080.
inline constexpr unsigned kFineSteps = 16;
inline constexpr std::uint16_t kFineWhite = 255 * kFineSteps;

/// Luma of `pixels` R, G, B bytes on the fine scale: (54 R + 183 G + 19 B) / 16 rounded, the
/// weights of ITU-R BT.709 in 1/256.
void luma_line(const unsigned char* rgb, std::size_t pixels, std::uint16_t* luma);

/// The weighted mean of each number and its neighbours along the line: 1 4 6 4 1 sixteenths,
/// rounded. Past an end the number at the end is repeated; `line`'s margins are set to it. A flat
/// line does not change.
void blur_along(std::uint16_t* line, std::size_t pixels, std::uint16_t* blurred);

/// The same across five lines, from top to bottom.
void blur_across(const std::array<const std::uint16_t*, 5>& lines, std::size_t pixels,
                 std::uint16_t* blurred);

/// Smaller differences between a pixel's luma and its surroundings are not sharpened: three 8-bit
/// steps, the most that the grain of skies and skin has.
inline constexpr std::uint16_t kSharpeningThreshold = 3 * kFineSteps;

/// Sharpens one line: each pixel's luma minus its blurred luma, minus the threshold, times strength
/// / 8, is added to all three of its channels, which are limited to 0 … kFineWhite. `strength` is
/// 0 … 7.
void sharpen_line(const unsigned char* rgb, const std::uint16_t* blurred, std::size_t pixels,
                  int strength, const LinePlanes& fine);

#endif  // TQR7_CONVERSION_PHOTO_KERNELS_H
