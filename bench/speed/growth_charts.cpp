// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/growth_charts.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "bench/speed/growth_figures.h"
#include "bench/svg_chart.h"

namespace bench {

namespace {

constexpr double kSecond = 1e3;  // ms

constexpr std::size_t kChartsPerRow = 3;
constexpr int kCurveParts = 60;
constexpr std::array<const char*, kPrograms.size()> kColours = {"#888888", "#1f5fa8", "#c0392b"};

/// An axis from 0 to a round number above the highest value, with four to ten grid lines.
Axis axis_to(const char* label, double highest) {
  const double power = std::pow(10.0, std::floor(std::log10(highest)));
  double step = power;
  for (const double part : {0.2, 0.5, 1.0}) {
    if (highest / (part * power) <= 9.0) {
      step = part * power;
      break;
    }
  }
  return {label, 0.0, step * std::ceil(highest / step), step};
}

double highest_of(const std::vector<Curve>& curves) {
  double highest = 0.0;
  for (const Curve& curve : curves) {
    for (const Point& point : curve.points) {
      highest = std::max(highest, point.y);
    }
    for (const ErrorBar& bar : curve.bars) {
      highest = std::max(highest, bar.high);
    }
  }
  return highest;
}

Chart chart_of(const char* title, const Axis& across, const char* up, std::vector<Curve> curves) {
  const double highest = highest_of(curves);
  return {title, across, axis_to(up, highest), std::move(curves)};
}

Axis pages_axis() {
  return {"pages of the job", 1, 1000, 10, Scale::Logarithmic};
}

Axis queues_axis(const std::vector<QueuesPoint>& queues) {
  return {"queues at once", 1, static_cast<double>(queues.back().queues), 2, Scale::Logarithmic};
}

/// A program's points as measured, without lines.
Curve measured_curve(std::size_t program) {
  Curve curve{name_of(kPrograms[program]), kColours[program], {}};
  curve.joined = false;
  return curve;
}

/// A program's points, joined.
Curve joined_curve(std::size_t program) {
  return {name_of(kPrograms[program]), kColours[program], {}, false, true};
}

Curve fitted_curve(std::size_t program, std::vector<Point> points) {
  return {"", kColours[program], std::move(points), true};
}

Chart job_chart(const std::vector<LengthPoint>& lengths) {
  std::vector<Curve> curves;
  for (std::size_t i = 0; i < kPrograms.size(); ++i) {
    Curve jobs = measured_curve(i);
    for (const LengthPoint& length : lengths) {
      const Measured& job = length.of[i];
      jobs.points.push_back({static_cast<double>(length.pages), job.cpu() / kSecond});
      jobs.bars.push_back({static_cast<double>(length.pages), job.lowest_cpu() / kSecond,
                           job.highest_cpu() / kSecond});
    }
    const LineFit line = further_line(lengths, i);
    curves.push_back(fitted_curve(i, {{0, line.at(0) / kSecond}, {1000, line.at(1000) / kSecond}}));
    curves.push_back(std::move(jobs));
  }
  return chart_of("A job's processor time", {"pages of the job", 0, 1000, 200}, "CPU of the job, s",
                  std::move(curves));
}

Chart page_chart(const std::vector<LengthPoint>& lengths) {
  std::vector<Curve> curves;
  for (std::size_t i = 0; i < kPrograms.size(); ++i) {
    Curve pages = measured_curve(i);
    for (const LengthPoint& length : lengths) {
      if (length.pages == 0) {
        continue;
      }
      const auto number = static_cast<double>(length.pages);
      const Measured& job = length.of[i];
      pages.points.push_back({number, job.cpu() / number});
      pages.bars.push_back({number, job.lowest_cpu() / number, job.highest_cpu() / number});
    }
    const LineFit line = further_line(lengths, i);
    std::vector<Point> hyperbola;
    for (int part = 0; part <= kCurveParts; ++part) {
      const double number = 2.0 * std::pow(500.0, static_cast<double>(part) / kCurveParts);
      hyperbola.push_back({number, line.at(number) / number});
    }
    curves.push_back(fitted_curve(i, std::move(hyperbola)));
    curves.push_back(std::move(pages));
  }
  return chart_of("… and what each of its pages comes to", pages_axis(), "CPU a page, ms",
                  std::move(curves));
}

Chart memory_chart(const std::vector<LengthPoint>& lengths) {
  std::vector<Curve> curves;
  for (std::size_t i = 0; i < kPrograms.size(); ++i) {
    Curve peaks = joined_curve(i);
    for (const LengthPoint& length : lengths) {
      if (length.pages > 0) {
        peaks.points.push_back({static_cast<double>(length.pages), length.of[i].peak()});
      }
    }
    curves.push_back(std::move(peaks));
  }
  return chart_of("A job's memory", pages_axis(), "peak resident memory, MB", std::move(curves));
}

Chart size_chart(const std::vector<SizePoint>& sizes) {
  std::vector<Curve> curves;
  for (std::size_t i = 0; i < kPrograms.size(); ++i) {
    Curve pages = measured_curve(i);
    pages.points = size_costs(sizes, i);
    for (const SizePoint& size : sizes) {
      if (is_plain(size)) {
        pages.bars.push_back(
            {size.paper->image_megapixels(), size.lowest_further(i), size.highest_further(i)});
      }
    }
    const LineFit line = fit_line(pages.points);
    curves.push_back(fitted_curve(i, {{0, line.at(0)}, {5, line.at(5)}}));
    curves.push_back(std::move(pages));
  }
  return chart_of("The papers", {"million pixels of the page", 0, 5, 1},
                  "CPU of a further page, ms", std::move(curves));
}

Chart queue_cost_chart(const std::vector<QueuesPoint>& queues) {
  std::vector<Curve> curves;
  for (std::size_t i = 0; i < kPrograms.size(); ++i) {
    Curve costs = joined_curve(i);
    for (const QueuesPoint& point : queues) {
      costs.points.push_back({static_cast<double>(point.queues), queue_cost(point, i)});
      const auto [low, high] = queue_cost_range(point, i);
      costs.bars.push_back({static_cast<double>(point.queues), low, high});
    }
    curves.push_back(std::move(costs));
  }
  return chart_of("Several queues at once", queues_axis(queues), "CPU a page, ms",
                  std::move(curves));
}

Chart queue_rate_chart(const std::vector<QueuesPoint>& queues) {
  std::vector<Curve> curves;
  for (std::size_t i = 0; i < kPrograms.size(); ++i) {
    Curve rates = joined_curve(i);
    for (const QueuesPoint& point : queues) {
      rates.points.push_back({static_cast<double>(point.queues), pages_a_second(point, i)});
    }
    curves.push_back(std::move(rates));
  }
  return chart_of("… and what they print together", queues_axis(queues), "pages a second",
                  std::move(curves));
}

}  // namespace

void draw_growth(const std::string& path, const Growth& growth) {
  write_charts(
      path,
      {job_chart(growth.lengths), page_chart(growth.lengths), memory_chart(growth.lengths),
       size_chart(growth.sizes), queue_cost_chart(growth.queues), queue_rate_chart(growth.queues)},
      kChartsPerRow);
}

}  // namespace bench
