// SPDX-License-Identifier: Apache-2.0
//
// The axes of a chart: where a value lies on one, and which values get a grid line.
#ifndef TQR7_BENCH_SVG_AXIS_H
#define TQR7_BENCH_SVG_AXIS_H

#include <string>
#include <vector>

namespace bench {

enum class Scale { Linear, Logarithmic };

/// One axis: what it shows, its ends, and the way from one grid line to the next: added on a linear
/// axis; a factor above 1 on a logarithmic one, whose ends are above 0.
struct Axis {
  std::string label;
  double low;
  double high;
  double step;
  Scale scale = Scale::Linear;
};

/// 0 at the low end, 1 at the high end; beyond them for values outside. What a logarithmic axis
/// cannot show, 0 and below, lies one axis below its low end.
double place_on(const Axis& axis, double value);

/// The values of the grid lines, from the low end upwards.
std::vector<double> ticks_of(const Axis& axis);

/// A grid line's value, with as few decimals as it needs.
std::string tick_text(const Axis& axis, double value);

}  // namespace bench

#endif  // TQR7_BENCH_SVG_AXIS_H
