// SPDX-License-Identifier: Apache-2.0
//
// The matte finish: how much overcoat goes on each dot, as a fine grain that breaks up the shine.
#ifndef TQR7_CONVERSION_MATTE_H
#define TQR7_CONVERSION_MATTE_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

/// The overcoat around which the grain swings (255 is full overcoat), and its extremes. No dot is
/// left bare: the overcoat also protects the dyes.
inline constexpr int kMatteMiddle = 159;
inline constexpr int kMatteLowest = 63;
inline constexpr int kMatteHighest = 255;

/// The texture, row by row from the sheet's top. A dot's value depends on its column and row
/// alone: the same on every print and for every sheet size, without a tile that could repeat or
/// show a seam.
class MatteTexture {
 public:
  /// Takes the memory for rows of this width. False when it cannot be had.
  bool reserve(std::size_t width);

  /// Writes the next row, `width` bytes; the first call writes the top row.
  void next_row(unsigned char* row);

 private:
  static constexpr std::size_t kRows = 3;

  unsigned char* noise_row(std::size_t number) { return &noise_[number % kRows * (width_ + 2)]; }
  void make_noise(std::size_t number);

  std::size_t width_ = 0;
  std::size_t y_ = 0;
  std::unique_ptr<unsigned char[]> noise_;  ///< rows y … y + 2, with a dot to each side
};

/// Writes `width` bytes of the texture's row `y`, counted from the sheet's top, and returns their
/// sum. The texture is blue noise: a tile of kMatteTileSide dots each way laid side by side from
/// the top left corner, joined without a seam. A dot's value depends on its column and row alone:
/// the same on every print and for every sheet size.
std::uint64_t lay_matte_row(std::size_t y, unsigned char* row, std::size_t width);

#endif  // TQR7_CONVERSION_MATTE_H
