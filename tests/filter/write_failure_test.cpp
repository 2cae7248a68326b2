// SPDX-License-Identifier: Apache-2.0
//
// The print stream breaks at every stage of a job.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

const std::string kStatusCommand =
    "DEBUG: [CMD] size=8\n"
    "DEBUG: [CMD] 0000: 1b 47 44 30 00 00 01 16\n";
const std::string kFlushFailed = "DEBUG: fflush() failed.\n";

Reply AnswerAndClose(const std::string& bytes) {
  return {.pieces = {bytes}, .then_close_stream = true};
}

/// The readiness query as far as it goes without an answer from the stream.
std::string QueryLog() {
  return "DEBUG: buf cmd{0x1B, 'G', 'D', '3'}\n"
         "DEBUG: buf wr_esc_enable() START\n" +
         Dump("[CMD]", ReadinessQuery(kSettings));
}

TEST(FullOutput, AtTheFirstStatusRequestMeansAnUnavailablePrinter) {
  const Outcome outcome = Print({.input = SmallRaster(), .output_path = "/dev/full"});

  EXPECT_TRUE(SameLog(outcome.log, kBanner + kTwoWays + kStatusCommand + kFlushFailed +
                                       UnknownError("UNAVAILABLE") + kStop));
  EXPECT_EQ(outcome.notes, "side channel 3, room 512, 30.0 s\n");
  EXPECT_EQ(outcome.status, 1);
}

TEST(BrokenStream, AtTheFirstStatusRequestEndsTheFilterByTheSystemsOwnSignal) {
  const Outcome outcome = Print({.input = SmallRaster(), .printer = {.stream_limit = 0}});

  EXPECT_EQ(outcome.signal, SIGPIPE);
  EXPECT_TRUE(SameLog(outcome.log, kBanner + kTwoWays + kStatusCommand));
}

TEST(BrokenStream, AtTheSheetsStatusRequestEndsTheJob) {
  const Outcome outcome = Print({.input = SmallRaster(),
                                 .printer = {.status = {AnswerAndClose(kGood)}},
                                 .broken_pipe_is_an_error = true});

  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + SmallPage() + kStatusCommand + kFlushFailed +
                                       UnknownError("UNAVAILABLE") + kStop));
  EXPECT_EQ(outcome.status, 1);
}

TEST(BrokenStream, AtTheFirstReadinessQueryIsNotClassified) {
  const Outcome outcome = Print({.input = SmallRaster(),
                                 .printer = {.status = {Answer(kGood), AnswerAndClose(kGood)}},
                                 .broken_pipe_is_an_error = true});

  EXPECT_TRUE(SameLog(outcome.log, UpToExamination() + QueryLog() + kFlushFailed +
                                       "DEBUG: wr_esc_enable() Error\n[sleep 1]\n"));
  EXPECT_EQ(outcome.status, 1);
}

TEST(BrokenStream, WhileThePrinterIsBusyIsAProtocolError) {
  const Outcome outcome = Print({.input = SmallRaster(),
                                 .printer = {.readiness = {AnswerAndClose(kBusy)}},
                                 .broken_pipe_is_an_error = true});

  EXPECT_TRUE(SameLog(outcome.log, UpToExamination() + ReadinessExchange(kSettings, kBusy) +
                                       "DEBUG: CMD_GET_ENABLE[01 + 00]\n[sleep 2]\n" + QueryLog() +
                                       kFlushFailed +
                                       "DEBUG: PROTOCOL ERROR\n"
                                       "STATE: +paused\n"
                                       "ERROR: protocol-error 0xffffffff\n"
                                       "DEBUG: protocol-error\n"
                                       "[sleep 1]\n"));
  EXPECT_EQ(outcome.status, 1);
}

TEST(BrokenStream, AtTheImageShowsOnlyInTheMissingProgress) {
  const Outcome outcome = Print({.input = SmallRaster(),
                                 .printer = {.readiness = {AnswerAndClose(kReady)}},
                                 .broken_pipe_is_an_error = true});

  EXPECT_TRUE(
      SameLog(outcome.log, GoodStart() + SmallPage() + ReadySheet(kSettings) + SheetDone(1)));
  EXPECT_EQ(outcome.status, 0);
}

