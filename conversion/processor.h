// SPDX-License-Identifier: Apache-2.0
//
// Which of the inner loops' versions this computer's processor runs.
//
// Highway compiles the loops for each kind of processor. Its own choice among them comes with a
// library that measures the processor's clock for some milliseconds whenever a program starts: as
// long as the whole filter takes to start. So the choice is made here.
#ifndef TQR7_CONVERSION_PROCESSOR_H
#define TQR7_CONVERSION_PROCESSOR_H

#include <cstdint>
#include <vector>

/// One of Highway's targets (HWY_AVX2, …): the best that was compiled and that runs here. 0 where
/// nothing beyond what every processor of this kind has was compiled.
std::int64_t processor_target();

/// All targets that were compiled and run here, best first, 0 last.
std::vector<std::int64_t> usable_targets();

/// Has the loops run as on that processor, for holding them against each other. Only one of
/// usable_targets(), and not while another thread converts.
void use_target(std::int64_t target);

#endif  // TQR7_CONVERSION_PROCESSOR_H
