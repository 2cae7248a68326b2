// SPDX-License-Identifier: Apache-2.0
//
// How the power of a texture is shared out among its frequencies.
#ifndef TQR7_BENCH_TEXTURE_SPECTRUM_H
#define TQR7_BENCH_TEXTURE_SPECTRUM_H

#include <cstddef>
#include <span>
#include <vector>

namespace bench {

/// Power at a distance from frequency 0, averaged around the ring; white noise of the texture's
/// variance would have 1 everywhere.
struct RadialPower {
  double frequency;  ///< cycles a pixel
  double power;
};

/// The spectrum of a width × height plane of bytes, as the mean of all tiles of kSpectrumTile ×
/// kSpectrumTile that fit, each under a Hann window. Rings of 1/kSpectrumTile up to half a cycle.
inline constexpr std::size_t kSpectrumTile = 256;
std::vector<RadialPower> radial_spectrum(std::span<const unsigned char> plane, std::size_t width,
                                         std::size_t height);

/// The mean power of all frequencies above 0 and below `limit` cycles a pixel, each ring counted by
/// its length.
double power_below(std::span<const RadialPower> spectrum, double limit);

}  // namespace bench

#endif  // TQR7_BENCH_TEXTURE_SPECTRUM_H
