// SPDX-License-Identifier: Apache-2.0
#include "tests/filter/command_job.h"

#include <gtest/gtest.h>

#include "tests/filter/comparison.h"

namespace filter_test {

Job CommandJob(const std::string& commands) {
  return {.program = FILTER_TEST_COMMAND_PROGRAM, .input = kMark + commands};
}

std::string Skipped(const std::string& name) {
  return "WARNING: The printer has no command \"" + name + "\", which is skipped.\n";
}

void ExpectOutcome(const Outcome& outcome, int status, const std::string& log,
                   const std::string& stream) {
  EXPECT_EQ(outcome.status, status);
  EXPECT_TRUE(SameLog(outcome.log, log));
  EXPECT_TRUE(SameStream(outcome.stream, stream));
}

}  // namespace filter_test
