// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/growth_figures.h"

#include <algorithm>
#include <cmath>

#include "bench/spread.h"
#include "bench/table_printer.h"

namespace bench {

namespace {

constexpr double kMilliseconds = 1e3;

std::vector<double> queue_costs(const QueuesPoint& point, std::size_t program) {
  std::vector<double> costs;
  for (const Together& round : point.of[program]) {
    costs.push_back(round.sum_of([](const Usage& job) { return job.cpu(); }) * kMilliseconds /
                    (point.queues * kPagesOfAQueue));
  }
  return costs;
}

}  // namespace

std::string signed_percent(double part) {
  const std::string text = number(std::abs(part) * 100.0, 1) + " %";
  return (part < 0.0 ? "−" : "+") + text;
}

std::string times(double ratio) {
  return number(ratio, 2) + " ×";
}

std::string whole(double value) {
  return number(std::round(value) + 0.0, 0);
}

bool is_plain(const SizePoint& size) {
  return !size.matte && size.paper->pages_of_sheet() == 1;
}

std::vector<Point> job_costs(const std::vector<LengthPoint>& lengths, std::size_t program) {
  std::vector<Point> points;
  for (const LengthPoint& length : lengths) {
    if (length.pages > 0) {
      points.push_back({static_cast<double>(length.pages), length.of[program].cpu()});
    }
  }
  return points;
}

std::vector<Point> longer_job_costs(const std::vector<LengthPoint>& lengths, std::size_t program) {
  std::vector<Point> points = job_costs(lengths, program);
  std::erase_if(points, [](const Point& point) { return point.x < 2.0; });
  return points;
}

LineFit further_line(const std::vector<LengthPoint>& lengths, std::size_t program) {
  return fit_line(longer_job_costs(lengths, program));
}

std::vector<Point> size_costs(const std::vector<SizePoint>& sizes, std::size_t program) {
  std::vector<Point> points;
  for (const SizePoint& size : sizes) {
    if (is_plain(size)) {
      points.push_back({size.paper->image_megapixels(), size.further(program)});
    }
  }
  return points;
}

double queue_cost(const QueuesPoint& point, std::size_t program) {
  return median_of(queue_costs(point, program));
}

std::pair<double, double> queue_cost_range(const QueuesPoint& point, std::size_t program) {
  const std::vector<double> costs = queue_costs(point, program);
  const auto [low, high] = std::minmax_element(costs.begin(), costs.end());
  return {*low, *high};
}

double pages_a_second(const QueuesPoint& point, std::size_t program) {
  std::vector<double> rates;
  for (const Together& round : point.of[program]) {
    rates.push_back(point.queues * kPagesOfAQueue / round.wall);
  }
  return median_of(rates);
}

}  // namespace bench
