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

/// What Highway lets the compiler use for one version or another on x86, a bit each.
enum ProcessorFeature : unsigned {
  kSsse3 = 1U << 0U,
  kSse42 = 1U << 1U,
  kPclmul = 1U << 2U,
  kAes = 1U << 3U,
  kAvx2 = 1U << 4U,
  kBmi = 1U << 5U,
  kBmi2 = 1U << 6U,
  kFma = 1U << 7U,
  kF16c = 1U << 8U,
  kAvx512f = 1U << 9U,
  kAvx512vl = 1U << 10U,
  kAvx512dq = 1U << 11U,
  kAvx512bw = 1U << 12U,
  kAvx512cd = 1U << 13U,
};

/// The targets that were compiled and that run on a processor with these features, best first, 0
/// last.
std::vector<std::int64_t> targets_for(unsigned features);

/// One of Highway's targets (HWY_AVX2, …): the best that was compiled and that runs here. 0 where
/// nothing beyond what every processor of this kind has was compiled.
std::int64_t processor_target();

/// targets_for() this computer.
std::vector<std::int64_t> usable_targets();

/// Has the loops run as on that processor, for holding them against each other. Only one of
/// usable_targets(), and not while another thread converts.
void use_target(std::int64_t target);

#endif  // TQR7_CONVERSION_PROCESSOR_H
