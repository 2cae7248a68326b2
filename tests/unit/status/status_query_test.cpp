// SPDX-License-Identifier: Apache-2.0
//
// The status exchange: the request's bytes, the reply in pieces, and every way it can fail.
#include "status/status_query.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "tests/unit/bytes.h"
#include "tests/unit/capture.h"
#include "tests/unit/scripted_connection.h"

using testing::ElementsAre;

namespace {

constexpr const char* kRequestDump =
    "DEBUG: [CMD] size=8\n"
    "DEBUG: [CMD] 0000: 1b 47 44 30 00 00 01 16\n";
constexpr const char* kDrained = "DEBUG: CUPS_SC_CMD_DRAIN_OUTPUT=CUPS_SC_STATUS_OK(1)\n";

struct Outcome {
  PrinterState state;
  std::string out;
  std::string err;
};

Outcome Ask() {
  Capture out(stdout);
  Capture err(stderr);
  const PrinterState state = get_printer_state();
  const std::string arrived = out.Arrived();
  const std::string messages = err.Text();
  return {state, arrived, messages};
}

/// The reply of 15 bytes with these two at offsets 4 and 5.
std::string Reply(unsigned char group, unsigned char detail) {
  return Bytes({0xA0, 0xA1, 0xA2, 0xA3, group, detail, 0xA6, 0xA7, 0xA8, 0xA9, 0xAA, 0xAB, 0xAC,
                0xAD, 0xAE});
}

class StatusQuery : public testing::Test {
 protected:
  void SetUp() override { ResetConnection(); }
};

}  // namespace

TEST_F(StatusQuery, TheRequestIsEightBytesAndLeavesAtOnce) {
  Connection().Answer(Reply(0, 0));
  EXPECT_EQ(Ask().out, Bytes({0x1B, 0x47, 0x44, 0x30, 0x00, 0x00, 0x01, 0x16}));
}

TEST_F(StatusQuery, TheRequestIsDrainedBeforeTheReplyIsRead) {
  Connection().Answer(Reply(0, 0));
  Ask();
  EXPECT_THAT(Connection().journal, ElementsAre("drain 512 5.0, 8 sent", "read 512 1.0, 8 sent"));
}

TEST_F(StatusQuery, LogsTheRequestTheDrainAndTheReply) {
  Connection().Answer(Reply(0x21, 0x10));
  EXPECT_EQ(Ask().err,
            "DEBUG: [CMD] size=8\n"
            "DEBUG: [CMD] 0000: 1b 47 44 30 00 00 01 16\n"
            "DEBUG: CUPS_SC_CMD_DRAIN_OUTPUT=CUPS_SC_STATUS_OK(1)\n"
            "DEBUG: [STS] size=15\n"
            "DEBUG: [STS] 0000: a0 a1 a2 a3 21 10 a6 a7 a8 a9 aa ab ac ad ae\n");
}

TEST_F(StatusQuery, ErrorNumberZeroIsGood) {
  Connection().Answer(Reply(0, 0));
  const PrinterState state = Ask().state;
  EXPECT_EQ(state.type, PrinterState::Type::Available);
  EXPECT_EQ(state.error_number, 0);
}

TEST_F(StatusQuery, BytesFourAndFiveAreTheErrorNumberHighByteFirst) {
  Connection().Answer(Reply(0x21, 0x10));
  const PrinterState state = Ask().state;
  EXPECT_EQ(state.type, PrinterState::Type::Available);
  EXPECT_EQ(state.error_number, 0x2110);
}

TEST_F(StatusQuery, BytesAbove7FCarryNoSign) {
  Connection().Answer(Reply(0x90, 0xFF));
  EXPECT_EQ(Ask().state.error_number, 0x90FF);
  Connection().Answer(Reply(0x00, 0x80));
  EXPECT_EQ(Ask().state.error_number, 0x0080);
  Connection().Answer(Reply(0xFF, 0xFF));
  EXPECT_EQ(Ask().state.error_number, 0xFFFF);
}

