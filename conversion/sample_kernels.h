// SPDX-License-Identifier: Apache-2.0
//
// The inner loops that make the engine's samples without a colour table, a line at a time, in the
// widest vectors that the processor has. The numbers are the same on every processor.
#ifndef TQR7_CONVERSION_SAMPLE_KERNELS_H
#define TQR7_CONVERSION_SAMPLE_KERNELS_H

#include <cstddef>
#include <cstdint>

#include "conversion/line_planes.h"

/// The samples of `pixels` R, G, B bytes without any profile, round(byte × 16383 / 255), written as
/// interpolate_line() writes them. Returns the sum of all samples.
std::uint64_t samples_of_bytes(const unsigned char* rgb, std::size_t pixels,
                               unsigned char* samples);

/// Joins three planes of samples into pixels of R, G, B, as interpolate_line() writes them. Returns
/// the sum of all samples.
std::uint64_t join_line(const LinePlanes& line, std::size_t pixels, unsigned char* samples);

#endif  // TQR7_CONVERSION_SAMPLE_KERNELS_H
