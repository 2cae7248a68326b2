// SPDX-License-Identifier: Apache-2.0
//
// The series of measurements that show growth: against the pages of a job, against the size of the
// paper, and against the number of queues that print at once. The programs run in turn within a
// round, so that a busy machine slows all alike.
#ifndef TQR7_BENCH_SPEED_GROWTH_SERIES_H
#define TQR7_BENCH_SPEED_GROWTH_SERIES_H

#include <vector>

#include "bench/speed/growth_jobs.h"
#include "bench/speed/growth_points.h"

namespace bench {

/// Jobs of 0, 1, 2, 3, 10, 100 and 1,000 white pages of the usual paper, from files to nowhere. The
/// longer ones have fewer rounds, since they are many pages by themselves.
std::vector<LengthPoint> measure_lengths(RasterFolder& rasters, int rounds);

/// Jobs of 1, 2, 10 and 100 photos through pipes.
std::vector<LengthPoint> measure_chains(RasterFolder& rasters, int rounds);

/// Photos on all papers in gloss, from files; then the usual, the largest and the joined paper in
/// matte. The floor has no matte plane to move.
std::vector<SizePoint> measure_sizes(RasterFolder& rasters, int rounds);

/// 1, 2, 4 and 8 jobs at once, each of kPagesOfAQueue photos on the usual paper from files, on all
/// processors that there are.
std::vector<QueuesPoint> measure_queues(RasterFolder& rasters, int rounds);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_GROWTH_SERIES_H