TEST_F(StatusQuery, AReplyInTwoPiecesIsGathered) {
  Connection().Answer(Reply(0x21, 0x10).substr(0, 10));
  Connection().Answer(Reply(0x21, 0x10).substr(10));
  const Outcome outcome = Ask();
  EXPECT_EQ(outcome.state.error_number, 0x2110);
  EXPECT_NE(outcome.err.find("DEBUG: [STS] 0000: a0 a1 a2 a3 21 10 a6 a7 a8 a9 aa ab ac ad ae\n"),
            std::string::npos);
  EXPECT_THAT(Connection().journal,
              ElementsAre("drain 512 5.0, 8 sent", "read 512 1.0, 8 sent", "read 502 1.0, 8 sent"));
}

TEST_F(StatusQuery, AReplyInSingleBytesIsGathered) {
  for (const char byte : Reply(0x26, 0x65)) {
    Connection().Answer(std::string(1, byte));
  }
  EXPECT_EQ(Ask().state.error_number, 0x2665);
  EXPECT_EQ(Connection().journal.size(), 16U);
  EXPECT_EQ(Connection().journal.back(), "read 498 1.0, 8 sent");
}

TEST_F(StatusQuery, AFirstReadOf40BytesEndsTheGathering) {
  Connection().Answer(Reply(0, 0x32) + std::string(25, '\x11'));
  Connection().Answer("next");
  const Outcome outcome = Ask();
  EXPECT_EQ(outcome.state.error_number, 0x0032);
  EXPECT_EQ(outcome.err, std::string(kRequestDump) + kDrained +
                             "DEBUG: [STS] size=40\n"
                             "DEBUG: [STS] 0000: a0 a1 a2 a3 00 32 a6 a7 a8 a9 aa ab ac ad ae 11\n"
                             "DEBUG: [STS] 0010: 11 11 11 11 11 11 11 11 11 11 11 11 11 11 11 11\n"
                             "DEBUG: [STS] 0020: 11 11 11 11 11 11 11 11\n");
  EXPECT_EQ(Connection().pieces.size(), 1U);
}

TEST_F(StatusQuery, AReplyOf512BytesIsTakenWhole) {
  Connection().Answer(Reply(0, 0x33).substr(0, 14));
  Connection().Answer(std::string(2000, '\x22'));
  const Outcome outcome = Ask();
  EXPECT_EQ(outcome.state.error_number, 0x0033);
  EXPECT_NE(outcome.err.find("DEBUG: [STS] size=512\n"), std::string::npos);
  EXPECT_EQ(outcome.err.substr(outcome.err.size() - 67),
            "DEBUG: [STS] 01f0: 22 22 22 22 22 22 22 22 22 22 22 22 22 22 22 22\n");
}

TEST_F(StatusQuery, FourteenBytesAndThenSilenceIsUnavailable) {
  Connection().Answer(Reply(0, 0).substr(0, 14));
  Connection().AnswerNothing(-1);
  const Outcome outcome = Ask();
  EXPECT_EQ(outcome.state.type, PrinterState::Type::Unavailable);
  EXPECT_EQ(outcome.err,
            std::string(kRequestDump) + kDrained + "DEBUG: cupsBackChannelRead() failed. ret=-1\n");
}

TEST_F(StatusQuery, AReadOfNoBytesIsAFailureAtOnce) {
  Connection().AnswerNothing(0);
  Connection().Answer(Reply(0, 0));
  const Outcome outcome = Ask();
  EXPECT_EQ(outcome.state.type, PrinterState::Type::Unavailable);
  EXPECT_EQ(outcome.err,
            std::string(kRequestDump) + kDrained + "DEBUG: cupsBackChannelRead() failed. ret=0\n");
  EXPECT_THAT(Connection().journal, ElementsAre("drain 512 5.0, 8 sent", "read 512 1.0, 8 sent"));
}

