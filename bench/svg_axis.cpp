// SPDX-License-Identifier: Apache-2.0
#include "bench/svg_axis.h"

#include <cmath>

#include "bench/table_printer.h"

namespace bench {

namespace {

/// Part of a step by which sums and quotients may be rounded: the last grid line still lies on the
/// high end, and 0 has no sign.
constexpr double kRounding = 1e-3;

/// As few decimals as a multiple of `unit` needs.
int decimals_of(double unit) {
  int decimals = 0;
  while (decimals < 4 && std::abs(unit * std::pow(10.0, decimals) -
                                  std::round(unit * std::pow(10.0, decimals))) > 1e-9) {
    ++decimals;
  }
  return decimals;
}

}  // namespace

double place_on(const Axis& axis, double value) {
  if (axis.scale == Scale::Logarithmic) {
    return value > 0.0 ? std::log(value / axis.low) / std::log(axis.high / axis.low) : -1.0;
  }
  return (value - axis.low) / (axis.high - axis.low);
}

std::vector<double> ticks_of(const Axis& axis) {
  const bool logarithmic = axis.scale == Scale::Logarithmic;
  const double steps = logarithmic ? std::log(axis.high / axis.low) / std::log(axis.step)
                                   : (axis.high - axis.low) / axis.step;
  std::vector<double> ticks;
  for (int i = 0; i <= static_cast<int>(std::floor(steps + kRounding)); ++i) {
    ticks.push_back(logarithmic ? axis.low * std::pow(axis.step, i) : axis.low + i * axis.step);
  }
  return ticks;
}

std::string tick_text(const Axis& axis, double value) {
  const double unit = axis.scale == Scale::Logarithmic ? value : axis.step;
  const std::string text = number(std::abs(value), decimals_of(unit));
  return value < -unit * kRounding ? "−" + text : text;
}

}  // namespace bench
