// SPDX-License-Identifier: Apache-2.0
//
// Jobs as time lines: who works when. The whole of the first one, then each large, with its pause
// cut out.
#ifndef TQR7_BENCH_SPEED_JOURNEY_PICTURE_H
#define TQR7_BENCH_SPEED_JOURNEY_PICTURE_H

#include <string>
#include <vector>

#include "bench/speed/journey_records.h"

namespace bench {

struct TitledJourney {
  std::string title;
  Journey journey;  ///< of one sheet, with marks
};

/// Writes them, at least one, into one SVG file. Throws std::runtime_error when the file cannot be
/// written.
void write_journeys(const std::string& path, const std::vector<TitledJourney>& journeys);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_JOURNEY_PICTURE_H
