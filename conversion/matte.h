// SPDX-License-Identifier: Apache-2.0
//
// The matte finish: the amount of overcoat on each dot, a fine grain that breaks up the shine.
#ifndef TQR7_CONVERSION_MATTE_H
#define TQR7_CONVERSION_MATTE_H

#include <cstddef>
#include <cstdint>

/// The grain's mean overcoat (255 is full overcoat) and its extremes. No dot is bare: the overcoat
/// also protects the dyes.
inline constexpr int kMatteLowest = 63;
inline constexpr int kMatteHighest = 255;
inline constexpr int kMatteMiddle = (kMatteLowest + kMatteHighest) / 2;

/// Writes `width` bytes of the texture's row `y`, counted from the sheet's top, and returns their
/// sum. The texture is blue noise: a tile of kMatteTileSide dots each way, repeated from the top
/// left corner without a seam. A dot's value depends only on its column and row: it is the same on
/// every print and for every sheet size.
std::uint64_t lay_matte_row(std::size_t y, unsigned char* row, std::size_t width);

#endif  // TQR7_CONVERSION_MATTE_H
