// SPDX-License-Identifier: Apache-2.0
//
// The straight line through measured costs: what a job costs to begin with, and each page of it.
#ifndef TQR7_BENCH_SPEED_LINE_FIT_H
#define TQR7_BENCH_SPEED_LINE_FIT_H

#include <span>

#include "bench/svg_chart.h"

namespace bench {

/// y = start + slope · x
struct LineFit {
  double start = 0.0;
  double slope = 0.0;

  double at(double x) const { return start + slope * x; }
};

/// The line with the least sum of squared residuals, each taken relative to its own value: what
/// disturbs a measurement is in proportion to its length, and the job of 1,000 pages shall not
/// outvote the job of one. Values are above 0. Throws std::invalid_argument when the points do not
/// determine a line.
LineFit fit_line(std::span<const Point> points);

/// By how much of its own value a point lies above the line; negative beneath it.
double residual(const LineFit& fit, const Point& point);

/// The largest residual of all, without its sign.
double worst_residual(const LineFit& fit, std::span<const Point> points);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_LINE_FIT_H
