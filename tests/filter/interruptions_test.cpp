// SPDX-License-Identifier: Apache-2.0
//
// Calls of the system that are interrupted half-way: by a stop of the process, and by the signals
// of a library that has been loaded into the filter.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

const Settings kSettings{};

std::string WholeStream() {
  return StatusRequest() + Sheet(kSettings, SmallImage()) + PrintOut();
}

std::string WholeLog() {
  return GoodStart() + SmallPage() + SmallSheet(kSettings);
}

/// Signals to the filter all the time, whose handler asks for no restart of what it interrupts.
std::map<std::string, std::string> Interruptions() {
  return {{"LD_PRELOAD", FILTER_TEST_INTERPOSER ":" FILTER_TEST_INTERRUPTIONS}};
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

TEST(Interruptions, LoseNothingOfASheetThatIsTakenSlowly) {
  FilterProcess filter(
      {.input = SmallRaster(),
       .environment = Interruptions(),
       .printer = {.readiness = {{.pieces = {kReady}, .then_hold_stream = true}}}});
  for (int round = 0; round < 20; ++round) {
    filter.WaitUntilStuck();
    filter.PlayFor(std::chrono::milliseconds(5));
    filter.TakeFromStream();
  }

  const Outcome outcome = filter.Finish();

  EXPECT_TRUE(SameStream(outcome.stream, WholeStream()));
  EXPECT_TRUE(SameLog(outcome.log, WholeLog()));
  EXPECT_EQ(outcome.status, 0);
}

TEST(Interruptions, DoNotShortenTheWaitForAnAnswer) {
  FilterProcess filter({.input = SmallRaster(),
                        .environment = Interruptions(),
                        .printer = {.status = {Answer(kGood.substr(0, 7))}}});
  filter.PlayFor(std::chrono::milliseconds(300));
  filter.SendAnswer(kGood.substr(7));

  const Outcome outcome = filter.Finish();

  EXPECT_TRUE(SameStream(outcome.stream, WholeStream()));
  EXPECT_TRUE(SameLog(outcome.log, WholeLog()));
  EXPECT_EQ(outcome.status, 0);
}

TEST(Interruptions, LeaveSigtermToEndAPage) {
  FilterProcess filter(
      {.input = SmallRaster().substr(0, 2000), .more_input = true, .environment = Interruptions()});
  filter.WaitForLog("page 1, 0% complete");
  filter.Terminate();

  const Outcome outcome = filter.Finish();

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest()));
}

TEST(Interruptions, LeaveFaultsOfTheFilterToTheirHandler) {
  for (const int fault : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGTRAP, SIGSYS, SIGABRT}) {
    SCOPED_TRACE(fault);
    FilterProcess filter({.input = SmallRaster().substr(0, 2000),
                          .more_input = true,
                          .environment = Interruptions()});
    filter.WaitForLog("page 1, 0% complete");
    filter.Send(fault);

    EXPECT_EQ(filter.Finish().status, 77);
  }
}

}  // namespace
}  // namespace filter_test
