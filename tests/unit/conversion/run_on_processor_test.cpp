// SPDX-License-Identifier: Apache-2.0
//
// That the version of a loop which runs is the chosen processor's: a wrong one gives the same
// numbers, only slower, or ends the filter on a processor that lacks its instructions.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "conversion/compiled_targets.h"
#include "conversion/processor.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "tests/unit/conversion/run_on_processor_test.cpp"
#include "hwy/foreach_target.h"  // this file once more for each kind of processor
//
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {

std::int64_t OwnTarget() {
  return HWY_TARGET;
}

}  // namespace HWY_NAMESPACE
}  // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "conversion/run_on_processor.h"

namespace {

std::int64_t target_that_runs() {
  TQR7_RUN_ON_PROCESSOR(OwnTarget());
}

class RunOnProcessor : public testing::TestWithParam<std::int64_t> {
 protected:
  void SetUp() override { use_target(GetParam()); }
  void TearDown() override { use_target(usable_targets().front()); }
};

TEST_P(RunOnProcessor, RunsTheVersionOfTheChosenProcessor) {
  EXPECT_EQ(target_that_runs(), GetParam() == 0 ? HWY_STATIC_TARGET : GetParam());
}

INSTANTIATE_TEST_SUITE_P(OnThisComputer, RunOnProcessor, testing::ValuesIn(usable_targets()),
                         [](const testing::TestParamInfo<std::int64_t>& target) {
                           return target.param == 0 ? "EveryOne"
                                                    : "Target" + std::to_string(target.param);
                         });

}  // namespace
#endif  // HWY_ONCE
