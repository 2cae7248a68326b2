// SPDX-License-Identifier: Apache-2.0
//
// The options of the program, and what it says of wrong ones.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <ostream>

#include "tests/unit/simulator/print_client.h"
#include "tests/unit/simulator/printer_process.h"
#include "tests/unit/stream_bytes.h"
#include "tests/unit/temp_file.h"

namespace {

using stream::Bytes;
using testing::ElementsAre;
using testing::HasSubstr;

struct WrongOptions {
  std::vector<std::string> options;
  const char* message;
};

void PrintTo(const WrongOptions& wrong, std::ostream* out) {
  for (const std::string& option : wrong.options) {
    *out << option << ' ';
  }
}

class WrongOption : public testing::TestWithParam<WrongOptions> {};

TEST_P(WrongOption, IsNamedAndEndsWithStatus2) {
  const FinishedRun run = run_to_its_end(GetParam().options);
  EXPECT_THAT(run.errors, HasSubstr(GetParam().message));
  EXPECT_EQ(run.status, 2);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, WrongOption,
    testing::Values(
        WrongOptions{{"--port", "65536"}, "--port: \"65536\" is not a number from 0 to 65535"},
        WrongOptions{{"--port", "-1"}, "--port: \"-1\" is not a number from 0 to 65535"},
        WrongOptions{{"--port", "http"}, "--port: \"http\" is not a number from 0 to 65535"},
        WrongOptions{{"--port", "91x"}, "--port: \"91x\" is not a number from 0 to 65535"},
        WrongOptions{{"--status", "0x10000"},
                     "--status: \"0x10000\" is not a number from 0 to 65535"},
        WrongOptions{{"--status", "26G5"}, "--status: \"26G5\" is not a number from 0 to 65535"},
        WrongOptions{{"--status", "0x"}, "--status: \"0x\" is not a number from 0 to 65535"},
        WrongOptions{{"--enable", "99999999999999999999"},
                     "--enable: \"99999999999999999999\" is not a number from 0 to 65535"},
        WrongOptions{{"--busy", "often"}, "--busy: \"often\" is not a number from 0 to 1000000000"},
        WrongOptions{{"--jobs", "0"}, "--jobs: \"0\" is not a number from 1 to 1000000000"}));

INSTANTIATE_TEST_SUITE_P(
    Others, WrongOption,
    testing::Values(
        WrongOptions{{"--colour"}, "--colour"},
        WrongOptions{{"--once", "--jobs", "2"}, "--jobs excludes --once"},
        WrongOptions{{"--device-values", "--profile", "tqr7.icc"},
                     "--profile excludes --device-values"},
        WrongOptions{{"--port", "0", "--profile", "/dev/null/tqr7.icc"},
                     "/dev/null/tqr7.icc: Not a directory"},
        WrongOptions{{"--port", "0", "--profile", "/dev"}, "/dev: Is a directory"},
        WrongOptions{{"--port", "0", "--profile", ""}, "No such file or directory"},
        WrongOptions{{"--port", "0", "--profile", "/dev/null"}, "/dev/null: not an ICC profile"},
        WrongOptions{{"--port", "0", "--profile", "/dev/zero"},
                     "/dev/zero: larger than 4 MiB, which no printer's profile is"},
        WrongOptions{{"--port", "0", "--address", "printer.invalid"},
                     "printer.invalid port 0: not a numeric address"},
        WrongOptions{{"--port", "0", "--address", "localhost"},
                     "localhost port 0: not a numeric address"},
        WrongOptions{{"--port", "0", "--output", "/dev/null"}, "/dev/null: Not a directory"},
        WrongOptions{{"--port", "0", "--record", "/dev/null/stream"},
                     "/dev/null/stream: Not a directory"},
        WrongOptions{{"--port", "0", "--timeline", "/dev/null/timeline"},
                     "/dev/null/timeline: Not a directory"},
        WrongOptions{{"--port", "0", "--port-file", "/dev/null/port"},
                     "/dev/null/port: Not a directory"}));

TEST(Options, ShowHelpWithStatus0) {
  EXPECT_EQ(run_to_its_end({"--help"}).status, 0);
}

TEST(Options, RefuseAPortThatIsTaken) {
  const TempFolder folder;
  PrinterProcess printer({"--output", folder.path().string()});
  const std::string port = std::to_string(printer.Port());
  const FinishedRun second = run_to_its_end({"--port", port});
  EXPECT_THAT(second.errors, HasSubstr("127.0.0.1 port " + port + ": Address already in use"));
  EXPECT_EQ(second.status, 2);
}

TEST(Options, TakeAPortAgainThatAPrinterHasJustLeft) {
  const TempFolder folder;
  PrinterProcess first({"--output", folder.path().string()});
  const std::string port = std::to_string(first.Port());
  // The printer closes this connection first, and so its end lingers on the port.
  const PrintClient client(first.Port());
  ASSERT_TRUE(client.Send(stream::status_request()));
  ASSERT_EQ(client.Read(15).size(), 15U);
  ASSERT_EQ(first.Stop(), 0);
  ASSERT_TRUE(client.Finish());
  PrinterProcess second({"--port", port, "--output", folder.path().string()});
  EXPECT_EQ(std::to_string(second.Port()), port);
}

TEST(Options, MakeTheOutputFolder) {
  const TempFolder folder;
  PrinterProcess printer({"--output", (folder.path() / "a" / "b").string()});
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.Stop(), 0);
  EXPECT_TRUE(std::filesystem::exists(folder.path() / "a" / "b" / "sheet-0001.png"));
}

