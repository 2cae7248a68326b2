// SPDX-License-Identifier: Apache-2.0
//
// Scripts of faults, and the signals by which a person takes a hand.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <fstream>

#include "tests/unit/simulator/print_client.h"
#include "tests/unit/simulator/printer_process.h"
#include "tests/unit/stream_bytes.h"
#include "tests/unit/temp_file.h"

namespace {

using stream::Bytes;

class Scripts : public testing::Test {
 protected:
  void Write(const std::string& text) const { std::ofstream(script_) << text; }

  // The low byte of the number that a status request is answered with.
  static int Status(PrinterProcess& printer) {
    const PrintClient client(printer.Port());
    client.Send(stream::status_request());
    const Bytes answer = client.Read(15);
    return answer.size() == 15 ? answer[5] : -1;
  }

  TempFolder folder_;
  std::string script_ = (folder_.path() / "script").string();
  std::vector<std::string> options_{"--output", folder_.path().string(), "--script", script_};
};

TEST_F(Scripts, SayWhatGoesWrong) {
  Write("# two lines\nstatus 7 once\nstatus 8 once\n");
  PrinterProcess printer(options_);
  EXPECT_EQ(Status(printer), 7);
  EXPECT_EQ(Status(printer), 8);
  EXPECT_EQ(Status(printer), 0);
}

TEST_F(Scripts, ThatAreWrongAreNamedWithTheirPlaceBeforeThePrinterListens) {
  Write("busy 1\n\nsheet 2: cover open\n");
  const FinishedRun run = run_to_its_end({"--port", "0", "--script", script_});
  EXPECT_EQ(run.errors, "tqr7-printer-sim: " + script_ +
                            ":3:16: came \"open\", expected a number from 1 to 65535\n");
  EXPECT_EQ(run.status, 2);
}

TEST_F(Scripts, ThatAreMissingAreNamed) {
  const FinishedRun run = run_to_its_end({"--port", "0", "--script", script_});
  EXPECT_EQ(run.errors, "tqr7-printer-sim: " + script_ + ": No such file or directory\n");
  EXPECT_EQ(run.status, 2);
}

TEST_F(Scripts, ThatAreFoldersAreNamed) {
  const FinishedRun run = run_to_its_end({"--port", "0", "--script", "/dev"});
  EXPECT_EQ(run.errors, "tqr7-printer-sim: /dev: Is a directory\n");
  EXPECT_EQ(run.status, 2);
}

TEST_F(Scripts, WithoutAnEndAreRefused) {
  const FinishedRun run = run_to_its_end({"--port", "0", "--script", "/dev/zero"});
  EXPECT_EQ(run.errors, "tqr7-printer-sim: /dev/zero: larger than 1 MiB, which no script is\n");
  EXPECT_EQ(run.status, 2);
}

TEST_F(Scripts, BeginAnewOnSighup) {
  Write("status 7 once");
  PrinterProcess printer(options_);
  EXPECT_EQ(Status(printer), 7);
  EXPECT_EQ(Status(printer), 0);
  Write("status 9 once");
  printer.Signal(SIGHUP);
  EXPECT_EQ(printer.WaitForLine("script"), "the script " + script_ + " begins anew");
  EXPECT_EQ(Status(printer), 9);
}

TEST_F(Scripts, StayOnSighupWhenTheNewOneIsWrong) {
  Write("status 7");
  PrinterProcess printer(options_);
  ASSERT_EQ(Status(printer), 7);
  Write("status seven");
  printer.Signal(SIGHUP);
  EXPECT_EQ(printer.WaitForLine("script"),
            "the old script stays: " + script_ +
                ":1:8: came \"seven\", expected a number from 0 to 65535, \"late\", \"pieces\", "
                "\"short\", \"stray\" or \"silent\"");
  EXPECT_EQ(Status(printer), 7);
  EXPECT_EQ(printer.Stop(), 0);
}

TEST_F(Scripts, ThatWereNotGivenAreNotReadAgain) {
  PrinterProcess printer({"--output", folder_.path().string()});
  ASSERT_NE(printer.Port(), 0);
  printer.Signal(SIGHUP);
  EXPECT_EQ(printer.WaitForLine("script"), "there is no script to read again");
}

TEST_F(Scripts, EndWhatStandsOnSigusr1) {
  Write("status 7\npaper 0 then 8\nsheet 1: cover 9\n");
  PrinterProcess printer(options_);
  ASSERT_EQ(Status(printer), 7);
  printer.Signal(SIGUSR1);
  EXPECT_EQ(printer.WaitForLine("person"), "a person has seen to the printer");
  EXPECT_EQ(printer.WaitForLine("status"),
            "fault \"status 0x0007\" ended: a person has seen to it");
  EXPECT_EQ(printer.WaitForLine("paper"),
            "fault \"paper 0 then 0x0008\" ended: a person has seen to it");
  EXPECT_EQ(Status(printer), 0);
}

TEST_F(Scripts, MayBeSeenToWhileAClientWaits) {
  Write("status 7");
  PrinterProcess printer(options_);
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::status_request()));
  ASSERT_EQ(client.Read(15)[5], 7);
  printer.Signal(SIGUSR1);
  ASSERT_NE(printer.WaitForLine("ended"), "");
  ASSERT_TRUE(client.Send(stream::status_request()));
  EXPECT_EQ(client.Read(15)[5], 0);
}

}  // namespace
