// SPDX-License-Identifier: Apache-2.0
//
// SIGTERM within calls that hold locks or have structures half changed. A preloaded library brings
// it there, and ends the filter by SIGABRT where the handler uses what is in use.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "tests/filter/command_job.h"
#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

const Settings kSettings{};
constexpr std::size_t kHeaders = 1024;  // job header and image header

Job Watched(Job job, const std::string& at) {
  job.environment["LD_PRELOAD"] = FILTER_TEST_SIGNALS ":" FILTER_TEST_INTERPOSER;
  job.environment["FILTER_TEST_SIGNAL_AT"] = at;
  job.stream_end = StreamEnd::Anywhere;
  return job;
}

bool Arrived(const Outcome& outcome) {
  return outcome.log.find("[SIGTERM]\n") != std::string::npos;
}

/// A job, its whole stream, and where in it the first sheet's headers begin.
struct Example {
  Job job;
  std::string whole;
  std::size_t headers;
};

const std::size_t kFirstHeaders = StatusRequest().size() + StatusRequest().size() + 512;

Example SmallPhoto() {
  return {{.input = SmallRaster()},
          StatusRequest() + Sheet(kSettings, SmallImage()) + PrintOut(),
          kFirstHeaders};
}

/// Two pages on a sheet with a matte plane: every kind of memory that a job takes.
Example JoinedMatte() {
  const Settings settings{.paper = &kJoined, .finish = kMatte, .rgb_rate = 66};
  return {{.input = SmallRaster(2), .options = "PageSize=RQ_5x15x2_2 RQPrintFinish=Matte"},
          StatusRequest() + Sheet(settings, SmallImage(2, kJoined) + SmallImage(1, kJoined)) +
              PrintOut(),
          kFirstHeaders};
}

void ExpectBeginning(const Outcome& outcome, const Example& example) {
  EXPECT_EQ(outcome.status, 0) << "signal " << outcome.signal << "\n" << outcome.log;
  EXPECT_TRUE(SameStream(outcome.stream, example.whole.substr(0, outcome.stream.size())));
  EXPECT_TRUE(outcome.stream.size() <= example.headers ||
              outcome.stream.size() > example.headers + kHeaders)
      << "headers without a pixel";
}

std::string CallAt(const std::string& call, long number, const std::string& moment) {
  std::ostringstream at;
  at << call << ' ' << number << ' ' << moment;
  return at.str();
}

/// SIGTERM in every `stride`-th call of this name that the pages make. The number of calls that it
/// came into; the first that there is not leaves the job undisturbed.
int CancelInEach(const Example& example, const std::string& call, const std::string& moment,
                 int stride = 1) {
  for (int number = 1;; number += stride) {
    const std::string at = CallAt(call, number, moment);
    SCOPED_TRACE(at);
    const Outcome outcome = Print(Watched(example.job, at));
    ExpectBeginning(outcome, example);
    if (!Arrived(outcome) || testing::Test::HasFailure()) {
      EXPECT_TRUE(SameStream(outcome.stream, example.whole));
      return (number - 1) / stride;
    }
  }
}

TEST(CancelInCalls, InTheAllocatorTakesAndReleasesNoMemory) {
  EXPECT_GE(CancelInEach(JoinedMatte(), "malloc", "before", 13), 10);
  EXPECT_GE(CancelInEach(SmallPhoto(), "malloc", "after", 7), 10);
}

TEST(CancelInCalls, InTheReleaseOfMemoryTakesAndReleasesNoMemory) {
  EXPECT_GE(CancelInEach(JoinedMatte(), "free", "after", 13), 10);
  EXPECT_GE(CancelInEach(SmallPhoto(), "free", "before", 7), 10);
}

TEST(CancelInCalls, InAWriteOfTheStreamLeavesItAlone) {
  EXPECT_GE(CancelInEach(SmallPhoto(), "fwrite", "before", 2), 10);
  EXPECT_GE(CancelInEach(SmallPhoto(), "fwrite", "after", 3), 10);
}

TEST(CancelInCalls, InAFlushOfTheStreamLeavesItAlone) {
  EXPECT_EQ(CancelInEach(SmallPhoto(), "fflush", "before"), 4);
  EXPECT_EQ(CancelInEach(SmallPhoto(), "fflush", "after"), 4);
}

TEST(CancelInCalls, InAMessageWritesNoOther) {
  EXPECT_GE(CancelInEach(SmallPhoto(), "message", "before", 17), 10);
  EXPECT_GE(CancelInEach(SmallPhoto(), "message", "after", 19), 10);
}

TEST(CancelInCalls, InARasterLineDropsThePage) {
  EXPECT_EQ(CancelInEach(SmallPhoto(), "readpixels", "before"), 4);
  EXPECT_EQ(CancelInEach(SmallPhoto(), "readpixels", "after"), 4);
}

TEST(CancelInCalls, InTheListOfPrintersEndsTheJob) {
  EXPECT_EQ(CancelInEach(SmallPhoto(), "getdests", "before"), 1);
  EXPECT_EQ(CancelInEach(SmallPhoto(), "getdests", "after"), 1);
}

