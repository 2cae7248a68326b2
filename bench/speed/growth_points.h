// SPDX-License-Identifier: Apache-2.0
//
// What is measured of growth: jobs against their pages, against the paper's size, and against the
// queues that print at once.
#ifndef TQR7_BENCH_SPEED_GROWTH_POINTS_H
#define TQR7_BENCH_SPEED_GROWTH_POINTS_H

#include <array>
#include <cstddef>
#include <vector>

#include "bench/speed/machine_probe.h"
#include "bench/speed/meter.h"
#include "bench/speed/papers.h"
#include "bench/speed/together.h"

namespace bench {

/// What is measured beside each other. A bend that the floor has, too, is the machine's.
enum class Program {
  FloorCopy,   ///< moves the same bytes and does nothing else
  Widening,    ///< the filter with a conversion library that only widens
  Conversion,  ///< the filter with our conversion, colour and sharpening on
};

inline constexpr std::array<Program, 3> kPrograms = {Program::FloorCopy, Program::Widening,
                                                     Program::Conversion};

/// As tables and legends name it.
const char* name_of(Program program);

/// One job, run in several rounds.
struct Measured {
  std::vector<Usage> rounds;

  double cpu() const;          ///< ms, the median
  double lowest_cpu() const;   ///< ms
  double highest_cpu() const;  ///< ms
  double faults() const;       ///< the median
  double peak() const;         ///< MB of 10⁶ bytes, the largest
};

/// The same job of each program, in the order of kPrograms.
using ByProgram = std::array<Measured, kPrograms.size()>;

/// Jobs of one length.
struct LengthPoint {
  int pages;
  ByProgram of;
};

/// Jobs of one paper, of kSheets sheets each.
struct SizePoint {
  const Paper* paper;
  bool matte;
  std::array<ByProgram, 3> of;

  /// CPU of a further raster page of a program, in ms; the median over the rounds. Further pages
  /// are those of the longest job that the second does not have.
  double further(std::size_t program) const;
  double lowest_further(std::size_t program) const;
  double highest_further(std::size_t program) const;
  /// Page faults of a further raster page.
  double further_faults(std::size_t program) const;
};

inline constexpr std::array<int, 3> kSheets = {1, 2, 12};

struct QueuesPoint {
  int queues;
  std::array<std::vector<Together>, kPrograms.size()> of;  ///< each round's
  std::vector<ProbeTimes> probe;                           ///< each round's
};

inline constexpr int kPagesOfAQueue = 20;

/// All of it.
struct Growth {
  std::vector<LengthPoint> lengths;
  std::vector<LengthPoint> chains;
  std::vector<SizePoint> sizes;
  std::vector<QueuesPoint> queues;
};

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_GROWTH_POINTS_H
