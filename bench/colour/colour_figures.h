// SPDX-License-Identifier: Apache-2.0
//
// The accuracy of the conversion as figures, each measured through the library itself. They throw
// std::runtime_error when the library refuses a page.
#ifndef TQR7_BENCH_COLOUR_COLOUR_FIGURES_H
#define TQR7_BENCH_COLOUR_COLOUR_FIGURES_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "bench/colour/printer_colours.h"
#include "decoder/soft_proof.h"

namespace bench {

/// How far colours are from what they should be (CIEDE2000), as a few numbers.
struct Spread {
  std::size_t count = 0;
  double mean = 0.0;
  double percentile95 = 0.0;  ///< the smallest value that 95 % of all do not exceed
  double largest = 0.0;
};

Spread spread_of(std::vector<double> values);

/// What the figures are held to: differences are CIEDE2000, distances from neutral 1/1023 of full
/// scale.
inline constexpr Spread kRoundTripMost = {0, 0.5, 1.0, 2.0};
inline constexpr Spread kProfileMost = {0, 0.1, 1.0, 2.0};
inline constexpr Spread kTableProfileMost = {0, 0.1, 1.0, 4.0};  ///< of an owner's table profile
inline constexpr double kFromNeutralMost = 1.0;
inline constexpr double kNoiseGainMost = 1.15;

bool within(const Spread& spread, const Spread& most);

/// The printer that a conversion is for: its module folder, which ends in "/", and the profile that
/// lies there.
struct MeasuredPrinter {
  std::string module_folder;
  PrinterColours colours;
};

/// From the colours of a photo through conversion and proof back to the screen: how far each of
/// those that the printer can print has moved. Sharpening off, tone 0.
Spread round_trip(std::span<const Rgb8> colours, const MeasuredPrinter& printer,
                  const decoder::SoftProof& proof);

/// How far the prints of all colours are from those that Little CMS's own floating-point transform
/// asks for, with what the printer cannot print clipped channel by channel.
Spread against_profile(std::span<const Rgb8> colours, const MeasuredPrinter& printer);

struct GreyAxis {
  int white = 0;              ///< how far the samples of 255 are from 0x3FFF
  int level = 0;              ///< steps with which a channel does not rise
  double from_neutral = 0.0;  ///< see from_neutral()
};

/// The greys 0 … 255, with or without colour conversion.
GreyAxis grey_axis(bool colour_conversion, const std::string& module_folder);

/// The largest distance of any sample from the mean of its pixel, in 1/1023 of full scale.
double from_neutral(std::span<const std::uint16_t> samples);

/// The same of a zone plate with Normal sharpening.
double sharpened_from_neutral(const std::string& module_folder);

/// How many times stronger noise of ±2 is after Normal sharpening than without.
double noise_gain();

}  // namespace bench

#endif  // TQR7_BENCH_COLOUR_COLOUR_FIGURES_H
