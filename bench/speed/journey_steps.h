// SPDX-License-Identifier: Apache-2.0
//
// What a job's time goes to, one step behind the other from lp's start to the scheduler's notice of
// its end: at any moment the job waits for one thing, and for one party.
#ifndef TQR7_BENCH_SPEED_JOURNEY_STEPS_H
#define TQR7_BENCH_SPEED_JOURNEY_STEPS_H

#include <array>
#include <cstddef>
#include <vector>

#include "bench/speed/journey_records.h"

namespace bench {

/// In the order in which a job of one sheet takes them.
enum class StepKind {
  Handover,     ///< lp makes the job and hands the file over
  Starts,       ///< the scheduler looks at the file and starts filters and backend
  Load,         ///< the filter is loaded
  FirstRaster,  ///< the raster filter makes the beginning of its stream
  Settings,     ///< PPD, options, folder of the library
  Connection,   ///< can the printer answer?
  Status,       ///< the printer's status; the backend connects for the first one
  Reasons,      ///< the reasons that the scheduler still lists
  Reading,      ///< the lines of the page
  Conversion,   ///< of the page
  Readiness,    ///< does the printer take the sheet?
  Transfer,     ///< headers and pixels, until the last of them is handed on
  Pause,        ///< that the printer demands behind a sheet
  End,          ///< the filter's end, with the last bytes
  Notice,       ///< the connection is closed, the scheduler ends the job
};
inline constexpr std::size_t kStepKinds = 15;

/// What the tables and the picture call it, and who works on it.
struct StepWords {
  const char* name;
  const char* whose;
};
const StepWords& words_of(StepKind kind);

struct Step {
  StepKind kind;
  double begin;  ///< milliseconds since lp was started
  double end;
};

/// The steps of a job with marks; several of a kind where it has several sheets. They leave no gap.
/// Throws std::runtime_error when the marks are not those of a printed job.
std::vector<Step> steps_of(const Journey& journey);

/// Milliseconds by kind.
std::array<double, kStepKinds> total_by_kind(const std::vector<Step>& steps);

/// Milliseconds of the reading of pages in which the filter was in the calls that read, most of it
/// waiting for the raster filter.
double waited_for_raster(const Journey& journey);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_JOURNEY_STEPS_H
