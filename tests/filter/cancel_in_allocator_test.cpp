// SPDX-License-Identifier: Apache-2.0
//
// SIGTERM within the allocator. Sanitizers bring one of their own, which does not let itself be
// watched: there these tests are left out.
#include <gtest/gtest.h>

#include "tests/filter/cancelled_calls.h"
#include "tests/filter/comparison.h"
#include "tests/filter/expected_stream.h"

namespace filter_test {
namespace {

TEST(CancelInAllocator, InTheAllocatorTakesAndReleasesNoMemory) {
  EXPECT_GE(CancelInEach(JoinedMatte(), "malloc", "before", 13), 10);
  EXPECT_GE(CancelInEach(SmallPhoto(), "malloc", "after", 7), 10);
}

TEST(CancelInAllocator, InTheReleaseOfMemoryTakesAndReleasesNoMemory) {
  EXPECT_GE(CancelInEach(JoinedMatte(), "free", "after", 13), 10);
  EXPECT_GE(CancelInEach(SmallPhoto(), "free", "before", 7), 10);
}

TEST(CancelInAllocator, BetweenTheHeadersOfASheetAndItsPixelsSendsTheHeaders) {
  const Settings settings{};

  const Outcome outcome = Print(Watched(SmallPhoto().job, "staging 1 before"));

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(Arrived(outcome));
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + StatusRequest() +
                                             ReadinessQuery(settings) + JobHeader(settings) +
                                             ImageHeader(settings)));
}

TEST(CancelInAllocator, OfASelfTestTakesAndReleasesNoMemory) {
  EXPECT_GE(CancelInEach(SelfTest(), "malloc", "before", 29), 5);
  EXPECT_GE(CancelInEach(SelfTest(), "free", "after", 29), 5);
}

}  // namespace
}  // namespace filter_test
