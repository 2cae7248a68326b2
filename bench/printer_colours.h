// SPDX-License-Identifier: Apache-2.0
//
// What an ICC profile says of the printer, worked out by Little CMS in floating point: the truth
// that the conversion is held to.
#ifndef TQR7_BENCH_PRINTER_COLOURS_H
#define TQR7_BENCH_PRINTER_COLOURS_H

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "bench/colour_space.h"
#include "bench/little_cms.h"

namespace bench {

/// Amounts of R, G, B light that the printer is asked for; it can print 0 … 1.
using DeviceColour = std::array<double, 3>;

DeviceColour clipped(const DeviceColour& device);
/// Whether the printer can print it, give or take a thousandth of an 8-bit step.
bool printable(const DeviceColour& device);
/// Three samples of the print engine as the colour that they stand for.
DeviceColour device_of_samples(const std::uint16_t* samples);

/// A printer as its profile describes it.
class PrinterColours {
 public:
  explicit PrinterColours(std::span<const unsigned char> profile);

  /// The device colour of each sRGB colour: relative colorimetric with black-point compensation,
  /// not clipped where the profile's kind allows it (a matrix does, a table does not).
  std::vector<DeviceColour> device_of(std::span<const Rgb8> colours) const;

  /// The print of each device colour, seen relative to the paper's white.
  std::vector<Lab> print_of(std::span<const DeviceColour> devices) const;

  /// The device colour nearest to each Lab colour, relative to the paper's white, without
  /// black-point compensation.
  std::vector<DeviceColour> device_for(std::span<const Lab> colours) const;

 private:
  Transform fromSrgb_;
  Transform toLab_;
  Transform fromLab_;
};

}  // namespace bench

#endif  // TQR7_BENCH_PRINTER_COLOURS_H
