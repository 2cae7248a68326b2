// SPDX-License-Identifier: Apache-2.0
//
// The printer's answers, byte by byte.
#include "simulator/answer_plan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

TEST(Answers, ToAStatusRequestCarryTheNumberInBytes4And5) {
  EXPECT_THAT(simulator::status_answer(0x2665),
              ElementsAre(0, 0, 0, 0, 0x26, 0x65, 0, 0, 0, 0, 0, 0, 0, 0, 0));
}

TEST(Answers, ToAReadinessQueryCarryTheCodeInBytes4And5) {
  EXPECT_THAT(simulator::readiness_answer(0x0201), ElementsAre(0, 0, 0, 0, 0x02, 0x01));
}

}  // namespace
