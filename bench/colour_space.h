// SPDX-License-Identifier: Apache-2.0
//
// sRGB and CIE L*a*b* under D50, the white of ICC profiles.
#ifndef TQR7_BENCH_COLOUR_SPACE_H
#define TQR7_BENCH_COLOUR_SPACE_H

#include <array>

namespace bench {

/// 8-bit sRGB, as pictures have it.
using Rgb8 = std::array<unsigned char, 3>;

/// CIE 1976 L*a*b*, white D50 (X 0.9642, Y 1, Z 0.8249).
struct Lab {
  double lightness;
  double a;
  double b;
};

/// sRGB's curve (IEC 61966-2-1): an encoded level 0 … 1 as an amount of light, and back.
double light_of_level(double level);
double level_of_light(double light);

/// An encoded sRGB colour (levels 0 … 1) as Lab, brought from D65 to D50 by Bradford's
/// transformation. Matrices are worked out from sRGB's primaries and whites (IEC 61966-2-1).
Lab lab_of_levels(const std::array<double, 3>& levels);
Lab lab_of(const Rgb8& colour);

/// The encoded sRGB levels of a Lab colour, not clipped: outside 0 … 1 a screen cannot show it.
std::array<double, 3> levels_of(const Lab& lab);

}  // namespace bench

#endif  // TQR7_BENCH_COLOUR_SPACE_H
