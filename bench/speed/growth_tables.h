// SPDX-License-Identifier: Apache-2.0
//
// What was measured of growth, as tables on standard output: each with the line through it, and
// with the counts that explain where it bends.
#ifndef TQR7_BENCH_SPEED_GROWTH_TABLES_H
#define TQR7_BENCH_SPEED_GROWTH_TABLES_H

#include <vector>

#include "bench/speed/growth_points.h"

namespace bench {

/// The jobs, one a row: those from files, or those through pipes.
void print_lengths(const std::vector<LengthPoint>& lengths);

/// The lines through them, and whether memory grows.
void print_lines(const std::vector<LengthPoint>& lengths);

/// Where the first pages of a job differ from the further ones: faults, and what one costs.
void print_first_pages(const std::vector<LengthPoint>& lengths, double microsecondsAFault);

/// The lines through the papers in gloss whose sheet is one page.
void print_size_lines(const std::vector<SizePoint>& sizes);

/// The buffers of the smallest and the largest page beside the processor's caches.
void print_caches();

/// These papers, one a row.
void print_sizes(const std::vector<SizePoint>& sizes);

/// What a matte plane and the joining of pages add.
void print_finishes(const std::vector<SizePoint>& sizes);

/// The jobs at once.
void print_queues(const std::vector<QueuesPoint>& queues);

/// What the machine does without any filter.
void print_probe(const std::vector<QueuesPoint>& queues);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_GROWTH_TABLES_H
