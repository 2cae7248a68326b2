// SPDX-License-Identifier: Apache-2.0
//
// Descriptors that are open but not what the scheduler hands out: files, folders, devices, the
// wrong end of a pipe, ends whose other side has gone.
#include <gtest/gtest.h>
#include <sys/socket.h>

#include <chrono>
#include <thread>

#include "tests/filter/comparison.h"
#include "tests/filter/descriptors.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

const std::string kAskedAndRefused =
    kBanner + "DEBUG: CUPS_SC_CMD_GET_BIDI=CUPS_SC_STATUS_TIMEOUT(3)\n" + kNoTwoWays;

/// A job with `opened` as one of its descriptors.
Outcome PrintWith(int descriptor, const Opened& opened) {
  return Print(
      {.input = SmallRaster(),
       .environment = {{"FILTER_TEST_WAIT_SCALE", "0.02"}, {"FILTER_TEST_READ_SCALE", "1"}},
       .given_descriptors = {{descriptor, opened.number()}}});
}

void ExpectAskedInVain(const Outcome& outcome) {
  EXPECT_TRUE(SameLog(outcome.log, kAskedAndRefused));
  EXPECT_TRUE(SameStream(outcome.stream, ""));
  EXPECT_EQ(outcome.status, 1);
}

void ExpectUnavailable(const Outcome& outcome, int result) {
  EXPECT_TRUE(SameLog(outcome.log, kBanner + kTwoWays + FailedStatusExchange(result) +
                                       UnknownError("UNAVAILABLE") + kStop));
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest()));
  EXPECT_EQ(outcome.status, 1);
}

void ExpectSent(const Outcome& outcome) {
  EXPECT_TRUE(SameStream(outcome.stream, SmallStream()));
  EXPECT_EQ(outcome.status, 0);
}

TEST(SideChannel, ThatIsAFolderMeansNoTwoWays) {
  ExpectAskedInVain(PrintWith(4, Opened("/", O_RDONLY)));
}

TEST(SideChannel, ThatIsAnEmptyFileMeansNoTwoWays) {
  const TemporaryFolder folder;
  ExpectAskedInVain(PrintWith(4, Opened(folder.Write("file", ""), O_RDWR)));
}

TEST(SideChannel, ThatIsTheNullDeviceMeansNoTwoWays) {
  ExpectAskedInVain(PrintWith(4, Opened("/dev/null", O_RDWR)));
}

TEST(SideChannel, ThatIsAFileOfRightAnswersMeansNoTwoWays) {
  // The question is written over the answer, and what is behind it is read.
  const TemporaryFolder folder;
  const std::string path = folder.Write("file", "\x03\x01\x00\x01\x01"s);
  ExpectAskedInVain(PrintWith(4, Opened(path, O_RDWR)));
}

TEST(SideChannel, ThatGivesZerosWithoutEndMeansNoTwoWays) {
  ExpectAskedInVain(PrintWith(4, Opened("/dev/zero", O_RDWR)));
}

TEST(SideChannel, ThatIsTheWriteEndOfAPipeMeansNoTwoWays) {
  const auto [read_end, write_end] = HighPipe();
  const Opened reader(read_end);
  ExpectAskedInVain(PrintWith(4, Opened(write_end)));
}

TEST(SideChannel, WhosePeerIsGoneEndsTheFilterByTheSystemsOwnSignal) {
  int ends[2];
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
  const Opened left(MoveHigh(ends[0]));
  close(ends[1]);

  const Outcome outcome = PrintWith(4, left);

  EXPECT_EQ(outcome.signal, SIGPIPE);
  EXPECT_TRUE(SameLog(outcome.log, kBanner));
  EXPECT_TRUE(SameStream(outcome.stream, ""));
}

TEST(SideChannel, ThatIsClosedInMidAnswerMeansNoTwoWays) {
  int ends[2];
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
  const Opened ours(MoveHigh(ends[0]));
  const Opened theirs(MoveHigh(ends[1]));
  ASSERT_EQ(write(ours.number(), "\x03\x01", 2), 2);
  ASSERT_EQ(shutdown(ours.number(), SHUT_WR), 0);

  ExpectAskedInVain(PrintWith(4, theirs));
}

TEST(SideChannel, ThatIsClosedAfterItsFirstAnswerLeavesThePrintersToBeRead) {
  FilterProcess filter({.input = SmallRaster(),
                        .environment = kRealWaits,
                        .printer = {.bidi = {.data = "\x01", .then_close = true}},
                        .broken_pipe_is_an_error = true});
  const std::string reply = StatusReply(0x26, 0x65);
  filter.SendAnswer(reply);

  const Outcome outcome = filter.Finish();

  std::string log = kBanner + kTwoWays + StatusExchange(reply) +
                    KnownError("0x2665", "com.corvantiel-error0008_2665") + kStop;
  log.replace(log.find(kDrained), kDrained.size(),
              "DEBUG: CUPS_SC_CMD_DRAIN_OUTPUT=CUPS_SC_STATUS_TIMEOUT(3)\n");
  EXPECT_TRUE(SameLog(outcome.log, log));
  EXPECT_EQ(outcome.status, 1);
}

