// SPDX-License-Identifier: Apache-2.0
//
// Which version of the loops is chosen, here and on processors that lack something: a version must
// never run where one of the instructions that the compiler may use for it is missing.
#include "conversion/processor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#include "conversion/compiled_targets.h"
//
#include <hwy/detect_targets.h>

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

#if HWY_ARCH_X86

using Targets = std::vector<std::int64_t>;

constexpr unsigned kEverything = ~0U;

/// Those of `all` that were compiled.
Targets compiled(const Targets& all) {
  Targets targets;
  std::copy_if(all.begin(), all.end(), std::back_inserter(targets),
               [](std::int64_t target) { return target == 0 || (target & HWY_TARGETS) != 0; });
  return targets;
}

TEST(Processor, WithEverythingRunsAllVersions) {
  EXPECT_EQ(targets_for(kEverything), compiled({HWY_AVX3, HWY_AVX2, HWY_SSE4, HWY_SSSE3, 0}));
}

TEST(Processor, WithoutAPartOfAvx512RunsAvx2) {
  const Targets expected = compiled({HWY_AVX2, HWY_SSE4, HWY_SSSE3, 0});
  EXPECT_EQ(targets_for(kEverything - kAvx512f), expected);
  EXPECT_EQ(targets_for(kEverything - kAvx512vl), expected);
  EXPECT_EQ(targets_for(kEverything - kAvx512dq), expected);
  EXPECT_EQ(targets_for(kEverything - kAvx512bw), expected);
  EXPECT_EQ(targets_for(kEverything - kAvx512cd), expected);
}

TEST(Processor, WithoutAPartOfAvx2RunsSse4) {
  const Targets expected = compiled({HWY_SSE4, HWY_SSSE3, 0});
  EXPECT_EQ(targets_for(kEverything - kAvx2), expected);
  EXPECT_EQ(targets_for(kEverything - kBmi), expected);
  EXPECT_EQ(targets_for(kEverything - kBmi2), expected);
  EXPECT_EQ(targets_for(kEverything - kFma), expected);
  EXPECT_EQ(targets_for(kEverything - kF16c), expected);
}

TEST(Processor, WithoutAPartOfSse4RunsSsse3) {
  const Targets expected = compiled({HWY_SSSE3, 0});
  EXPECT_EQ(targets_for(kEverything - kSse42), expected);
  EXPECT_EQ(targets_for(kEverything - kPclmul), expected);
  EXPECT_EQ(targets_for(kEverything - kAes), expected);
}

TEST(Processor, WithoutSsse3RunsWhatEveryProcessorHas) {
  EXPECT_EQ(targets_for(kEverything - kSsse3), Targets{0});
  EXPECT_EQ(targets_for(0), Targets{0});
}

#ifdef __linux__

/// The kernel's own list of what the processor has.
bool kernel_tells(const std::string& feature) {
  std::ifstream file("/proc/cpuinfo");
  std::string line;
  while (std::getline(file, line)) {
    std::istringstream words(line);
    std::string word;
    words >> word;
    if (word == "flags") {
      return std::find(std::istream_iterator<std::string>(words), {}, feature) !=
             std::istream_iterator<std::string>();
    }
  }
  return false;
}

TEST(Processor, ThisOnesFeaturesAreThoseThatTheKernelTells) {
  unsigned features = 0;
  const auto add = [&features](const char* name, ProcessorFeature feature) {
    features |= kernel_tells(name) ? feature : 0U;
  };
  add("ssse3", kSsse3);
  add("sse4_2", kSse42);
  add("pclmulqdq", kPclmul);
  add("aes", kAes);
  add("avx2", kAvx2);
  add("bmi1", kBmi);
  add("bmi2", kBmi2);
  add("fma", kFma);
  add("f16c", kF16c);
  add("avx512f", kAvx512f);
  add("avx512vl", kAvx512vl);
  add("avx512dq", kAvx512dq);
  add("avx512bw", kAvx512bw);
  add("avx512cd", kAvx512cd);
  EXPECT_EQ(usable_targets(), targets_for(features));
}

#endif  // __linux__
#endif  // HWY_ARCH_X86

}  // namespace
