// SPDX-License-Identifier: Apache-2.0
#include "conversion/matte.h"

#include <algorithm>
#include <numeric>

#include "conversion/matte_tile.h"

std::uint64_t lay_matte_row(std::size_t y, unsigned char* row, std::size_t width) {
  const unsigned char* piece = kMatteTile[y % kMatteTileSide];
  const std::size_t rest = width % kMatteTileSide;
  for (unsigned char* const last = row + (width - rest); row != last; row += kMatteTileSide) {
    std::copy_n(piece, kMatteTileSide, row);
  }
  std::copy_n(piece, rest, row);
  const std::uint64_t whole = width / kMatteTileSide;
  return whole * kMatteRowSums[y % kMatteTileSide] +
         std::accumulate(piece, piece + rest, std::uint64_t{0});
}
