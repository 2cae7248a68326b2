// SPDX-License-Identifier: Apache-2.0
//
// The tile of the matte texture: constants that make-matte-tile writes when the library is built.
#ifndef TQR7_CONVERSION_MATTE_TILE_H
#define TQR7_CONVERSION_MATTE_TILE_H

#include <cstddef>
#include <cstdint>

/// Dots along each side (22 mm at 300 dpi): twice the distance within which nothing may repeat. The
/// tile has 64 KiB, which fit into a processor's cache.
inline constexpr std::size_t kMatteTileSide = 256;

/// Overcoat of each dot, rows from the top.
extern const unsigned char kMatteTile[kMatteTileSide][kMatteTileSide];
/// The sum of each row.
extern const std::uint32_t kMatteRowSums[kMatteTileSide];

#endif  // TQR7_CONVERSION_MATTE_TILE_H
