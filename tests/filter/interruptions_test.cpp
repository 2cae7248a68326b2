// SPDX-License-Identifier: Apache-2.0
//
// A process that is stopped in the middle of a write, and one that gets signals of a library that
// has been loaded into it.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

std::string WholeStream() {
  return SmallStream();
}

std::string WholeLog() {
  return SmallLog();
}

TEST(ShortWrite, OfAnImageThatIsStoppedAgainAndAgainLosesNothing) {
  FilterProcess filter(
      {.input = SmallRaster(),
       .printer = {.readiness = {{.pieces = {kReady}, .then_hold_stream = true}}}});
  for (int round = 0; round < 20; ++round) {
    filter.WaitUntilStuck();
    // A write that is stopped ends with what it has written so far.
    const long writes = filter.Writes();
    filter.Send(SIGSTOP);
    filter.Send(SIGCONT);
    while (filter.Writes() == writes) {
      filter.PlayFor(std::chrono::milliseconds(1));
    }
    filter.TakeFromStream();
  }

  const Outcome outcome = filter.Finish();

  EXPECT_TRUE(SameStream(outcome.stream, WholeStream()));
  EXPECT_TRUE(SameLog(outcome.log, WholeLog()));
  EXPECT_EQ(outcome.status, 0);
}

TEST(ForeignSignal, ReachesTheHandlerOfItsLibraryInMidPage) {
  const std::string raster = SmallRaster();
  FilterProcess filter(
      {.input = raster.substr(0, 1900),
       .more_input = true,
       .environment = {{"LD_PRELOAD", FILTER_TEST_INTERPOSER ":" FILTER_TEST_FOREIGN_SIGNAL}}});
  filter.WaitForLog("page 1, 0% complete...\n");
  filter.Send(SIGUSR1);
  filter.WaitForLog("[SIGUSR1]\n");
  filter.Feed(raster.substr(1900));
  filter.CloseInput();

  const Outcome outcome = filter.Finish();

  EXPECT_TRUE(SameStream(outcome.stream, WholeStream()));
  EXPECT_EQ(outcome.status, 0);
}

}  // namespace
}  // namespace filter_test
