// SPDX-License-Identifier: Apache-2.0
//
// What comes back from the printer's port, and when.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "tests/unit/simulator/print_client.h"
#include "tests/unit/simulator/printer_process.h"
#include "tests/unit/stream_bytes.h"
#include "tests/unit/temp_file.h"

namespace {

using stream::Bytes;
using stream::Finish;
using testing::ElementsAre;
using testing::IsEmpty;

class Replies : public testing::Test {
 protected:
  std::vector<std::string> With(std::vector<std::string> options) const {
    options.insert(options.end(), {"--output", folder_.path().string()});
    return options;
  }

  TempFolder folder_;
};

Bytes query_10x15() {
  return stream::readiness_query(stream::paper_10x15(), Finish::Gloss);
}

// A file's questions up to its first sheet.
Bytes questions() {
  return stream::join({stream::status_request(), stream::status_request(), query_10x15()});
}

TEST_F(Replies, ToAStatusRequestSayThatAllIsWell) {
  PrinterProcess printer(With({}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::status_request()));
  EXPECT_THAT(client.Read(15), ElementsAre(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0));
  EXPECT_FALSE(client.AnswerComes());
}

TEST_F(Replies, CarryTheStatusNumberGivenInHexadecimal) {
  PrinterProcess printer(With({"--status", "0x2665"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::status_request()));
  EXPECT_THAT(client.Read(15), ElementsAre(0, 0, 0, 0, 0x26, 0x65, 0, 0, 0, 0, 0, 0, 0, 0, 0));
}

TEST_F(Replies, CarryTheStatusNumberGivenInDecimal) {
  PrinterProcess printer(With({"--status", "4660"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::status_request()));
  EXPECT_THAT(client.Read(15), ElementsAre(0, 0, 0, 0, 0x12, 0x34, 0, 0, 0, 0, 0, 0, 0, 0, 0));
}

TEST_F(Replies, WaitForTheWholeStatusRequest) {
  PrinterProcess printer(With({}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send({0x1B, 0x47, 0x44, 0x30, 0x00, 0x00, 0x01}));
  EXPECT_FALSE(client.AnswerComes());
  ASSERT_TRUE(client.Send({0x16}));
  EXPECT_EQ(client.Read(15).size(), 15U);
}

TEST_F(Replies, ToAReadinessQuerySayReady) {
  PrinterProcess printer(With({}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::status_request()));
  ASSERT_EQ(client.Read(15).size(), 15U);
  Bytes bytes = query_10x15();
  bytes.pop_back();
  ASSERT_TRUE(client.Send(bytes));
  EXPECT_FALSE(client.AnswerComes());
  ASSERT_TRUE(client.Send({0x00}));
  EXPECT_THAT(client.Read(6), ElementsAre(0, 0, 0, 0, 0, 0));
  EXPECT_FALSE(client.AnswerComes());
}

TEST_F(Replies, CarryTheEnableCode) {
  PrinterProcess printer(With({"--enable", "0x0201"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::join({stream::status_request(), query_10x15()})));
  ASSERT_EQ(client.Read(15).size(), 15U);
  EXPECT_THAT(client.Read(6), ElementsAre(0, 0, 0, 0, 2, 1));
}

TEST_F(Replies, AreBusyForTheFirstQueriesOfTheRun) {
  PrinterProcess printer(With({"--busy", "2", "--enable", "1"}));
  {
    const PrintClient client(printer.Port());
    ASSERT_TRUE(client.Send(stream::join({stream::status_request(), query_10x15()})));
    ASSERT_EQ(client.Read(15).size(), 15U);
    EXPECT_THAT(client.Read(6), ElementsAre(0, 0, 0, 0, 1, 0));
    ASSERT_TRUE(client.Finish());
  }
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::join({stream::status_request(), query_10x15(), query_10x15()})));
  ASSERT_EQ(client.Read(15).size(), 15U);
  EXPECT_THAT(client.Read(6), ElementsAre(0, 0, 0, 0, 1, 0));
  EXPECT_THAT(client.Read(6), ElementsAre(0, 0, 0, 0, 0, 1));
}

TEST_F(Replies, AreSaidOnStandardOutput) {
  PrinterProcess printer(With({"--status", "0x2110"}));
  ASSERT_TRUE(print(printer.Port(), stream::status_request()));
  EXPECT_EQ(printer.WaitForLine("status request"), "connection 1: status request, answered 0x2110");
  EXPECT_EQ(printer.WaitForLine("closed"), "connection 1: closed, 8 bytes, 0 sheets, 0 errors");
}

TEST_F(Replies, ThatForbidASheetAreHeldAgainstTheClientThatSendsIt) {
  PrinterProcess printer(With({"--enable", "0x0200"}));
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.WaitForLine("error"),
            "connection 1: error: offset 528: job header, answer to the readiness query: came a "
            "job header after 0x0200, allowed a job header after 0x0000");
  EXPECT_EQ(printer.WaitForLine("not printed"),
            "connection 1: the sheet is not printed: the printer did not allow it");
  EXPECT_EQ(printer.Stop(), 1);
  EXPECT_THAT(folder_.Names(), IsEmpty());
}

TEST_F(Replies, OfABusyPrinterLetTheClientAskAgainAfterTwoSeconds) {
  PrinterProcess printer(With({"--busy", "1"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(questions()));
  ASSERT_EQ(client.Read(36).size(), 36U);
  std::this_thread::sleep_for(std::chrono::seconds(2));
  ASSERT_TRUE(client.Send(query_10x15()));
  ASSERT_TRUE(client.Finish());
  EXPECT_EQ(printer.Stop(), 0);
}

TEST_F(Replies, OfABusyPrinterForbidToAskAgainAtOnce) {
  PrinterProcess printer(With({"--busy", "1"}));
  ASSERT_TRUE(print(printer.Port(), stream::join({questions(), query_10x15()})));
  EXPECT_THAT(printer.WaitForLine("error"),
              testing::StartsWith("connection 1: error: offset 528: readiness query, pace: came "));
  EXPECT_EQ(printer.Stop(), 1);
}

TEST_F(Replies, OfABusyPrinterLetAClientWithAClockOfItsOwnAskAgainAtOnce) {
  PrinterProcess printer(With({"--busy", "2", "--simulated-clock"}));
  ASSERT_TRUE(print(printer.Port(), stream::join({questions(), query_10x15(), query_10x15()})));
  EXPECT_EQ(printer.Stop(), 0);
}

// A client may have given a late answer up, and what it does then is no error.
TEST_F(Replies, ThatComeLateForbidNothing) {
  PrinterProcess printer(With({"--fault", "status late 0.9 s once"}));
  ASSERT_TRUE(print(printer.Port(), stream::join({stream::status_request(), questions()})));
  EXPECT_EQ(printer.Stop(), 0);
}

TEST_F(Replies, OfASlowReaderForbidNothing) {
  PrinterProcess printer(With({"--fault", "read 100000 bytes/s"}));
  ASSERT_TRUE(print(printer.Port(), stream::join({stream::status_request(), questions()})));
  EXPECT_EQ(printer.Stop(), 0);
}

TEST_F(Replies, ThatAreGoodForbidAThirdStatusRequest) {
  PrinterProcess printer(With({}));
  ASSERT_TRUE(print(printer.Port(), stream::join({stream::status_request(), questions()})));
  EXPECT_EQ(printer.WaitForLine("error"),
            "connection 1: error: offset 16: status request, answer to the status request: came a "
            "status request after 0x0000, allowed a query after 0x0000");
  EXPECT_EQ(printer.Stop(), 1);
}

TEST_F(Replies, OfAReadyPrinterForbidToAskAgain) {
  PrinterProcess printer(With({}));
  ASSERT_TRUE(print(printer.Port(), stream::join({questions(), query_10x15()})));
  EXPECT_EQ(printer.WaitForLine("error"),
            "connection 1: error: offset 528: readiness query, answer to the readiness query: came "
            "a repeated query after 0x0000, allowed a repeated query after 0x0100");
  EXPECT_EQ(printer.Stop(), 1);
}

TEST_F(Replies, OfASheetAreForgottenAtTheNextStatusRequest) {
  PrinterProcess printer(With({"--fault", "enable 0x0200 once"}));
  ASSERT_TRUE(print(printer.Port(), stream::join({questions(), stream::small_job()})));
  EXPECT_EQ(printer.Stop(), 0);
}

TEST_F(Replies, OfAnErrorForbidTheQuery) {
  PrinterProcess printer(With({"--fault", "sheet 1: status 0x2665"}));
  ASSERT_TRUE(print(printer.Port(), questions()));
  EXPECT_EQ(printer.WaitForLine("error"),
            "connection 1: error: offset 16: readiness query, answer to the status request: came a "
            "query after 0x2665, allowed a query after 0x0000");
}

}  // namespace
