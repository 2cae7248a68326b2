// SPDX-License-Identifier: Apache-2.0
//
// Pictures on which the conversion is measured; each is drawn anew, the same in every run.
#ifndef TQR7_BENCH_TEST_PICTURES_H
#define TQR7_BENCH_TEST_PICTURES_H

#include <cstddef>

#include "bench/picture.h"

namespace bench {

/// The sample photo's scene (sky, foliage, skin, a sign, a colour chart) over the whole page, each
/// channel of each pixel ±2 off, as a camera's grain has it. A page higher than wide shows it
/// twice, one above the other.
Picture photo(std::size_t width, std::size_t height);

/// Grey rings from no detail in the middle to a period of two pixels at the nearest edges.
Picture zone_plate(std::size_t side);

/// Lines of black text on white in four sizes, the smallest letters 7 pixels high (0.6 mm at 300
/// dpi); 400 × 200 pixels.
Picture text();

/// An even grey with noise of ±2 in each pixel, the same in all three channels.
Picture noisy_grey(std::size_t side, unsigned char grey);

}  // namespace bench

#endif  // TQR7_BENCH_TEST_PICTURES_H
