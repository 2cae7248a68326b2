// SPDX-License-Identifier: Apache-2.0
//
// Waiting for a printer that is busy: how often it is asked, for how long, and how the wait ends.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/unit/bytes.h"
#include "tests/unit/protocol/query_log.h"
#include "tests/unit/protocol/readiness_fixture.h"
#include "tests/unit/scripted_connection.h"

using testing::ElementsAre;

namespace {

void AnswerCode(unsigned char high, unsigned char low) {
  Connection().Answer(Bytes({0, 0, 0, 0, high, low}));
}

void AnswerBusy(int times) {
  for (int i = 0; i < times; ++i) {
    AnswerCode(0x01, 0x00);
  }
}

/// What is logged of a busy answer, up to the next query.
std::string BusyPass() {
  return QueryAnswered("01 00") + "DEBUG: CMD_GET_ENABLE[01 + 00]\n";
}

/// The sleeps of the journal, each without what had been sent by then.
std::vector<std::string> Sleeps() {
  std::vector<std::string> sleeps;
  for (const std::string& call : Connection().journal) {
    if (call.rfind("sleep", 0) == 0) {
      sleeps.push_back(call.substr(0, call.find(',')));
    }
  }
  return sleeps;
}

using BusyWait = ReadinessFixture;

}  // namespace

TEST_F(BusyWait, TwiceBusyAndThenReadyWaitsFourSeconds) {
  AnswerBusy(2);
  AnswerCode(0x00, 0x00);
  const Outcome outcome = Examine();
  EXPECT_EQ(outcome.text, "");
  EXPECT_EQ(outcome.err, "DEBUG: ExaminePage() START\n" + BusyPass() + BusyPass() +
                             QueryAnswered("00 00") + "DEBUG: CMD_GET_ENABLE[00 + 00]\n");
  EXPECT_THAT(Connection().journal,
              ElementsAre("drain 512 5.0, 512 sent", "read 512 1.0, 512 sent",  //
                          "sleep 2 0.0, 512 sent",                              //
                          "drain 512 5.0, 1024 sent", "read 512 1.0, 1024 sent",
                          "sleep 2 0.0, 1024 sent",  //
                          "drain 512 5.0, 1536 sent", "read 512 1.0, 1536 sent"));
}

TEST_F(BusyWait, EveryRefusalEndsItAsItWouldAFirstAnswer) {
  struct Refusal {
    unsigned char high;
    unsigned char low;
    const char* dumped;
    const char* lines;
    const char* text;
  };
  static constexpr Refusal kRefusals[] = {
      {0x00, 0x01, "00 01",
       "DEBUG: CMD_GET_ENABLE[00 + 01]\nERROR: pagesize-inkribbon-unmuch 0x0001\n",
       "ERROR CMD_GET_ENABLE[00 + 01]"},
      {0x01, 0x01, "01 01",
       "DEBUG: CMD_GET_ENABLE[01 + 01]\nSTATE: +paused\n"
       "ERROR: pagesize-inkribbon-unmuch 0x0101\n",
       "ERROR CMD_GET_ENABLE[01 + 01]"},
      {0x02, 0x00, "02 00",
       "DEBUG: CMD_GET_ENABLE[02 + 00]\nSTATE: +paused\nERROR: driver-setting-unmuch 0x0200\n",
       "ERROR CMD_GET_ENABLE[02 + 00]"},
      {0x02, 0x01, "02 01",
       "DEBUG: CMD_GET_ENABLE[02 + 01]\nSTATE: +paused\n"
       "ERROR: pagesize-inkribbon-unmuch 0x0201\n",
       "ERROR CMD_GET_ENABLE[02 + 01]"},
      {0xFF, 0xFF, "ff ff",
       "DEBUG: CMD_GET_ENABLE[FF + FF]\nSTATE: +paused\nERROR: out-of-range 0xffff\n",
       "ERROR CMD_GET_ENABLE[FF + FF]"},
      {0x03, 0x02, "03 02", "DEBUG: PROTOCOL ERROR\nSTATE: +paused\nERROR: protocol-error 0x0302\n",
       "protocol-error"},
  };
  for (const Refusal& refusal : kRefusals) {
    AnswerBusy(1);
    AnswerCode(refusal.high, refusal.low);
    const Outcome outcome = Examine();
    EXPECT_EQ(outcome.text, refusal.text);
    EXPECT_EQ(outcome.err, "DEBUG: ExaminePage() START\n" + BusyPass() +
                               QueryAnswered(refusal.dumped) + refusal.lines);
  }
}

TEST_F(BusyWait, AFailedExchangeIsAProtocolErrorHere) {
  AnswerBusy(1);
  Connection().AnswerNothing(-1);
  const Outcome outcome = Examine();
  EXPECT_EQ(outcome.text, "protocol-error");
  EXPECT_EQ(outcome.err, "DEBUG: ExaminePage() START\n" + BusyPass() + kQuerySent +
                             "DEBUG: cupsBackChannelRead() failed. ret=-1\n"
                             "DEBUG: PROTOCOL ERROR\n"
                             "STATE: +paused\n"
                             "ERROR: protocol-error 0xffffffff\n");
}

TEST_F(BusyWait, EndsAtThe91stFurtherBusyAnswer) {
  AnswerBusy(1 + 91);
  AnswerCode(0x00, 0x00);  // too late
  const Outcome outcome = Examine();
  EXPECT_EQ(outcome.text, "Timeout Error");
  std::string expected = "DEBUG: ExaminePage() START\n";
  for (int pass = 0; pass < 91; ++pass) {
    expected += BusyPass();
  }
  expected += QueryAnswered("01 00") +
              "STATE: +paused\n"
              "ERROR: memory-timeout 0x0100\n";
  EXPECT_TRUE(outcome.err == expected);
  EXPECT_EQ(Sleeps(), std::vector<std::string>(91, "sleep 2 0.0"));
  EXPECT_EQ(Connection().pieces.size(), 1U);
}

TEST_F(BusyWait, AReadyPrinterAtTheLastQueryIsTaken) {
  AnswerBusy(1 + 90);
  AnswerCode(0x00, 0x00);
  const Outcome outcome = Examine();
  EXPECT_EQ(outcome.text, "");
  EXPECT_EQ(outcome.err.find("STATE:"), std::string::npos);
  EXPECT_EQ(Sleeps(), std::vector<std::string>(91, "sleep 2 0.0"));
}

TEST_F(BusyWait, EachCheckStartsAWaitOfItsOwn) {
  AnswerBusy(1 + 90);
  AnswerCode(0x00, 0x00);
  EXPECT_EQ(Examine().text, "");
  AnswerBusy(1 + 90);
  AnswerCode(0x00, 0x00);
  EXPECT_EQ(Examine().text, "");
}
