// SPDX-License-Identifier: Apache-2.0
//
// Which version of the loops is chosen, here and on processors that lack something: a version must
// never run where one of the instructions that the compiler may use for it is missing.
#include "conversion/processor.h"

#include <gtest/gtest.h>
#include <hwy/detect_targets.h>

#include <algorithm>
#include <atomic>
#include <iterator>
#include <set>
#include <string>
#include <vector>
#if HWY_ARCH_X86
#include <cpuid.h>
#endif

namespace {

/// Chosen before any test had another version run.
const std::int64_t chosenAtStart = processor_target();

TEST(Processor, TheBestOfTheUsableVersionsIsChosen) {
  EXPECT_EQ(chosenAtStart, usable_targets().front());
}

TEST(Processor, TheBestVersionComesFirstAndTheOneForEveryProcessorLast) {
  std::vector<std::int64_t> targets = usable_targets();
  ASSERT_EQ(targets.back(), 0);
  targets.pop_back();
  EXPECT_TRUE(std::is_sorted(targets.begin(), targets.end()));  // Highway's better ones are lower
}

}  // namespace

#if HWY_ARCH_X86

namespace {

/// What the pretended processor lacks.
std::set<std::string> lacking;

bool pretended_supports(const char* feature) {
  return lacking.count(feature) == 0;
}

int pretended_cpuid(unsigned leaf, unsigned* a, unsigned* b, unsigned* c, unsigned* d) {
  *a = *b = *c = *d = 0;
  if (leaf == 1 && lacking.count("f16c") == 0) {
    *c = bit_F16C;
  }
  return 1;
}

}  // namespace

// The choice once more, as it is made on the pretended processor. What its file includes has been
// included above, outside the namespace.
// NOLINTBEGIN(bugprone-reserved-identifier,bugprone-suspicious-include,cert-dcl37-c,cert-dcl51-cpp)
#define __builtin_cpu_supports(feature) pretended_supports(feature)
#define __get_cpuid pretended_cpuid
namespace pretended {
#include "conversion/processor.cpp"
}  // namespace pretended
#undef __builtin_cpu_supports
#undef __get_cpuid
// NOLINTEND(bugprone-reserved-identifier,bugprone-suspicious-include,cert-dcl37-c,cert-dcl51-cpp)

namespace {

/// The versions that a processor runs that has all but this: those of `all` that were compiled.
using Targets = std::vector<std::int64_t>;

Targets targets_without(const std::string& feature) {
  lacking = {feature};
  return pretended::usable_targets();
}

Targets compiled(const Targets& all) {
  Targets targets;
  std::copy_if(all.begin(), all.end(), std::back_inserter(targets),
               [](std::int64_t target) { return target == 0 || (target & HWY_TARGETS) != 0; });
  return targets;
}

TEST(PretendedProcessor, WithEverythingRunsAllVersions) {
  EXPECT_EQ(targets_without("nothing"), compiled({HWY_AVX3, HWY_AVX2, HWY_SSE4, HWY_SSSE3, 0}));
}

TEST(PretendedProcessor, WithoutAPartOfAvx512RunsAvx2) {
  const Targets expected = compiled({HWY_AVX2, HWY_SSE4, HWY_SSSE3, 0});
  EXPECT_EQ(targets_without("avx512f"), expected);
  EXPECT_EQ(targets_without("avx512vl"), expected);
  EXPECT_EQ(targets_without("avx512dq"), expected);
  EXPECT_EQ(targets_without("avx512bw"), expected);
  EXPECT_EQ(targets_without("avx512cd"), expected);
}

TEST(PretendedProcessor, WithoutAPartOfAvx2RunsSse4) {
  const Targets expected = compiled({HWY_SSE4, HWY_SSSE3, 0});
  EXPECT_EQ(targets_without("avx2"), expected);
  EXPECT_EQ(targets_without("bmi"), expected);
  EXPECT_EQ(targets_without("bmi2"), expected);
  EXPECT_EQ(targets_without("fma"), expected);
  EXPECT_EQ(targets_without("f16c"), expected);
}

TEST(PretendedProcessor, WithoutAPartOfSse4RunsSsse3) {
  const Targets expected = compiled({HWY_SSSE3, 0});
  EXPECT_EQ(targets_without("sse4.2"), expected);
  EXPECT_EQ(targets_without("pclmul"), expected);
  EXPECT_EQ(targets_without("aes"), expected);
}

TEST(PretendedProcessor, WithoutSsse3RunsWhatEveryProcessorHas) {
  EXPECT_EQ(targets_without("ssse3"), Targets{0});
}

}  // namespace

#endif  // HWY_ARCH_X86