TEST_F(StatusQuery, WithoutABackChannelThePrinterIsUnavailable) {
  const Outcome outcome = Ask();
  EXPECT_EQ(outcome.state.type, PrinterState::Type::Unavailable);
  EXPECT_EQ(outcome.err,
            std::string(kRequestDump) + kDrained + "DEBUG: cupsBackChannelRead() failed. ret=-1\n");
}

TEST_F(StatusQuery, ABackendThatCannotDrainIsNoFailure) {
  Connection().drain_status = CUPS_SC_STATUS_NOT_IMPLEMENTED;
  Connection().Answer(Reply(0x21, 0x10));
  const Outcome outcome = Ask();
  EXPECT_EQ(outcome.state.error_number, 0x2110);
  EXPECT_NE(outcome.err.find("DEBUG: CUPS_SC_CMD_DRAIN_OUTPUT=CUPS_SC_STATUS_NOT_IMPLEMENTED(7)\n"),
            std::string::npos);
}

TEST_F(StatusQuery, ADrainThatTimesOutIsNoFailure) {
  Connection().drain_status = CUPS_SC_STATUS_TIMEOUT;
  Connection().Answer(Reply(0, 0));
  const Outcome outcome = Ask();
  EXPECT_EQ(outcome.state.type, PrinterState::Type::Available);
  EXPECT_NE(outcome.err.find("DEBUG: CUPS_SC_CMD_DRAIN_OUTPUT=CUPS_SC_STATUS_TIMEOUT(3)\n"),
            std::string::npos);
}

TEST_F(StatusQuery, ADrainStatusWithoutANameIsUnknown) {
  Connection().drain_status = 9;
  Connection().Answer(Reply(0, 0));
  EXPECT_NE(Ask().err.find("DEBUG: CUPS_SC_CMD_DRAIN_OUTPUT=UNKNOWN(9)\n"), std::string::npos);
}

TEST_F(StatusQuery, WhatTheDrainLeavesInTheBufferIsNoReply) {
  // The scripted backend fills the whole lent buffer with 0x5A.
  Connection().Answer(Reply(0, 0).substr(0, 4));
  Connection().AnswerNothing(-1);
  EXPECT_EQ(Ask().state.type, PrinterState::Type::Unavailable);
}

TEST_F(StatusQuery, ARequestThatCannotBeWrittenIsUnavailable) {
  Capture err(stderr);
  PrinterState state = PrinterState::Good();
  {
    const FullOutput full(false);
    state = get_printer_state();
  }
  EXPECT_EQ(err.Text(), std::string(kRequestDump) + "DEBUG: fwrite() failed. ret=0\n");
  EXPECT_EQ(state.type, PrinterState::Type::Unavailable);
  EXPECT_TRUE(Connection().journal.empty());
}

TEST_F(StatusQuery, ARequestThatCannotBeFlushedIsUnavailable) {
  Capture err(stderr);
  PrinterState state = PrinterState::Good();
  {
    const FullOutput full(true);
    state = get_printer_state();
  }
  EXPECT_EQ(err.Text(), std::string(kRequestDump) + "DEBUG: fflush() failed.\n");
  EXPECT_EQ(state.type, PrinterState::Type::Unavailable);
  EXPECT_TRUE(Connection().journal.empty());
}

TEST_F(StatusQuery, EachQueryStartsAfresh) {
  Connection().Answer(Reply(0x21, 0x10).substr(0, 14));
  Connection().AnswerNothing(-1);
  EXPECT_EQ(Ask().state.type, PrinterState::Type::Unavailable);
  Connection().Answer(Reply(0, 0));
  EXPECT_EQ(Ask().state.error_number, 0);
  EXPECT_EQ(Connection().journal.back(), "read 512 1.0, 8 sent");
}

TEST(StatusReply, Has15BytesAtLeastAnd512AtMost) {
  EXPECT_EQ(STATUS_REPLY_MIN, 15);
  EXPECT_EQ(STATUS_BUFFER_SIZE, 512);
}
