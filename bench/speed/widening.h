// SPDX-License-Identifier: Apache-2.0
//
// The least that turns a byte of a raster page into a sample of the printer's: the byte's bits on
// 14 bits, so that white, 0xFF, becomes the printer's 0x3FFF.
#ifndef TQR7_BENCH_SPEED_WIDENING_H
#define TQR7_BENCH_SPEED_WIDENING_H

#include <cstddef>
#include <cstdint>

namespace bench {

/// Widens `count` bytes into as many samples.
inline void widen(const unsigned char* bytes, std::uint16_t* samples, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    const unsigned byte = bytes[i];
    samples[i] = static_cast<std::uint16_t>(byte << 6U | byte >> 2U);
  }
}

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_WIDENING_H
