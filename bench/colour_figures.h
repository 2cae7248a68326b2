// SPDX-License-Identifier: Apache-2.0
//
// The accuracy of the conversion as figures, each measured through the library itself. They throw
// std::runtime_error when the library refuses a page.
#ifndef TQR7_BENCH_COLOUR_FIGURES_H
#define TQR7_BENCH_COLOUR_FIGURES_H

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "bench/colour_space.h"
#include "bench/printer_colours.h"
#include "bench/spread.h"
#include "decoder/soft_proof.h"

namespace bench {

/// What the figures are held to. Differences are CIEDE2000, distances from neutral 1/1023 of
/// full scale.
namespace target {
inline constexpr double kRoundTripMean = 0.5;
inline constexpr double kRoundTripPercentile95 = 1.0;
inline constexpr double kRoundTripLargest = 2.0;
inline constexpr double kProfileMean = 0.1;
inline constexpr double kProfileLargest = 2.0;
inline constexpr double kTableProfileLargest = 4.0;
inline constexpr double kFromNeutral = 1.0;
inline constexpr double kNoiseGain = 1.15;
inline constexpr double kTextureLowPower = 0.35;
inline constexpr double kTextureLowFrequency = 1.0 / 16.0;  // cycles a pixel
}  // namespace target

/// The printer that a conversion is for: its module folder and the profile that lies there.
struct MeasuredPrinter {
  std::string moduleFolder;  ///< ends in "/"
  PrinterColours colours;
};

/// Those of the colours that the printer can print.
std::vector<Rgb8> printable_of(std::span<const Rgb8> colours, const PrinterColours& printer);

/// From the colours of a photo through conversion and proof back to the screen: how far each of
/// the printable ones has moved. Sharpening off, tone 0.
Spread round_trip(std::span<const Rgb8> colours, const MeasuredPrinter& printer,
                  const decoder::SoftProof& proof);

/// How far the prints of all colours are from those that Little CMS's own floating-point transform
/// asks for, with what the printer cannot print clipped channel by channel.
Spread against_profile(std::span<const Rgb8> colours, const MeasuredPrinter& printer);

struct GreyAxis {
  std::array<std::uint16_t, 3> white{};  ///< the samples of 255
  bool rising = false;                   ///< every channel rises with every step
  double fromNeutral = 0.0;              ///< see from_neutral()
};

/// The greys 0 … 255, with or without colour conversion.
GreyAxis grey_axis(bool colourConversion, const std::string& moduleFolder);

/// The largest distance of any sample from the mean of its pixel, in 1/1023 of full scale.
double from_neutral(std::span<const std::uint16_t> samples);

/// How many times stronger noise of ±2 is behind the sharpening than without, at a level 0 … 6.
double noise_gain(int sharpness);

/// The matte texture's power below target::kTextureLowFrequency; white noise has 1.
double texture_low_power();

}  // namespace bench

#endif  // TQR7_BENCH_COLOUR_FIGURES_H
