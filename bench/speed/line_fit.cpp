// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/line_fit.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace bench {

LineFit fit_line(std::span<const Point> points) {
  double weights = 0.0;
  double sumX = 0.0;
  double sumY = 0.0;
  for (const Point& point : points) {
    if (!(point.y > 0.0)) {
      throw std::invalid_argument("a cost to fit is not above 0");
    }
    const double weight = 1.0 / (point.y * point.y);
    weights += weight;
    sumX += weight * point.x;
    sumY += weight * point.y;
  }
  const double meanX = sumX / weights;
  const double meanY = sumY / weights;
  double spread = 0.0;
  double together = 0.0;
  for (const Point& point : points) {
    const double weight = 1.0 / (point.y * point.y);
    spread += weight * (point.x - meanX) * (point.x - meanX);
    together += weight * (point.x - meanX) * (point.y - meanY);
  }
  if (!(spread > 0.0)) {
    throw std::invalid_argument("a line needs costs at two places");
  }
  const double slope = together / spread;
  return {meanY - slope * meanX, slope};
}

double residual(const LineFit& fit, const Point& point) {
  return (point.y - fit.at(point.x)) / point.y;
}

double worst_residual(const LineFit& fit, std::span<const Point> points) {
  double worst = 0.0;
  for (const Point& point : points) {
    worst = std::max(worst, std::abs(residual(fit, point)));
  }
  return worst;
}

}  // namespace bench
