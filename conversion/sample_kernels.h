// SPDX-License-Identifier: Apache-2.0
//
// The inner loops from one scale of numbers to another and to the engine's samples, a line at a
// time, in the widest vectors that the processor has. Every processor gives the same numbers.
#ifndef TQR7_CONVERSION_SAMPLE_KERNELS_H
#define TQR7_CONVERSION_SAMPLE_KERNELS_H

#include <cstddef>
#include <cstdint>

#include "conversion/line_planes.h"

/// Turns numbers of the fine scale (white 4080) into places in the table: round(number × 16384 /
/// 4080).
void positions_of_fine(const LinePlanes& line, std::size_t pixels);

/// Turns 8-bit numbers into places in the table: round(number × 16384 / 255).
void positions_of_bytes(const LinePlanes& line, std::size_t pixels);

/// The samples of `pixels` R, G, B bytes without any profile, round(byte × 16383 / 255), written as
/// interpolate_line() writes them. Returns the sum of all samples.
std::uint64_t samples_of_bytes(const unsigned char* rgb, std::size_t pixels,
                               unsigned char* samples);

/// Joins three planes of samples into pixels of R, G, B, as interpolate_line() writes them. Returns
/// the sum of all samples.
std::uint64_t join_line(const LinePlanes& line, std::size_t pixels, unsigned char* samples);

#endif  // TQR7_CONVERSION_SAMPLE_KERNELS_H