TEST(Options, SayThePortFirst) {
  const TempFolder folder;
  PrinterProcess printer({"--output", folder.path().string()});
  const std::string port = std::to_string(printer.Port());
  EXPECT_EQ(printer.Output(), "listening on 127.0.0.1 port " + port + "\n");
}

TEST(Options, WriteThePortToAFile) {
  const TempFolder folder;
  const std::filesystem::path file = folder.path() / "port";
  PrinterProcess printer({"--output", folder.path().string(), "--port-file", file.string()});
  const std::string port = std::to_string(printer.Port());
  std::ifstream stream(file);
  const std::string text{std::istreambuf_iterator<char>(stream), {}};
  EXPECT_EQ(text, port + "\n");
}

TEST(Options, RecordEveryByteOfEveryConnection) {
  const TempFolder folder;
  const std::filesystem::path file = folder.path() / "stream";
  PrinterProcess printer({"--output", folder.path().string(), "--record", file.string()});
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  ASSERT_TRUE(print(printer.Port(), {0x00, 0xFF, 0x1B}));
  EXPECT_EQ(printer.Stop(), 1);
  std::ifstream stream(file, std::ios::binary);
  const Bytes recorded{std::istreambuf_iterator<char>(stream), {}};
  EXPECT_TRUE(recorded == stream::join({stream::small_job(), {0x00, 0xFF, 0x1B}}));
}

TEST(Options, EndAfterOneConnection) {
  const TempFolder folder;
  PrinterProcess printer({"--output", folder.path().string(), "--once"});
  ASSERT_TRUE(print(printer.Port(), stream::status_request()));
  EXPECT_EQ(printer.Wait(), 0);
}

TEST(Options, EndAfterTheConnectionsAskedFor) {
  const TempFolder folder;
  PrinterProcess printer({"--output", folder.path().string(), "--jobs", "2"});
  ASSERT_TRUE(print(printer.Port(), stream::status_request()));
  ASSERT_TRUE(print(printer.Port(), stream::status_request()));
  EXPECT_EQ(printer.Wait(), 0);
}

TEST(Options, NumberNothingBehindANumberThatIsTooHigh) {
  const TempFolder folder;
  std::ofstream(folder.path() / "sheet-1000000000.png") << "an earlier print";
  PrinterProcess printer({"--output", folder.path().string()});
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.Stop(), 0);
  EXPECT_THAT(folder.Names(), ElementsAre("sheet-0001.png", "sheet-1000000000.png", "sheets.txt"));
}

TEST(Options, GoOnNumberingBehindTheSheetsThatAreThere) {
  const TempFolder folder;
  std::ofstream(folder.path() / "sheet-0007.png") << "an earlier print";
  std::ofstream(folder.path() / "incomplete-0009.png") << "an earlier try";
  std::ofstream(folder.path() / "sheet-12x.png") << "something else";
  PrinterProcess printer({"--output", folder.path().string()});
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.Stop(), 0);
  EXPECT_THAT(folder.Names(), ElementsAre("incomplete-0009.png", "sheet-0007.png", "sheet-0010.png",
                                          "sheet-12x.png", "sheets.txt"));
}

}  // namespace
