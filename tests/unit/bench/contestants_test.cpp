// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/contestants.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

namespace {

using bench::Entrant;
using bench::Usage;

Entrant entrant_of(std::vector<Usage> uses) {
  return {"program", {}, std::move(uses)};
}

Usage usage_of(double user, double system) {
  Usage usage;
  usage.user = user;
  usage.system = system;
  return usage;
}

TEST(Entrant, IsToldByTheMiddleOfItsRounds) {
  const Entrant entrant = entrant_of({usage_of(9, 1), usage_of(1, 1), usage_of(2, 1)});
  EXPECT_DOUBLE_EQ(bench::median_cpu(entrant), 3.0);
}

TEST(Entrant, HasItsSystemsShareOverAllRounds) {
  const Entrant entrant = entrant_of({usage_of(4, 0), usage_of(2, 2), usage_of(1, 1)});
  EXPECT_DOUBLE_EQ(bench::system_share(entrant), 0.3);
}

TEST(Entrant, AddsToAnotherWhatItTakesMoreInTheSameRound) {
  const Entrant less = entrant_of({usage_of(1, 0), usage_of(10, 0), usage_of(100, 0)});
  const Entrant more = entrant_of({usage_of(3, 1), usage_of(15, 0), usage_of(104, 0)});
  EXPECT_DOUBLE_EQ(bench::added_cpu(less, more), 4.0);
}

TEST(Entrant, HasTheLargestPeakOfItsRounds) {
  Usage small;
  small.peak = 10;
  Usage large;
  large.peak = 30;
  EXPECT_EQ(bench::largest_peak(entrant_of({small, large, small})), 30);
}

TEST(Targets, AreMetUpToTheirLimitAndMissedBeyond) {
  const std::string path = testing::TempDir() + "targets";
  setenv("TQR7_TARGETS", path.c_str(), 1);
  bench::tell_target("a page", 1.10, 1.10);
  bench::tell_target("a job", 0.50, 0.51);
  unsetenv("TQR7_TARGETS");
  std::ostringstream rows;
  rows << std::ifstream(path).rdbuf();
  EXPECT_EQ(rows.str(),
            "| a page | 1.10 | 1.10 | met |\n"
            "| a job | 0.50 | 0.51 | MISSED |\n");
  std::remove(path.c_str());
}

}  // namespace
