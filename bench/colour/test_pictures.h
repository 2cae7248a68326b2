// SPDX-License-Identifier: Apache-2.0
//
// Colours and pictures on which the conversion is measured; the same in every run.
#ifndef TQR7_BENCH_COLOUR_TEST_PICTURES_H
#define TQR7_BENCH_COLOUR_TEST_PICTURES_H

#include <cstddef>
#include <vector>

#include "bench/colour/picture.h"

namespace bench {

/// The 24 patches of the usual colour checker, row by row, by the sRGB values that its maker
/// publishes (dark skin first, black last).
std::vector<Rgb8> colour_checker();

/// The greys 0 … 255.
std::vector<Rgb8> grey_ramp();

/// `count` colours spread evenly over all of sRGB.
std::vector<Rgb8> random_colours(std::size_t count);

/// The sample photo's scene (sky, foliage, skin, a sign, a colour chart) over the whole page, each
/// channel of each pixel ±2 off, as a camera's grain has it.
Picture photo(std::size_t width, std::size_t height);

/// Grey rings from no detail in the middle to a period of two pixels at the nearest edges.
Picture zone_plate(std::size_t side);

/// An even grey with noise of ±2 in each pixel, the same in all three channels.
Picture noisy_grey(std::size_t side, unsigned char grey);

}  // namespace bench

#endif  // TQR7_BENCH_COLOUR_TEST_PICTURES_H