TEST(BackChannel, ThatIsAFolderMeansAnUnavailablePrinter) {
  ExpectUnavailable(PrintWith(3, Opened("/", O_RDONLY)), -1);
}

TEST(BackChannel, ThatIsTheNullDeviceMeansAnUnavailablePrinter) {
  ExpectUnavailable(PrintWith(3, Opened("/dev/null", O_RDWR)), 0);
}

TEST(BackChannel, ThatIsTheWriteEndOfAPipeMeansAnUnavailablePrinter) {
  const auto [read_end, write_end] = HighPipe();
  const Opened reader(read_end);
  ExpectUnavailable(PrintWith(3, Opened(write_end)), -1);
}

TEST(BackChannel, WhosePeerIsGoneMeansAnUnavailablePrinter) {
  const auto [read_end, write_end] = HighPipe();
  close(write_end);
  ExpectUnavailable(PrintWith(3, Opened(read_end)), 0);
}

TEST(BackChannel, ThatIsSilentAndBlocksMeansAnUnavailablePrinter) {
  const auto [read_end, write_end] = HighPipe();
  const Opened writer(write_end);

  const Outcome outcome = Print({.input = SmallRaster(),
                                 .environment = kRealWaits,
                                 .given_descriptors = {{3, Opened(read_end).number()}}});

  ExpectUnavailable(outcome, -1);
}

TEST(BackChannel, ThatIsAFileOfGoodAnswersEndsTheJobAtItsEnd) {
  const TemporaryFolder folder;
  const std::string answers = kGood + std::string(497, '\0') + kGood + std::string(497, '\0');

  const Outcome outcome = PrintWith(3, Opened(folder.Write("file", answers), O_RDONLY));

  EXPECT_TRUE(
      SameStream(outcome.stream, StatusRequest() + StatusRequest() + ReadinessQuery(kSettings)));
  EXPECT_TRUE(
      outcome.log.ends_with("DEBUG: cupsBackChannelRead() failed. ret=0\n"
                            "DEBUG: wr_esc_enable() Error\n"
                            "[sleep 1]\n"));
  EXPECT_EQ(outcome.status, 1);
}

TEST(BackChannel, ThatGivesZerosWithoutEndCountsAsAGoodPrinter) {
  ExpectSent(PrintWith(3, Opened("/dev/zero", O_RDONLY)));
}

TEST(StandardInput, ThatIsAFolderHasNoPages) {
  const Outcome outcome = PrintWith(0, Opened("/", O_RDONLY));

  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + kNoPages));
  EXPECT_EQ(outcome.status, 1);
}

TEST(StandardInput, OfZerosWithoutEndHasNoPages) {
  const Outcome outcome = PrintWith(0, Opened("/dev/zero", O_RDONLY));

  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + kNoPages));
  EXPECT_EQ(outcome.status, 1);
}

TEST(StandardError, ThatIsFullDoesNotMatterToTheSheet) {
  ExpectSent(PrintWith(2, Opened("/dev/full", O_WRONLY)));
}

TEST(StandardError, ThatIsAFolderDoesNotMatterToTheSheet) {
  ExpectSent(PrintWith(2, Opened("/", O_RDONLY)));
}

TEST(StandardError, WhoseReaderIsGoneEndsTheFilterBeforeAnythingIsSent) {
  const auto [read_end, write_end] = HighPipe();
  close(read_end);

  const Outcome outcome = PrintWith(2, Opened(write_end));

  EXPECT_EQ(outcome.signal, SIGPIPE);
  EXPECT_TRUE(SameStream(outcome.stream, ""));
}

TEST(StandardError, WhoseReaderIsGoneDoesNotMatterToTheSheetWhereTheSignalIsIgnored) {
  const auto [read_end, write_end] = HighPipe();
  close(read_end);

  const Outcome outcome = Print({.input = SmallRaster(),
                                 .given_descriptors = {{2, Opened(write_end).number()}},
                                 .broken_pipe_is_an_error = true});

  ExpectSent(outcome);
}

TEST(StandardError, ThatIsFullForAWhileHoldsTheJobUpAndLosesNoLine) {
  const auto [read_end, write_end] = HighPipe();
  Opened writer(write_end);
  Opened reader(read_end);
  fcntl(writer.number(), F_SETPIPE_SZ, 4096);
  const std::string filling(4096, '#');
  ASSERT_EQ(write(writer.number(), filling.data(), filling.size()), 4096);
  FilterProcess filter({.input = SmallRaster(), .given_descriptors = {{2, writer.number()}}});
  writer.Close();
  std::string log;
  std::thread scheduler([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    char buffer[512];
    for (ssize_t bytes = 0; (bytes = read(reader.number(), buffer, sizeof buffer)) > 0;) {
      log.append(buffer, static_cast<std::size_t>(bytes));
    }
  });

  ExpectSent(filter.Finish());

  scheduler.join();
  EXPECT_TRUE(SameLog(log.substr(filling.size()), SmallLog()));
}

}  // namespace
}  // namespace filter_test
