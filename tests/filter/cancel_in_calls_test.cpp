// SPDX-License-Identifier: Apache-2.0
//
// SIGTERM within calls that hold locks or have structures half changed. A preloaded library brings
// it there, and ends the filter by SIGABRT where the handler uses what is in use.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/filter/cancelled_calls.h"
#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

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

TEST(CancelInCalls, BetweenTheHeadersOfASheetSendsTheFirst) {
  const Outcome outcome = Print(Watched(SmallPhoto().job, "localtime 1 before"));

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(Arrived(outcome));
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + StatusRequest() +
                                             ReadinessQuery(kSettings) + JobHeader(kSettings)));
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
  EXPECT_GE(CancelInEach(example, "message", "before", 31), 5);
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

TEST(CancelInCalls, OfASelfTestLeavesAStreamInUseAlone) {
  EXPECT_EQ(CancelInEach(SelfTest(), "fflush", "before"), 4);
}

}  // namespace
}  // namespace filter_test
