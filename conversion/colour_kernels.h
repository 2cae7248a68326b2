// SPDX-License-Identifier: Apache-2.0
//
// The inner loop from colours to the engine's samples through the colour table, a line at a time,
// in the widest vectors that the processor has. The numbers are the same on every processor.
#ifndef TQR7_CONVERSION_COLOUR_KERNELS_H
#define TQR7_CONVERSION_COLOUR_KERNELS_H

#include <cstddef>
#include <cstdint>

#include "conversion/colour_table.h"
#include "conversion/line_planes.h"

/// A place along one axis of the table: 512 steps from grid point to grid point, white 16384.
inline constexpr unsigned kCellSteps = 512;
inline constexpr std::uint16_t kPositionWhite = (kGridPoints - 1) * kCellSteps;

/// What the numbers of a line mean.
enum class LineScale {
  kBytes,   ///< the photo's levels, white 255: place = round(number × 16384 / 255)
  kFine,    ///< the fine scale, white 4080: place = round(number × 16384 / 4080)
  kPlaces,  ///< places along the table's axes
};

/// The samples for `pixels` colours, R, G, B of 16 bits each in the machine's order, written to 6
/// bytes a pixel at `samples`, which may begin at any byte. Tetrahedral interpolation: the cell's
/// cube is cut into six tetrahedra along its black-to-white diagonal, so that greys are
/// mixed only of greys. Rounded to the nearest sample, then limited to 0 … 0x3FFF. Returns the sum
/// of all samples written.
std::uint64_t interpolate_line(const ColourTable& table, const LinePlanes& line, LineScale scale,
                               std::size_t pixels, unsigned char* samples);

#endif  // TQR7_CONVERSION_COLOUR_KERNELS_H
