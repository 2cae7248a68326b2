// SPDX-License-Identifier: Apache-2.0
//
// A line of the simulated printer's timeline.
#include "simulator/timeline.h"

#include <gtest/gtest.h>

namespace {

using std::chrono::microseconds;
using std::chrono::nanoseconds;
using std::chrono::system_clock;

system_clock::time_point at(nanoseconds sinceEpoch) {
  return system_clock::time_point(std::chrono::duration_cast<system_clock::duration>(sinceEpoch));
}

TEST(TimelineLine, HasTimeConnectionBytesAndEvent) {
  EXPECT_EQ(
      simulator::timeline_line(at(microseconds(1795279508196311)), 2, 13691542, "end of stream"),
      "1795279508.196311 2 13691542 end of stream");
}

TEST(TimelineLine, HasSixPlacesOfASecond) {
  EXPECT_EQ(simulator::timeline_line(at(microseconds(1795279508000042)), 1, 0, "opened"),
            "1795279508.000042 1 0 opened");
}

TEST(TimelineLine, HasTheMicrosecondThatHasBegun) {
  EXPECT_EQ(simulator::timeline_line(at(nanoseconds(1795279508999999999)), 1, 8, "bytes"),
            "1795279508.999999 1 8 bytes");
}

}  // namespace
