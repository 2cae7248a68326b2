// SPDX-License-Identifier: Apache-2.0
//
// What was measured of growth, as one drawing.
#ifndef TQR7_BENCH_SPEED_GROWTH_CHARTS_H
#define TQR7_BENCH_SPEED_GROWTH_CHARTS_H

#include <string>

#include "bench/speed/growth_points.h"

namespace bench {

/// Six charts as one SVG file: points as measured, with bars from the lowest to the highest round,
/// and the lines through them. Throws std::runtime_error when it cannot be written.
void draw_growth(const std::string& path, const Growth& growth);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_GROWTH_CHARTS_H
