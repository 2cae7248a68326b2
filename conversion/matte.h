// SPDX-License-Identifier: Apache-2.0
//
// The matte finish: how much overcoat goes on each dot, as a fine grain that breaks up the shine.
#ifndef TQR7_CONVERSION_MATTE_H
#define TQR7_CONVERSION_MATTE_H

#include <cstddef>
#include <cstdint>

/// The overcoat around which the grain swings (255 is full overcoat), and its extremes. No dot is
/// left bare: the overcoat also protects the dyes.
inline constexpr int kMatteLowest = 63;
inline constexpr int kMatteHighest = 255;
inline constexpr int kMatteMiddle = (kMatteLowest + kMatteHighest) / 2;

/// Writes `width` bytes of the texture's row `y`, counted from the sheet's top, and returns their
/// sum. The texture is blue noise: a tile of kMatteTileSide dots each way laid side by side from
/// the top left corner, joined without a seam. A dot's value depends on its column and row alone:
/// the same on every print and for every sheet size.
std::uint64_t lay_matte_row(std::size_t y, unsigned char* row, std::size_t width);

#endif  // TQR7_CONVERSION_MATTE_H
