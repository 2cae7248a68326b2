// SPDX-License-Identifier: Apache-2.0
//
// Which of the inner loops' versions this computer's processor runs.
//
// Highway compiles the loops for each kind of processor. Its own choice among them needs a library
// that measures the processor's clock for some milliseconds at each start of a program. That is as
// long as the start of the whole filter. So the choice is made here.
#ifndef TQR7_CONVERSION_PROCESSOR_H
#define TQR7_CONVERSION_PROCESSOR_H

#include <cstdint>
#include <vector>

/// The features that Highway lets the compiler use in the x86 versions, a bit each.
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

/// One of Highway's targets (HWY_AVX2, …): the best that was compiled and that runs here. 0 if only
/// the version for every processor of this kind was compiled.
std::int64_t processor_target();

/// targets_for() of this computer.
std::vector<std::int64_t> usable_targets();

/// Makes the loops run as on that processor, to compare the versions with each other. Takes only
/// one of usable_targets(), and only while no other thread converts.
void use_target(std::int64_t target);

#endif  // TQR7_CONVERSION_PROCESSOR_H
