// SPDX-License-Identifier: Apache-2.0
//
// The printer's answers, byte by byte.
#include "simulator/printer_answers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using simulator::PrinterAnswers;
using testing::ElementsAre;

TEST(Answers, ToAStatusRequestCarryTheNumberInBytes4And5) {
  const PrinterAnswers answers(0x2665, 0, 0);
  EXPECT_THAT(answers.ToStatusRequest().bytes,
              ElementsAre(0, 0, 0, 0, 0x26, 0x65, 0, 0, 0, 0, 0, 0, 0, 0, 0));
  EXPECT_EQ(answers.ToStatusRequest().number, 0x2665);
}

TEST(Answers, ToAReadinessQueryCarryTheCodeInBytes4And5) {
  PrinterAnswers answers(0, 0x0201, 0);
  EXPECT_THAT(answers.ToReadinessQuery().bytes, ElementsAre(0, 0, 0, 0, 0x02, 0x01));
}

TEST(Answers, AreBusyForTheFirstQueriesAsked) {
  PrinterAnswers answers(0, 0, 2);
  EXPECT_THAT(answers.ToReadinessQuery().bytes, ElementsAre(0, 0, 0, 0, 0x01, 0x00));
  EXPECT_THAT(answers.ToReadinessQuery().bytes, ElementsAre(0, 0, 0, 0, 0x01, 0x00));
  EXPECT_THAT(answers.ToReadinessQuery().bytes, ElementsAre(0, 0, 0, 0, 0x00, 0x00));
  EXPECT_THAT(answers.ToReadinessQuery().bytes, ElementsAre(0, 0, 0, 0, 0x00, 0x00));
}

}  // namespace
