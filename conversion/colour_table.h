// SPDX-License-Identifier: Apache-2.0
//
// The colour table: the printer's samples for a grid of sRGB colours, between which the page's
// colours are interpolated.
#ifndef TQR7_CONVERSION_COLOUR_TABLE_H
#define TQR7_CONVERSION_COLOUR_TABLE_H

#include <array>
#include <cstddef>
#include <cstdint>

/// Grid points along each of red, green and blue: point i is the sRGB-encoded level i / 32.
inline constexpr std::size_t kGridPoints = 33;

/// Engine samples of R, G and B, and a 0 that makes the node eight bytes. They are not clipped: the
/// samples of a colour that the printer cannot print may be outside 0 … 0x3FFF. They are clipped
/// after the interpolation, so that clipping begins at the right colour, not at a grid point.
using ColourNode = std::array<std::int16_t, 4>;

/// Node (r, g, b) is nodes[(r * kGridPoints + g) * kGridPoints + b]. White is 0x3FFF three times.
struct alignas(64) ColourTable {
  std::array<ColourNode, kGridPoints * kGridPoints * kGridPoints> nodes;
};

#endif  // TQR7_CONVERSION_COLOUR_TABLE_H