TEST(BrokenStream, WithinTheImageStopsTheProgressThere) {
  const std::size_t headers = 8 + 8 + 512 + 512 + 512;
  const std::size_t three_and_a_half_buffers = 196608 * 3 + 98304;

  const Outcome outcome = Print({.input = SmallRaster(),
                                 .options = "RQPrintFinish=Matte",
                                 .printer = {.stream_limit = headers + three_and_a_half_buffers},
                                 .broken_pipe_is_an_error = true,
                                 .stream_end = StreamEnd::Cut});

  const Settings matte{.finish = kMatte};
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + SmallPage() + ReadySheet(matte) +
                                       "INFO: Printing page 1, 50% complete...\n"
                                       "INFO: Printing page 1, 51% complete...\n"
                                       "INFO: Printing page 1, 52% complete...\n" +
                                       SheetDone(1)));
  EXPECT_EQ(outcome.status, 0);
}

TEST(BrokenStream, WithinTheMattePlaneGoesUnnoticed) {
  const Settings matte{.finish = kMatte};
  const std::size_t half_a_plane = 1550 * 1094 / 2;
  const std::string up_to_there = StatusRequest() + StatusRequest() + ReadinessQuery(matte) +
                                  JobHeader(matte) + ImageHeader(matte) + SmallImage();

  const Outcome outcome = Print({.input = SmallRaster(),
                                 .options = "RQPrintFinish=Matte",
                                 .printer = {.stream_limit = up_to_there.size() + half_a_plane},
                                 .broken_pipe_is_an_error = true,
                                 .stream_end = StreamEnd::Cut});

  EXPECT_TRUE(SameStream(outcome.stream.substr(0, up_to_there.size()), up_to_there));
  EXPECT_TRUE(SameLog(outcome.log, SmallLog(matte)));
  EXPECT_EQ(outcome.status, 0);
}

TEST(BrokenStream, AtThePrintOutGoesUnnoticed) {
  const std::string sheet = StatusRequest() + Sheet(kSettings, SmallImage());

  const Outcome outcome = Print({.input = SmallRaster(),
                                 .printer = {.stream_limit = sheet.size()},
                                 .broken_pipe_is_an_error = true});

  EXPECT_TRUE(SameStream(outcome.stream, sheet));
  EXPECT_TRUE(SameLog(outcome.log, SmallLog()));
  EXPECT_EQ(outcome.status, 0);
}

TEST(BrokenStream, BehindTheFirstQuestionIsASignalOnlyUntilLibcupsHasIgnoredIt) {
  // Asking the scheduler for its destinations, libcups sets SIGPIPE to be ignored for good.
  const Outcome outcome =
      Print({.input = SmallRaster(), .printer = {.status = {AnswerAndClose(kGood)}}});

  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + SmallPage() + kStatusCommand + kFlushFailed +
                                       UnknownError("UNAVAILABLE") + kStop));
  EXPECT_EQ(outcome.status, 1);
}

TEST(ShortWrite, OfTheStatusRequestMeansAnUnavailablePrinter) {
  const Outcome outcome =
      Print({.input = SmallRaster(), .environment = {{"FILTER_TEST_SHORT_WRITE", "8 3"}}});

  EXPECT_TRUE(SameStream(outcome.stream, ""));
  EXPECT_TRUE(SameLog(outcome.log, kBanner + kTwoWays + kStatusCommand +
                                       "DEBUG: fwrite() failed. ret=3\n" +
                                       UnknownError("UNAVAILABLE") + kStop));
  EXPECT_EQ(outcome.status, 1);
}

TEST(ShortWrite, OfTheReadinessQueryIsNotClassified) {
  const Outcome outcome =
      Print({.input = SmallRaster(), .environment = {{"FILTER_TEST_SHORT_WRITE", "512 500"}}});

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + StatusRequest()));
  EXPECT_TRUE(SameLog(outcome.log, UpToExamination() + QueryLog() +
                                       "DEBUG: fwrite() failed. ret=500\n"
                                       "DEBUG: wr_esc_enable() Error\n[sleep 1]\n"));
  EXPECT_EQ(outcome.status, 1);
}

}  // namespace
}  // namespace filter_test
