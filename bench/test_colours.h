// SPDX-License-Identifier: Apache-2.0
//
// Sets of colours on which accuracy is measured.
#ifndef TQR7_BENCH_TEST_COLOURS_H
#define TQR7_BENCH_TEST_COLOURS_H

#include <cstddef>
#include <vector>

#include "bench/colour_space.h"

namespace bench {

/// The 24 patches of the usual colour checker, row by row, by the sRGB values that its maker
/// publishes (dark skin first, black last).
std::vector<Rgb8> colour_checker();

/// The greys 0 … 255.
std::vector<Rgb8> grey_ramp();

/// All colours of `steps` levels a channel, 0 and 255 among them; from 2 steps.
std::vector<Rgb8> colour_grid(std::size_t steps);

/// `count` colours spread evenly over all of sRGB; the same in every run.
std::vector<Rgb8> random_colours(std::size_t count);

}  // namespace bench

#endif  // TQR7_BENCH_TEST_COLOURS_H
