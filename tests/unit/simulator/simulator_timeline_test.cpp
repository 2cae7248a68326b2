// SPDX-License-Identifier: Apache-2.0
//
// When what came, as the printer notes it for other programs to read.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <sstream>

#include "tests/unit/simulator/print_client.h"
#include "tests/unit/simulator/printer_process.h"
#include "tests/unit/stream_bytes.h"
#include "tests/unit/temp_file.h"

namespace {

struct Line {
  double seconds = 0.0;
  std::uint64_t connection = 0;
  std::uint64_t bytes = 0;
  std::string event;
};

class TimelineFile : public testing::Test {
 protected:
  std::vector<std::string> Options(const std::vector<std::string>& more = {}) const {
    std::vector<std::string> options{"--output", folder_.path().string(), "--timeline", Path()};
    options.insert(options.end(), more.begin(), more.end());
    return options;
  }

  std::string Path() const { return (folder_.path() / "timeline").string(); }

  std::vector<Line> Lines() const {
    std::vector<Line> lines;
    std::ifstream file(Path());
    Line line;
    while (file >> line.seconds >> line.connection >> line.bytes && file.ignore() &&
           std::getline(file, line.event)) {
      lines.push_back(line);
    }
    return lines;
  }

  // What does not depend on how the network cut the stream: all but the times and "bytes".
  std::string Events() const {
    std::ostringstream text;
    for (const Line& line : Lines()) {
      if (line.event != "bytes") {
        text << line.connection << ' ' << line.bytes << ' ' << line.event << '\n';
      }
    }
    return text.str();
  }

  TempFolder folder_;
};

TEST_F(TimelineFile, HasEveryCommandWithTheBytesThatHadComeByThen) {
  PrinterProcess printer(Options());
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  ASSERT_EQ(printer.Stop(), 0);
  EXPECT_EQ(Events(),
            "1 0 opened\n"
            "1 8 status request\n"
            "1 8 answered\n"
            "1 16 status request\n"
            "1 16 answered\n"
            "1 528 readiness query\n"
            "1 528 answered\n"
            "1 1040 job header\n"
            "1 1552 image header\n"
            "1 7013224 sheet\n"
            "1 7013230 print-out\n"
            "1 7013230 end of stream\n"
            "1 7013230 closed\n");
}

TEST_F(TimelineFile, HasTheArrivalOfEveryByte) {
  PrinterProcess printer(Options());
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  ASSERT_EQ(printer.Stop(), 0);
  std::uint64_t come = 0;
  for (const Line& line : Lines()) {
    if (line.event == "bytes") {
      EXPECT_GT(line.bytes, come);
      EXPECT_LE(line.bytes, come + 65536);
      come = line.bytes;
    }
  }
  EXPECT_EQ(come, 7013230U);
}

TEST_F(TimelineFile, GoesByTheSystemsClock) {
  using Seconds = std::chrono::duration<double>;
  const auto now = [] {
    return Seconds(std::chrono::system_clock::now().time_since_epoch()).count();
  };
  const double before = now();
  PrinterProcess printer(Options());
  ASSERT_TRUE(print(printer.Port(), stream::status_request()));
  ASSERT_EQ(printer.Stop(), 0);
  const double after = now();
  double last = before - 2e-6;  // the lines have whole microseconds
  ASSERT_EQ(Lines().size(), 6U);
  for (const Line& line : Lines()) {
    EXPECT_GE(line.seconds, last) << line.event;
    EXPECT_LE(line.seconds, after) << line.event;
    last = line.seconds;
  }
}

TEST_F(TimelineFile, GivesTheTimesToTheMicrosecond) {
  PrinterProcess printer(Options());
  ASSERT_TRUE(print(printer.Port(), stream::status_request()));
  ASSERT_EQ(printer.Stop(), 0);
  std::ifstream file(Path());
  for (std::string line; std::getline(file, line);) {
    EXPECT_THAT(line, testing::MatchesRegex("[0-9]{10}\\.[0-9]{6} 1 [08] [a-z ]+"));
  }
}

TEST_F(TimelineFile, TellsConnectionsApart) {
  PrinterProcess printer(Options());
  ASSERT_TRUE(print(printer.Port(), stream::status_request()));
  ASSERT_TRUE(print(printer.Port(), stream::status_request()));
  ASSERT_EQ(printer.Stop(), 0);
  EXPECT_EQ(Events(),
            "1 0 opened\n1 8 status request\n1 8 answered\n1 8 end of stream\n1 8 closed\n"
            "2 0 opened\n2 8 status request\n2 8 answered\n2 8 end of stream\n2 8 closed\n");
}

TEST_F(TimelineFile, HasEachPieceOfAnAnswer) {
  PrinterProcess printer(Options({"--fault", "status pieces 4 1"}));
  ASSERT_TRUE(print(printer.Port(), stream::status_request()));
  ASSERT_EQ(printer.Stop(), 0);
  EXPECT_EQ(Events(),
            "1 0 opened\n1 8 status request\n1 8 answered\n1 8 answered\n1 8 answered\n"
            "1 8 end of stream\n1 8 closed\n");
}

TEST_F(TimelineFile, HasNoAnswerOfASilentPrinter) {
  PrinterProcess printer(Options({"--fault", "status silent"}));
  ASSERT_TRUE(print(printer.Port(), stream::status_request()));
  ASSERT_EQ(printer.Stop(), 0);
  EXPECT_EQ(Events(), "1 0 opened\n1 8 status request\n1 8 end of stream\n1 8 closed\n");
}

TEST_F(TimelineFile, SaysThatAConnectionWasDropped) {
  PrinterProcess printer(Options({"--fault", "drop at byte 8"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::status_request()));
  EXPECT_NE(printer.WaitForLine("closed"), "");
  EXPECT_EQ(Events(),
            "1 0 opened\n1 8 status request\n1 8 answered\n1 8 dropped after 8 bytes\n"
            "1 8 closed\n");
}

TEST_F(TimelineFile, IsWholeWhenTheConnectionIsSaidToBeClosed) {
  PrinterProcess printer(Options());
  ASSERT_TRUE(print(printer.Port(), stream::status_request()));
  ASSERT_NE(printer.WaitForLine("closed"), "");
  EXPECT_EQ(Lines().size(), 6U);
}

TEST_F(TimelineFile, BeginsAnewWithEachRun) {
  std::ofstream(Path()) << "an earlier timeline\n";
  PrinterProcess printer(Options());
  ASSERT_NE(printer.Port(), 0);
  ASSERT_EQ(printer.Stop(), 0);
  EXPECT_EQ(std::filesystem::file_size(Path()), 0U);
}

TEST(TimelineOnAFullDisk, EndsWithALineAndStatus1) {
  const TempFolder folder;
  PrinterProcess printer({"--output", folder.path().string(), "--timeline", "/dev/full"});
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.WaitForLine("failure"),
            "connection 1: failure: the timeline ends: No space left on device");
  ASSERT_TRUE(print(printer.Port(), stream::status_request()));
  EXPECT_EQ(printer.WaitForLine("connection 2: closed"),
            "connection 2: closed, 8 bytes, 0 sheets, 0 errors");
  EXPECT_THAT(printer.Lines(), testing::Not(testing::HasSubstr("connection 2: failure")));
  EXPECT_EQ(printer.Stop(), 1);
  EXPECT_TRUE(std::filesystem::exists(folder.path() / "sheet-0001.png"));
}

}  // namespace