TEST(CancelInCalls, InAnExchangeWithThePrinterEndsTheJob) {
  EXPECT_EQ(CancelInEach(SmallPhoto(), "sidechannel", "before"), 2);
  EXPECT_EQ(CancelInEach(SmallPhoto(), "readreply", "after"), 2);
}

TEST(CancelInCalls, BetweenTheHeadersOfASheetSendsNeither) {
  const Example example = SmallPhoto();

  const Outcome outcome = Print(Watched(example.job, "localtime 1 before"));

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(Arrived(outcome));
  EXPECT_TRUE(
      SameStream(outcome.stream, StatusRequest() + StatusRequest() + ReadinessQuery(kSettings)));
}

TEST(CancelInCalls, BetweenTwoBlocksOfPixelsSendsWhatWasWritten) {
  const Example example = SmallPhoto();
  const Outcome quiet = Print({.input = SmallRaster()});
  const std::size_t blocks = 0x30000;
  // In the page's messages, the first block's progress is the one behind the readiness exchange.
  const std::string before = quiet.log.substr(
      0, quiet.log.find("INFO: Printing page 1, 50%", quiet.log.find("ENABLE[00")));
  const std::string page = before.substr(before.find("INFO: Printing page 1, 0%"));
  const auto messages = std::count(page.begin(), page.end(), '\n');

  const Outcome outcome = Print(Watched(example.job, CallAt("message", messages + 1, "after")));

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(
      SameStream(outcome.stream, example.whole.substr(0, example.headers + kHeaders + blocks)));
}

TEST(CancelInCalls, AsThePageBeginsKillsTheFilterOrDropsThePage) {
  const Outcome before = Print(Watched(SmallPhoto().job, "sigaction 1 before"));
  EXPECT_EQ(before.signal, SIGTERM);
  EXPECT_TRUE(SameStream(before.stream, StatusRequest()));

  const Outcome after = Print(Watched(SmallPhoto().job, "sigaction 1 after"));
  EXPECT_EQ(after.status, 0);
  EXPECT_TRUE(SameStream(after.stream, StatusRequest()));
}

TEST(CancelInCalls, AsThePageEndsLeavesThePrintOutAwayOrIsIgnored) {
  const Outcome before = Print(Watched(SmallPhoto().job, "sigaction 2 before"));
  EXPECT_EQ(before.status, 0);
  EXPECT_TRUE(SameStream(before.stream, StatusRequest() + Sheet(kSettings, SmallImage())));

  const Outcome after = Print(Watched(SmallPhoto().job, "sigaction 2 after"));
  EXPECT_EQ(after.status, 0);
  EXPECT_TRUE(Arrived(after));
  EXPECT_TRUE(SameStream(after.stream, SmallPhoto().whole));
}

TEST(CancelInCalls, TwiceEndsAsOnce) {
  Example example = SmallPhoto();
  example.job.environment["FILTER_TEST_SIGNAL_AGAIN"] = "1";
  EXPECT_GE(CancelInEach(example, "malloc", "before", 31), 5);
  EXPECT_EQ(CancelInEach(example, "fflush", "before"), 4);
  EXPECT_EQ(CancelInEach(example, "sleep", "after"), 1);
}

TEST(CancelInCalls, WithABackendThatIsGoneEndsWithoutAnErrorAllTheSame) {
  const Example example = SmallPhoto();
  // What the backend has got when the pause begins: the rest waits in the filter.
  const std::string taken = Print(Watched(example.job, "fflush 3 before")).stream;
  ASSERT_LT(taken.size(), example.whole.size() - PrintOut().size());
  Job job = Watched(example.job, "sleep 1 before");
  job.environment["FILTER_TEST_SIGNAL_GONE"] = "1";
  // Without libcups' own search for printers, which has SIGPIPE ignored from then on.
  job.environment["FILTER_TEST_DEFAULT"] = "bare";
  job.printer.stream_limit = taken.size();

  const Outcome outcome = Print(job);

  EXPECT_EQ(outcome.status, 0) << "signal " << outcome.signal;
  EXPECT_TRUE(SameStream(outcome.stream, taken));
}

TEST(CancelInCalls, InATruePauseEndsTheJobAtOnce) {
  FilterProcess filter({.input = SmallRaster(), .environment = {{"LD_PRELOAD", ""}}});
  filter.WaitForLog("100% complete");
  filter.Terminate();

  const Outcome outcome = filter.Finish();

  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.stream.size(), SmallPhoto().whole.size() - PrintOut().size());
}

TEST(CancelInCalls, OfASelfTestTakesAndReleasesNoMemory) {
  Example example{CommandJob("PrintSelfTestPage\n"), "", kFirstHeaders};
  example.whole = Print(example.job).stream;
  EXPECT_GE(CancelInEach(example, "malloc", "before", 29), 5);
  EXPECT_GE(CancelInEach(example, "free", "after", 29), 5);
  EXPECT_EQ(CancelInEach(example, "fflush", "before"), 4);
}

}  // namespace
}  // namespace filter_test
