// SPDX-License-Identifier: Apache-2.0
//
// What tables and charts of growth have in common: points, lines through them, and how ratios read.
#ifndef TQR7_BENCH_SPEED_GROWTH_FIGURES_H
#define TQR7_BENCH_SPEED_GROWTH_FIGURES_H

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "bench/speed/growth_points.h"
#include "bench/speed/line_fit.h"
#include "bench/svg_chart.h"

namespace bench {

/// A point further than this off its line makes a bend.
inline constexpr double kStraight = 0.05;

/// "+3.1 %"
std::string signed_percent(double part);

/// "1.04 ×"
std::string times(double ratio);

/// A count, without a sign before 0.
std::string whole(double value);

/// Whether the page is a gloss sheet by itself: its way is the floor's.
bool is_plain(const SizePoint& size);

/// CPU of the jobs of a program in ms, against pages, without the job of no page.
std::vector<Point> job_costs(const std::vector<LengthPoint>& lengths, std::size_t program);

/// The same without the job of one page.
std::vector<Point> longer_job_costs(const std::vector<LengthPoint>& lengths, std::size_t program);

/// The line through the longer jobs: what first pages cost more goes into its start.
LineFit further_line(const std::vector<LengthPoint>& lengths, std::size_t program);

/// CPU of a further page of a program in ms, against its millions of pixels; of
/// plain sheets.
std::vector<Point> size_costs(const std::vector<SizePoint>& sizes, std::size_t program);

/// CPU of a page in ms with so many queues at once; the median over the rounds.
double queue_cost(const QueuesPoint& point, std::size_t program);

/// The lowest and the highest round's.
std::pair<double, double> queue_cost_range(const QueuesPoint& point, std::size_t program);

/// Pages a second of all queues together; the median over the rounds.
double pages_a_second(const QueuesPoint& point, std::size_t program);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_GROWTH_FIGURES_H
