// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/meter.h"
#include "tests/unit/bench/output_of.h"

#include <gtest/gtest.h>
#include <sched.h>

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace {

using bench::measure;
using bench::MeteredRun;
using bench::Streams;
using bench::Usage;

constexpr long kSmall = 4096;  // kB: what a program without work of its own may have
constexpr long kPagesOf64Megabytes = 16384;

MeteredRun known_use(const std::string& megabytes, const std::string& milliseconds) {
  MeteredRun run;
  run.argv = {TQR7_KNOWN_USE, megabytes, milliseconds};
  run.streams = Streams::Pipes;
  return run;
}

TEST(Meter, TellsThePeakMemoryOfTheProgramAlone) {
  const std::string of_the_meter_itself(64U << 20U, 'x');
  MeteredRun run;
  run.argv = {"/bin/true"};
  EXPECT_LT(measure(run).peak, kSmall);
  EXPECT_EQ(of_the_meter_itself.back(), 'x');
}

TEST(Meter, CountsTheMemoryThatTheProgramTouches) {
  const Usage usage = measure(known_use("64", "0"));
  EXPECT_GT(usage.peak, 65536);
  EXPECT_LT(usage.peak, 65536 + kSmall);
}

TEST(Meter, CountsAFaultForEachPageThatTheProgramTouches) {
  const Usage usage = measure(known_use("64", "0"));
  EXPECT_GT(usage.faults, kPagesOf64Megabytes);
  EXPECT_LT(usage.faults, kPagesOf64Megabytes + 1000);
}

TEST(Meter, TellsTheProcessorTimeThatTheProgramHasByItsOwnClock) {
  std::string output;
  const Usage usage = measure(known_use("0", "60"), &output);
  const double by_its_own = std::atof(output.c_str());
  EXPECT_GE(by_its_own, 0.060);
  EXPECT_GE(usage.cpu(), by_its_own - 0.001);  // the clocks round
  EXPECT_LT(usage.cpu(), 1.5 * by_its_own);    // its end is not in its own
}

TEST(Meter, CountsPausesInPlaceOfMakingThem) {
  const Usage usage = measure(known_use("0", "0"));
  EXPECT_EQ(usage.pauses, 2U);
  EXPECT_EQ(usage.paused_seconds, 7U);
  EXPECT_LT(usage.wall, 7.0);
}

TEST(Meter, KeepsTheProgramOnOneProcessor) {
  MeteredRun run;
  run.argv = {"nproc"};
  run.streams = Streams::Pipes;
  EXPECT_EQ(output_of(run), "1\n");
}

TEST(Meter, GivesTheProgramAllProcessorsWhenAsked) {
  MeteredRun run;
  run.argv = {"nproc"};
  run.pinned = false;
  run.streams = Streams::Pipes;
  cpu_set_t all;
  ASSERT_EQ(sched_getaffinity(0, sizeof all, &all), 0);
  EXPECT_EQ(output_of(run), std::to_string(CPU_COUNT(&all)) + "\n");
}

TEST(Meter, CountsTheBytesOfThePipe) {
  MeteredRun run;
  run.argv = {"/bin/echo", "twelve", "bytes"};
  run.streams = Streams::Pipes;
  std::string output;
  const Usage usage = measure(run, &output);
  EXPECT_EQ(usage.bytes, 13U);
  EXPECT_EQ(output, "twelve bytes\n");
}

TEST(Meter, FeedsWhatStandsBehindTheMarkOfAStreamAsOftenAsAsked) {
  char path[] = "/tmp/meter-XXXXXX";
  const int file = mkstemp(path);
  ASSERT_EQ(write(file, "RaS3page,", 9), 9);
  close(file);
  MeteredRun run;
  run.argv = {"/bin/cat"};
  run.input = path;
  run.input_times = 3;
  run.streams = Streams::Pipes;
  EXPECT_EQ(output_of(run), "RaS3page,page,page,");
  unlink(path);
}

TEST(Meter, HoldsARunWithAnotherStatusForVoid) {
  MeteredRun run = known_use("0", "0");
  run.argv.emplace_back("3");
  EXPECT_THROW(measure(run), std::runtime_error);
  run.status = 3;
  EXPECT_NO_THROW(measure(run));
}

TEST(Meter, HoldsARunThatASignalEndsForVoid) {
  MeteredRun run;
  run.argv = {"/bin/sh", "-c", "kill -TERM $$"};
  EXPECT_THROW(measure(run), std::runtime_error);
}

TEST(Meter, HoldsARunWithTooFewBytesForVoid) {
  for (const Streams streams : {Streams::Files, Streams::Pipes}) {
    MeteredRun run;
    run.argv = {"/bin/echo", "twelve", "bytes"};
    run.streams = streams;
    run.bytes = 13;
    EXPECT_NO_THROW(measure(run));
    run.bytes = 14;
    EXPECT_THROW(measure(run), std::runtime_error);
  }
}

TEST(Meter, SaysWhenTheProgramIsNotThere) {
  MeteredRun run;
  run.argv = {"/nowhere/program"};
  EXPECT_THROW(measure(run), std::runtime_error);
}

}  // namespace
