// SPDX-License-Identifier: Apache-2.0
//
// The inner loops that make the engine's samples, a line at a time, in the widest vectors that the
// processor has. Every processor gives the same numbers.
#ifndef TQR7_CONVERSION_SAMPLE_KERNELS_H
#define TQR7_CONVERSION_SAMPLE_KERNELS_H

#include <cstddef>
#include <cstdint>

#include "conversion/colour_table.h"
#include "conversion/line_planes.h"

/// A place along one axis of the table: 512 steps from grid point to grid point, white 16384.
inline constexpr unsigned kCellSteps = 512;
inline constexpr std::uint16_t kPositionWhite = (kGridPoints - 1) * kCellSteps;

/// Turns numbers of the fine scale (white 4080) into places in the table: round(number × 16384 /
/// 4080).
void positions_of_fine(const LinePlanes& line, std::size_t pixels);

/// Turns 8-bit numbers into places in the table: round(number × 16384 / 255).
void positions_of_bytes(const LinePlanes& line, std::size_t pixels);

/// The samples for `pixels` places in the table, R, G, B of 16 bits each in the machine's order,
/// written to 6 bytes a pixel at `samples`, which may begin at any byte. Tetrahedral interpolation:
/// the cell's cube is cut into six tetrahedra along its black-to-white diagonal, so that greys are
/// mixed from greys alone. Rounded to the nearest sample, then kept within 0 … 0x3FFF. Returns the
/// sum of all samples written.
std::uint64_t interpolate_line(const ColourTable& table, const LinePlanes& positions,
                               std::size_t pixels, unsigned char* samples);

/// Joins three planes of samples into pixels of R, G, B, as interpolate_line() writes them. Returns
/// the sum of all samples.
std::uint64_t join_line(const LinePlanes& line, std::size_t pixels, unsigned char* samples);

#endif  // TQR7_CONVERSION_SAMPLE_KERNELS_H
