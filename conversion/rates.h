// SPDX-License-Identifier: Apache-2.0
//
// The two rates of the job header: how much dye and how much overcoat a page takes, in per cent.
#ifndef TQR7_CONVERSION_RATES_H
#define TQR7_CONVERSION_RATES_H

#include <cstdint>

/// The overcoat rate of a page without a matte plane: overcoat everywhere.
inline constexpr unsigned char kFullOvercoat = 100;

/// A sum of values and their number. The sum of 16 GiB of samples is far below 2^64.
struct RateSum {
  std::uint64_t total = 0;
  std::uint64_t count = 0;
};

/// The mean of 1 − sample / 0x3FFF in per cent, rounded: 0 for white paper, 100 for black. Only
/// for a sum of at least one sample.
unsigned char rgb_rate(const RateSum& samples);

/// The mean of byte / 255 in per cent, rounded. Only for a sum of at least one byte.
unsigned char op_rate(const RateSum& matte);

#endif  // TQR7_CONVERSION_RATES_H
