// SPDX-License-Identifier: Apache-2.0
#include "conversion/processor.h"

#include "conversion/compiled_targets.h"
//
#include <hwy/detect_targets.h>

#include <atomic>
#if HWY_ARCH_X86
#include <cpuid.h>
#endif

namespace {

/// A target, and the features that it needs.
struct Version {
  std::int64_t target;
  unsigned needs;
};

constexpr unsigned kForSse4 = kSsse3 | kSse42 | kPclmul | kAes;
constexpr unsigned kForAvx2 = kForSse4 | kAvx2 | kBmi | kBmi2 | kFma | kF16c;
constexpr unsigned kForAvx3 = kForAvx2 | kAvx512f | kAvx512vl | kAvx512dq | kAvx512bw | kAvx512cd;

/// Best first. Only x86 has several: elsewhere every processor of the kind has what we use (NEON).
constexpr Version kVersions[] = {
    {HWY_AVX3, kForAvx3}, {HWY_AVX2, kForAvx2}, {HWY_SSE4, kForSse4}, {HWY_SSSE3, kSsse3}};

#if HWY_ARCH_X86

unsigned bit_if(int supported, ProcessorFeature feature) {
  return supported != 0 ? feature : 0U;
}

int has_half_floats() {
  unsigned a = 0;
  unsigned b = 0;
  unsigned c = 0;
  unsigned d = 0;
  return static_cast<int>(__get_cpuid(1, &a, &b, &c, &d) != 0 && (c & bit_F16C) != 0);
}

/// The compiler's answers also say whether the operating system saves the wide registers.
unsigned features_here() {
  return bit_if(__builtin_cpu_supports("ssse3"), kSsse3) |
         bit_if(__builtin_cpu_supports("sse4.2"), kSse42) |
         bit_if(__builtin_cpu_supports("pclmul"), kPclmul) |
         bit_if(__builtin_cpu_supports("aes"), kAes) |
         bit_if(__builtin_cpu_supports("avx2"), kAvx2) |
         bit_if(__builtin_cpu_supports("bmi"), kBmi) |
         bit_if(__builtin_cpu_supports("bmi2"), kBmi2) |
         bit_if(__builtin_cpu_supports("fma"), kFma) | bit_if(has_half_floats(), kF16c) |
         bit_if(__builtin_cpu_supports("avx512f"), kAvx512f) |
         bit_if(__builtin_cpu_supports("avx512vl"), kAvx512vl) |
         bit_if(__builtin_cpu_supports("avx512dq"), kAvx512dq) |
         bit_if(__builtin_cpu_supports("avx512bw"), kAvx512bw) |
         bit_if(__builtin_cpu_supports("avx512cd"), kAvx512cd);
}

#else

unsigned features_here() {
  return 0;
}

#endif

bool runs(const Version& version, unsigned features) {
  return (version.target & HWY_TARGETS) != 0 && (version.needs & ~features) == 0;
}

std::int64_t best_target() {
  const unsigned features = features_here();
  for (const Version& version : kVersions) {
    if (runs(version, features)) {
      return version.target;
    }
  }
  return 0;
}

std::atomic<std::int64_t>& chosen_target() {
  static std::atomic<std::int64_t> target = best_target();
  return target;
}

}  // namespace

std::vector<std::int64_t> targets_for(unsigned features) {
  std::vector<std::int64_t> targets;
  for (const Version& version : kVersions) {
    if (runs(version, features)) {
      targets.push_back(version.target);
    }
  }
  targets.push_back(0);
  return targets;
}

std::int64_t processor_target() {
  return chosen_target().load(std::memory_order_relaxed);
}

std::vector<std::int64_t> usable_targets() {
  return targets_for(features_here());
}

void use_target(std::int64_t target) {
  chosen_target().store(target, std::memory_order_relaxed);
}
