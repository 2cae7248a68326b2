// SPDX-License-Identifier: Apache-2.0
//
// Line charts as small SVG files.
#ifndef TQR7_BENCH_SVG_CHART_H
#define TQR7_BENCH_SVG_CHART_H

#include <string>
#include <vector>

namespace bench {

struct Point {
  double x;
  double y;
};

/// Points joined by straight lines; clipped to the chart.
struct Curve {
  std::string name;    ///< in the legend; empty for a curve without an entry
  std::string colour;  ///< as SVG writes it
  std::vector<Point> points;
  bool dashed = false;
  bool dotted = false;  ///< a dot on each point as well
};

/// One axis: what it shows, its ends, and the step of its grid lines.
struct Axis {
  std::string label;
  double low;
  double high;
  double step;
};

struct Chart {
  std::string title;
  Axis across;
  Axis up;
  std::vector<Curve> curves;
};

/// The charts side by side, their legends beneath them. Throws std::runtime_error when the file
/// cannot be written.
void write_charts(const std::string& path, const std::vector<Chart>& charts);

}  // namespace bench

#endif  // TQR7_BENCH_SVG_CHART_H
