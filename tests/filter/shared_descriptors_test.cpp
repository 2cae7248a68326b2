// SPDX-License-Identifier: Apache-2.0
//
// Descriptors that are one open file under two numbers, such as a device that is opened once. They
// share their flags: a back channel that does not wait would have the print stream lose bytes.
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

bool Waits(const Opened& opened) {
  return (fcntl(opened.number(), F_GETFL) & O_NONBLOCK) == 0;
}

/// Takes the stream a little at a time, answers the questions of a job of one sheet, and returns
/// all that came.
std::string PrintSlowly(int printer) {
  std::string stream;
  char buffer[4096];
  ssize_t bytes = 0;
  const auto take = [&] { return bytes = read(printer, buffer, sizeof buffer); };
  for (const auto& [question, answer] : {std::pair{StatusRequest(), kGood},
                                         {StatusRequest(), kGood},
                                         {std::string(512, 0), kReady}}) {
    for (std::size_t end = stream.size() + question.size(); stream.size() < end && take() > 0;) {
      stream.append(buffer, static_cast<std::size_t>(bytes));
    }
    EXPECT_EQ(write(printer, answer.data(), answer.size()), static_cast<ssize_t>(answer.size()));
  }
  while (take() > 0) {
    stream.append(buffer, static_cast<std::size_t>(bytes));
    std::this_thread::sleep_for(std::chrono::microseconds(100));
  }
  return stream;
}

TEST(OneOpenFile, AsStreamAndBackChannelLosesNoByteToASlowPrinter) {
  int ends[2];
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
  const Opened printer(MoveHigh(ends[0]));
  Opened filters(MoveHigh(ends[1]));
  const Settings settings{.paper = &k5x15};
  FilterProcess filter({.input = SmallRaster(),
                        .options = "PageSize=RQ_5x15",
                        .given_descriptors = {{1, filters.number()}, {3, filters.number()}}});
  filters.Close();
  std::string stream;
  std::thread printing([&] { stream = PrintSlowly(printer.number()); });

  const Outcome outcome = filter.Finish();

  printing.join();
  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(
      SameStream(stream, StatusRequest() + Sheet(settings, SmallImage(1, k5x15)) + PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + SmallPage() + SmallSheet(settings)));
}

TEST(OneOpenFile, AsBackChannelAndAnyOtherDescriptorKeepsItsFlags) {
  for (const int other : {0, 1, 2, 4}) {
    SCOPED_TRACE(other);
    const Opened device("/dev/null", O_RDWR);
    Print({.input = SmallRaster(),
           .environment = {{"FILTER_TEST_WAIT_SCALE", "0.005"}},
           .given_descriptors = {{3, device.number()}, {other, device.number()}}});
    EXPECT_TRUE(Waits(device));
  }
}

TEST(BackChannel, KeepsItsFlagsWhereTheArgumentsAreExplained) {
  const auto [read_end, write_end] = HighPipe();
  const Opened back(read_end);
  const Opened writer(write_end);

  const Outcome outcome =
      Print({.arguments = std::vector<std::string>{}, .given_descriptors = {{3, back.number()}}});

  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(Waits(back));
}

}  // namespace
}  // namespace filter_test
