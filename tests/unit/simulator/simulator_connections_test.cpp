// SPDX-License-Identifier: Apache-2.0
//
// Clients that come one after another, break off, or never were clients.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>

#include "tests/unit/png_file.h"
#include "tests/unit/simulator/print_client.h"
#include "tests/unit/simulator/printer_process.h"
#include "tests/unit/stream_bytes.h"
#include "tests/unit/temp_file.h"

namespace {

using stream::Bytes;
using stream::Finish;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const Bytes kFileWithoutPages = stream::join({stream::status_request(), stream::print_out()});
constexpr std::size_t kTenRowsAndABit = 1552 + 10 * 11112 + 100;

class Connections : public testing::Test {
 protected:
  std::string InFolder(const std::string& name) const { return (folder_.path() / name).string(); }

  // How often the printer said it.
  int CountOf(const std::string& words) const {
    int count = 0;
    for (std::size_t at = 0; (at = printer_.Output().find(words, at)) != std::string::npos; ++at) {
      ++count;
    }
    return count;
  }

  TempFolder folder_;
  // Pixels are held against what was sent.
  PrinterProcess printer_{{"--output", folder_.path().string(), "--device-values"}};
};

Bytes cut_job(std::size_t length) {
  Bytes bytes = stream::small_job();
  bytes.resize(length);
  return bytes;
}

TEST_F(Connections, FollowOneAnother) {
  ASSERT_TRUE(print(printer_.Port(), stream::small_job()));
  ASSERT_TRUE(print(printer_.Port(), stream::small_job()));
  EXPECT_EQ(printer_.Stop(), 0);
  EXPECT_THAT(folder_.Names(), ElementsAre("sheet-0001.png", "sheet-0002.png", "sheets.txt"));
  EXPECT_THAT(printer_.Output(), HasSubstr("stopped after 2 connections, 2 sheets, 0 errors\n"));
}

TEST_F(Connections, WaitForTheOneBeforeThem) {
  const PrintClient first(printer_.Port());
  ASSERT_TRUE(first.Send(stream::status_request()));
  ASSERT_EQ(first.Read(15).size(), 15U);
  const PrintClient second(printer_.Port());
  ASSERT_TRUE(second.Send(stream::status_request()));
  EXPECT_FALSE(second.AnswerComes());
  ASSERT_TRUE(first.Finish());
  EXPECT_EQ(second.Read(15).size(), 15U);
}

TEST_F(Connections, CarryTwoFilesOneBehindTheOther) {
  ASSERT_TRUE(print(printer_.Port(), stream::join({stream::small_job(), stream::small_job()})));
  EXPECT_EQ(printer_.Stop(), 0);
  EXPECT_THAT(folder_.Names(), ElementsAre("sheet-0001.png", "sheet-0002.png", "sheets.txt"));
}

TEST_F(Connections, WithoutAByteAreNoError) {
  ASSERT_TRUE(print(printer_.Port(), {}));
  EXPECT_EQ(printer_.WaitForLine("closed"), "connection 1: closed, 0 bytes, 0 sheets, 0 errors");
  EXPECT_EQ(printer_.Stop(), 0);
}

TEST_F(Connections, CutWithinTheImageLeaveAnIncompleteSheet) {
  ASSERT_TRUE(print(printer_.Port(), cut_job(kTenRowsAndABit)));
  EXPECT_EQ(printer_.WaitForLine("error"),
            "connection 1: error: offset 112772: image data, length: came the end after 111220 of "
            "7011672 bytes, allowed 7011672 bytes, 6900452 more");
  EXPECT_EQ(printer_.WaitForLine("cut"),
            "connection 1: sheet 1 was cut and is not printed; what came of it is in " +
                InFolder("incomplete-0001.png"));
  ASSERT_TRUE(print(printer_.Port(), stream::small_job()));
  EXPECT_EQ(printer_.Stop(), 1);
  EXPECT_THAT(folder_.Names(), ElementsAre("incomplete-0001.png", "sheet-0002.png", "sheets.txt"));
  const PngFile png = read_png(InFolder("incomplete-0001.png"));
  EXPECT_EQ(png.height, 631U);
  EXPECT_THAT(png.At(1851, 9), ElementsAre(128, 128, 128));
  EXPECT_THAT(png.At(0, 10), ElementsAre(255, 255, 255));
}

TEST_F(Connections, BrokenWithinTheImageLeaveThePrinterWorking) {
  {
    PrintClient client(printer_.Port());
    ASSERT_TRUE(client.Send(cut_job(kTenRowsAndABit)));
    ASSERT_EQ(printer_.WaitForLine("image header").empty(), false);
    client.Break();
  }
  EXPECT_THAT(printer_.WaitForLine("broken"), HasSubstr("connection 1: broken: "));
  ASSERT_TRUE(print(printer_.Port(), stream::small_job()));
  EXPECT_EQ(printer_.Stop(), 1);
  EXPECT_THAT(folder_.Names(), ElementsAre("incomplete-0001.png", "sheet-0002.png", "sheets.txt"));
}

class BrokenAnywhere : public Connections, public testing::WithParamInterface<std::size_t> {};

TEST_P(BrokenAnywhere, LeavesThePrinterWorking) {
  {
    PrintClient client(printer_.Port());
    ASSERT_TRUE(client.Send(cut_job(GetParam())));
    client.Break();
  }
  ASSERT_NE(printer_.WaitForLine("closed"), "");
  ASSERT_TRUE(print(printer_.Port(), stream::status_request()));
  EXPECT_EQ(printer_.WaitForLine("connection 2: closed"),
            "connection 2: closed, 8 bytes, 0 sheets, 0 errors");
}

INSTANTIATE_TEST_SUITE_P(Offsets, BrokenAnywhere,
                         testing::Values(0, 1, 4, 7, 8, 16, 20, 300, 528, 800, 1040, 1043, 1551,
                                         1552, 1553, 200000));

TEST_F(Connections, OfAClientThatReadsNoAnswersAreServed) {
  const PrintClient client(printer_.Port());
  for (int i = 0; i < 100; ++i) {
    ASSERT_TRUE(client.Send(stream::status_request()));
  }
  EXPECT_TRUE(client.Finish());
}

TEST_F(Connections, OfAClientThatTakesNoAnswersDoNotDelayTheStop) {
  const PrintClient client(printer_.Port());
  // Nobody reads the lines: a full pipe would hold the printer as well.
  printer_.CloseOutput();
  const Bytes questions = stream::repeated(kFileWithoutPages, 1'000'000);
  ASSERT_LT(client.SendForAWhile(questions, 1000), questions.size());
  EXPECT_EQ(printer_.Stop(), 0);
}

TEST_F(Connections, ThatSpeakAnotherLanguageAreSurvived) {
  const std::string words = "GET / HTTP/1.1\r\nHost: printer\r\n\r\n";
  ASSERT_TRUE(print(printer_.Port(), Bytes(words.begin(), words.end())));
  EXPECT_EQ(printer_.WaitForLine("error"),
            "connection 1: error: offset 0: stream, command code: came 47, allowed 1B 47 44 30, 1B "
            "47 44 33, 1B 53 50 30, 1B 5A 54 01, 1B 42 51 31");
  EXPECT_EQ(printer_.WaitForLine("skipped"), "connection 1: skipped 33 bytes from offset 0 on");
  ASSERT_TRUE(print(printer_.Port(), stream::small_job()));
  EXPECT_EQ(printer_.Stop(), 1);
  EXPECT_THAT(folder_.Names(), ElementsAre("sheet-0001.png", "sheets.txt"));
}

TEST_F(Connections, FullOfErrorsAreNotToldWithoutEnd) {
  ASSERT_TRUE(print(printer_.Port(), stream::repeated(stream::print_out(), 1000)));
  EXPECT_EQ(printer_.WaitForLine("further"),
            "connection 1: further errors of this connection are counted only");
  EXPECT_EQ(printer_.WaitForLine("closed"),
            "connection 1: closed, 6000 bytes, 0 sheets, 1000 errors");
  EXPECT_EQ(printer_.Stop(), 1);
  EXPECT_EQ(CountOf(" error: "), 100);
  EXPECT_EQ(CountOf(" further errors "), 1);
}

TEST_F(Connections, FullOfGarbageAreNotToldWithoutEnd) {
  const Bytes bytes = stream::repeated(
      stream::join({{'X'}, stream::status_request(), {'X'}, stream::print_out()}), 100);
  ASSERT_TRUE(print(printer_.Port(), bytes));
  EXPECT_EQ(printer_.Stop(), 1);
  EXPECT_EQ(CountOf(" error: "), 50);
  EXPECT_EQ(CountOf(" skipped 1 byte "), 50);
}

TEST(BrokenConnections, LoseTheirAnswersWithOneLine) {
  const TempFolder folder;
  PrinterProcess printer({"--output", folder.path().string(), "--fault", "status late 0.2 s once"});
  PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::join(
      {stream::status_request(), stream::status_request(), stream::status_request()})));
  ASSERT_NE(printer.WaitForLine("shows"), "");
  client.Break();
  EXPECT_THAT(printer.WaitForLine("answers"),
              HasSubstr("connection 1: answers are lost from here on: "));
  EXPECT_THAT(printer.WaitForLine("status request"), HasSubstr("status request"));
  EXPECT_THAT(printer.WaitForLine("connection 1: "), HasSubstr("status request"));
  EXPECT_THAT(printer.WaitForLine("connection 1: "), HasSubstr("status request"));
}

TEST_F(Connections, AreGivenUpWhenThePrinterIsStopped) {
  const PrintClient client(printer_.Port());
  ASSERT_TRUE(client.Send(cut_job(kTenRowsAndABit)));
  ASSERT_NE(printer_.WaitForLine("image header"), "");
  EXPECT_EQ(printer_.Stop(), 0);
  EXPECT_THAT(printer_.Output(), HasSubstr("connection 1: stopped within image data\n"));
  EXPECT_THAT(folder_.Names(), ElementsAre("incomplete-0001.png"));
}

TEST_F(Connections, MayBeNoneWhenThePrinterIsStopped) {
  ASSERT_NE(printer_.Port(), 0);
  printer_.Signal(SIGINT);
  EXPECT_EQ(printer_.Wait(), 0);
  EXPECT_THAT(folder_.Names(), IsEmpty());
  EXPECT_THAT(printer_.Output(), HasSubstr("stopped after 0 connections, 0 sheets, 0 errors\n"));
}

}  // namespace
