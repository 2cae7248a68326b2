// SPDX-License-Identifier: Apache-2.0
//
// Runs the filter tests, in a process that keeps the scheduler's descriptor numbers free.
#include <gtest/gtest.h>

#include <csignal>

#include "tests/filter/descriptors.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  filter_test::ReserveChannelDescriptors();
  std::signal(SIGPIPE, SIG_IGN);  // a filter that ends early leaves its input unread
  return RUN_ALL_TESTS();
}
