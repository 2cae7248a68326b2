// SPDX-License-Identifier: Apache-2.0
//
// Line charts as small SVG files.
#ifndef TQR7_BENCH_SVG_CHART_H
#define TQR7_BENCH_SVG_CHART_H

#include <cstddef>
#include <string>
#include <vector>

#include "bench/svg_axis.h"

namespace bench {

struct Point {
  double x;
  double y;
};

/// An error bar: from the lowest to the highest value that was measured at a place.
struct ErrorBar {
  double x;
  double low;
  double high;
};

/// Points joined by straight lines; clipped to the chart.
struct Curve {
  std::string name;    ///< in the legend; empty for a curve without an entry
  std::string colour;  ///< as SVG writes it
  std::vector<Point> points;
  bool dashed = false;
  bool dotted = false;  ///< a dot on each point as well
  bool joined = true;   ///< false: the dots only, without lines
  std::vector<ErrorBar> bars = {};
};

struct Chart {
  std::string title;
  Axis across;
  Axis up;
  std::vector<Curve> curves;
};

/// The charts side by side, their legends beneath them; `perRow` of them a row, 0 for all in one.
/// Throws std::runtime_error when the file cannot be written.
void write_charts(const std::string& path, const std::vector<Chart>& charts,
                  std::size_t perRow = 0);

}  // namespace bench

#endif  // TQR7_BENCH_SVG_CHART_H
