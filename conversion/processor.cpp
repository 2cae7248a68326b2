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

#if HWY_ARCH_X86

bool has_half_floats() {
  unsigned a = 0;
  unsigned b = 0;
  unsigned c = 0;
  unsigned d = 0;
  return __get_cpuid(1, &a, &b, &c, &d) != 0 && (c & bit_F16C) != 0;
}

// Each asks for all that Highway lets the compiler use for the target; the operating system's part
// (saving the wide registers) is in the compiler's answers.
bool has_sse4() {
  return __builtin_cpu_supports("ssse3") && __builtin_cpu_supports("sse4.2") &&
         __builtin_cpu_supports("pclmul") && __builtin_cpu_supports("aes");
}

bool has_avx2() {
  return has_sse4() && __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") &&
         __builtin_cpu_supports("bmi2") && __builtin_cpu_supports("fma") && has_half_floats();
}

bool has_avx3() {
  return has_avx2() && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl") &&
         __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bw") &&
         __builtin_cpu_supports("avx512cd");
}

bool runs_here(std::int64_t target) {
  switch (target) {
    case HWY_AVX3:
      return has_avx3();
    case HWY_AVX2:
      return has_avx2();
    case HWY_SSE4:
      return has_sse4();
    case HWY_SSSE3:
      return __builtin_cpu_supports("ssse3");
    default:
      return false;
  }
}

constexpr std::int64_t kBestFirst[] = {HWY_AVX3, HWY_AVX2, HWY_SSE4, HWY_SSSE3};

#else

// Elsewhere what every processor of the kind has (NEON) serves.
bool runs_here(std::int64_t) {
  return false;
}

constexpr std::int64_t kBestFirst[] = {0};

#endif

bool usable(std::int64_t target) {
  return (target & HWY_TARGETS) != 0 && runs_here(target);
}

std::int64_t best_target() {
  for (const std::int64_t target : kBestFirst) {
    if (usable(target)) {
      return target;
    }
  }
  return 0;
}

std::atomic<std::int64_t>& chosen_target() {
  static std::atomic<std::int64_t> target = best_target();
  return target;
}

}  // namespace

std::int64_t processor_target() {
  return chosen_target().load(std::memory_order_relaxed);
}

std::vector<std::int64_t> usable_targets() {
  std::vector<std::int64_t> targets;
  for (const std::int64_t target : kBestFirst) {
    if (usable(target)) {
      targets.push_back(target);
    }
  }
  targets.push_back(0);
  return targets;
}

void use_target(std::int64_t target) {
  chosen_target().store(target, std::memory_order_relaxed);
}
