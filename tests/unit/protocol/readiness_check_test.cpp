// SPDX-License-Identifier: Apache-2.0
//
// One readiness exchange, and what each enable code means.
#include "protocol/readiness_check.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "tests/unit/bytes.h"
#include "tests/unit/capture.h"
#include "tests/unit/protocol/query_log.h"
#include "tests/unit/protocol/readiness_fixture.h"
#include "tests/unit/scripted_connection.h"
#include "tests/unit/settings.h"

using testing::ElementsAre;

namespace {

Outcome Exchange() {
  const tagPRINTSETTING settings = SettingsOf10x15();
  Outcome outcome;
  Capture out(stdout);
  Capture err(stderr);
  outcome.code = wr_esc_enable(stdout, &settings);
  outcome.out = out.Arrived();
  outcome.err = err.Text();
  return outcome;
}

using ReadinessCheck = ReadinessFixture;

using EnableExchange = ReadinessCheck;
using EnableCode = ReadinessCheck;

}  // namespace

TEST_F(EnableExchange, TheQueryIsTheJobHeaderUnderItsOwnCode) {
  Connection().Answer(Zeros(6));
  const std::string query = Exchange().out;
  ASSERT_EQ(query.size(), 512U);
  EXPECT_EQ(query.substr(0, 12),
            Bytes({0x1B, 0x47, 0x44, 0x33, 0x00, 0x33, 0x07, 0x3C, 0x04, 0xD0, 0x05, 0x00}));
  EXPECT_EQ(query.substr(12, 38), Zeros(38));
  EXPECT_EQ(query.substr(50, 9), Bytes({0x01, 0, 0, 0, 0, 0, 0, 0, 0x02}));
  EXPECT_EQ(query.substr(59, 21), Zeros(21));
  EXPECT_EQ(query.substr(80, 3), Bytes({0x01, 0x4D, 0x5E}));
  EXPECT_EQ(query.substr(83), Zeros(429));
}

TEST_F(EnableExchange, TheQueryIsDrainedBeforeTheReplyIsRead) {
  Connection().Answer(Zeros(6));
  Exchange();
  EXPECT_THAT(Connection().journal,
              ElementsAre("drain 512 5.0, 512 sent", "read 512 1.0, 512 sent"));
}

TEST_F(EnableExchange, LogsTheQueryTheDrainAndTheReply) {
  Connection().Answer(Bytes({0xA0, 0xB1, 0xC2, 0xD3, 0x02, 0x01}));
  EXPECT_EQ(Exchange().err, kQuerySent +
                                "DEBUG: [STS]CMD_GET_ENABLE size=6\n"
                                "DEBUG: [STS]CMD_GET_ENABLE 0000: a0 b1 c2 d3 02 01\n"
                                "DEBUG: buf wr_esc_enable() END\n");
}

TEST_F(EnableExchange, BytesFourAndFiveAreTheCodeHighByteFirst) {
  Connection().Answer(Bytes({0xFF, 0xFF, 0xFF, 0xFF, 0x12, 0x34}));
  EXPECT_EQ(Exchange().code, 0x1234);
}

TEST_F(EnableExchange, BytesAbove7FCarryNoSign) {
  Connection().Answer(Bytes({0, 0, 0, 0, 0xFF, 0xFF}));
  EXPECT_EQ(Exchange().code, 65535);
  Connection().Answer(Bytes({0, 0, 0, 0, 0x00, 0x80}));
  EXPECT_EQ(Exchange().code, 128);
}

TEST_F(EnableExchange, TheCodeMayComeInASecondPiece) {
  Connection().Answer(Bytes({0, 0, 0, 0}));
  Connection().Answer(Bytes({0x02, 0x01}));
  EXPECT_EQ(Exchange().code, 0x0201);
  EXPECT_THAT(Connection().journal, ElementsAre("drain 512 5.0, 512 sent", "read 512 1.0, 512 sent",
                                                "read 508 1.0, 512 sent"));
}

TEST_F(EnableExchange, ALongFirstPieceIsKeptWhole) {
  Connection().Answer(Bytes({1, 2, 3, 4, 0x02, 0x00, 7, 8, 9, 10}));
  const Outcome outcome = Exchange();
  EXPECT_EQ(outcome.code, 0x0200);
  EXPECT_EQ(outcome.err, kQuerySent +
                             "DEBUG: [STS]CMD_GET_ENABLE size=10\n"
                             "DEBUG: [STS]CMD_GET_ENABLE 0000: 01 02 03 04 02 00 07 08 09 0a\n"
                             "DEBUG: buf wr_esc_enable() END\n");
}

TEST_F(EnableExchange, AReplyOf512BytesIsTakenWhole) {
  Connection().Answer(Bytes({1, 2, 3, 4, 5}));
  Connection().Answer(std::string(2000, '\x22'));
  const Outcome outcome = Exchange();
  EXPECT_EQ(outcome.code, 0x0522);
  EXPECT_NE(outcome.err.find("DEBUG: [STS]CMD_GET_ENABLE size=512\n"), std::string::npos);
  EXPECT_EQ(Connection().journal.back(), "read 507 1.0, 512 sent");
}

TEST_F(EnableExchange, SilenceIsReadThrough) {
  Connection().AnswerNothing(0);
  Connection().Answer(Bytes({0, 0, 0}));
  Connection().AnswerNothing(0);
  Connection().AnswerNothing(0);
  Connection().Answer(Bytes({0, 0x02, 0x01}));
  EXPECT_EQ(Exchange().code, 0x0201);
  EXPECT_EQ(Connection().journal.size(), 6U);
  EXPECT_EQ(Connection().journal.back(), "read 509 1.0, 512 sent");
}

TEST_F(EnableExchange, AFailedReadFails) {
  Connection().Answer(Zeros(5));
  Connection().AnswerNothing(-1);
  const Outcome outcome = Exchange();
  EXPECT_EQ(outcome.code, -1);
  EXPECT_EQ(outcome.err, kQuerySent + "DEBUG: cupsBackChannelRead() failed. ret=-1\n");
}

TEST_F(EnableExchange, AnyNegativeCountIsAFailedRead) {
  Connection().AnswerNothing(-5);
  const Outcome outcome = Exchange();
  EXPECT_EQ(outcome.code, -1);
  EXPECT_EQ(outcome.err, kQuerySent + "DEBUG: cupsBackChannelRead() failed. ret=-5\n");
}

TEST_F(EnableExchange, ABackendThatCannotDrainIsNoFailure) {
  Connection().drain_status = CUPS_SC_STATUS_NOT_IMPLEMENTED;
  Connection().Answer(Bytes({0, 0, 0, 0, 0x02, 0x01}));
  const Outcome outcome = Exchange();
  EXPECT_EQ(outcome.code, 0x0201);
  EXPECT_EQ(outcome.err, kQueryDump +
                             "DEBUG: CUPS_SC_CMD_DRAIN_OUTPUT=CUPS_SC_STATUS_NOT_IMPLEMENTED(7)\n"
                             "DEBUG: [STS]CMD_GET_ENABLE size=6\n"
                             "DEBUG: [STS]CMD_GET_ENABLE 0000: 00 00 00 00 02 01\n"
                             "DEBUG: buf wr_esc_enable() END\n");
}

TEST_F(EnableExchange, GoesToStandardOutputWhateverStreamItIsGiven) {
  Connection().Answer(Zeros(6));
  const tagPRINTSETTING settings = SettingsOf10x15();
  Capture out(stdout);
  Capture err(stderr);
  const int code = wr_esc_enable(nullptr, &settings);
  err.Text();
  EXPECT_EQ(out.Text().size(), 512U);
  EXPECT_EQ(code, 0);
}

TEST_F(EnableExchange, AQueryThatCannotBeWrittenFails) {
  const tagPRINTSETTING settings = SettingsOf10x15();
  int code = 0;
  Capture err(stderr);
  {
    const FullOutput full(false);
    code = wr_esc_enable(stdout, &settings);
  }
  EXPECT_EQ(err.Text(), kQueryDump + "DEBUG: fwrite() failed. ret=0\n");
  EXPECT_EQ(code, -1);
  EXPECT_TRUE(Connection().journal.empty());
}

TEST_F(EnableExchange, AQueryThatCannotBeFlushedFails) {
  const tagPRINTSETTING settings = SettingsOf10x15();
  std::string text;
  Capture err(stderr);
  {
    const FullOutput full(true);
    text = ExaminePage(&settings);
  }
  EXPECT_EQ(err.Text(), "DEBUG: ExaminePage() START\n" + kQueryDump + "DEBUG: fflush() failed.\n");
  EXPECT_EQ(text, "wr_esc_enable() Error");
  EXPECT_TRUE(Connection().journal.empty());
}

TEST_F(EnableCode, Code0000IsReady) {
  Connection().Answer(Zeros(6));
  const Outcome outcome = Examine();
  EXPECT_EQ(outcome.text, "");
  EXPECT_EQ(outcome.err, "DEBUG: ExaminePage() START\n" + QueryAnswered("00 00") +
                             "DEBUG: CMD_GET_ENABLE[00 + 00]\n");
}

TEST_F(EnableCode, Code0001IsAMismatchThatDoesNotPauseTheQueue) {
  Connection().Answer(Bytes({0, 0, 0, 0, 0x00, 0x01}));
  const Outcome outcome = Examine();
  EXPECT_EQ(outcome.text, "ERROR CMD_GET_ENABLE[00 + 01]");
  EXPECT_EQ(outcome.err, "DEBUG: ExaminePage() START\n" + QueryAnswered("00 01") +
                             "DEBUG: CMD_GET_ENABLE[00 + 01]\n"
                             "ERROR: pagesize-inkribbon-unmuch 0x0001\n");
}

TEST_F(EnableCode, Code0101IsAMismatch) {
  Connection().Answer(Bytes({0, 0, 0, 0, 0x01, 0x01}));
  const Outcome outcome = Examine();
  EXPECT_EQ(outcome.text, "ERROR CMD_GET_ENABLE[01 + 01]");
  EXPECT_EQ(outcome.err, "DEBUG: ExaminePage() START\n" + QueryAnswered("01 01") +
                             "DEBUG: CMD_GET_ENABLE[01 + 01]\n"
                             "STATE: +paused\n"
                             "ERROR: pagesize-inkribbon-unmuch 0x0101\n");
}

TEST_F(EnableCode, Code0200IsSettingsNotAccepted) {
  Connection().Answer(Bytes({0, 0, 0, 0, 0x02, 0x00}));
  const Outcome outcome = Examine();
  EXPECT_EQ(outcome.text, "ERROR CMD_GET_ENABLE[02 + 00]");
  EXPECT_EQ(outcome.err, "DEBUG: ExaminePage() START\n" + QueryAnswered("02 00") +
                             "DEBUG: CMD_GET_ENABLE[02 + 00]\n"
                             "STATE: +paused\n"
                             "ERROR: driver-setting-unmuch 0x0200\n");
}

TEST_F(EnableCode, Code0201IsAMismatch) {
  Connection().Answer(Bytes({0, 0, 0, 0, 0x02, 0x01}));
  const Outcome outcome = Examine();
  EXPECT_EQ(outcome.text, "ERROR CMD_GET_ENABLE[02 + 01]");
  EXPECT_EQ(outcome.err, "DEBUG: ExaminePage() START\n" + QueryAnswered("02 01") +
                             "DEBUG: CMD_GET_ENABLE[02 + 01]\n"
                             "STATE: +paused\n"
                             "ERROR: pagesize-inkribbon-unmuch 0x0201\n");
}

TEST_F(EnableCode, CodeFFFFIsOutOfRange) {
  Connection().Answer(Bytes({0, 0, 0, 0, 0xFF, 0xFF}));
  const Outcome outcome = Examine();
  EXPECT_EQ(outcome.text, "ERROR CMD_GET_ENABLE[FF + FF]");
  EXPECT_EQ(outcome.err, "DEBUG: ExaminePage() START\n" + QueryAnswered("ff ff") +
                             "DEBUG: CMD_GET_ENABLE[FF + FF]\n"
                             "STATE: +paused\n"
                             "ERROR: out-of-range 0xffff\n");
}

TEST_F(EnableCode, AnyOtherIsAProtocolError) {
  struct Other {
    unsigned char high;
    unsigned char low;
    const char* dumped;
    const char* error;
  };
  static constexpr Other kOthers[] = {
      {0x00, 0x02, "00 02", "ERROR: protocol-error 0x0002\n"},
      {0x01, 0x02, "01 02", "ERROR: protocol-error 0x0102\n"},
      {0x02, 0x02, "02 02", "ERROR: protocol-error 0x0202\n"},
      {0x03, 0x00, "03 00", "ERROR: protocol-error 0x0300\n"},
      {0xFF, 0xFE, "ff fe", "ERROR: protocol-error 0xfffe\n"},
  };
  for (const Other& other : kOthers) {
    Connection().Answer(Bytes({0, 0, 0, 0, other.high, other.low}));
    const Outcome outcome = Examine();
    EXPECT_EQ(outcome.text, "protocol-error");
    EXPECT_EQ(outcome.err, "DEBUG: ExaminePage() START\n" + QueryAnswered(other.dumped) +
                               "DEBUG: PROTOCOL ERROR\n"
                               "STATE: +paused\n" +
                               other.error);
  }
}

TEST_F(EnableCode, AFailedFirstExchangeHasNoLineOfItsOwn) {
  Connection().AnswerNothing(-1);
  const Outcome outcome = Examine();
  EXPECT_EQ(outcome.text, "wr_esc_enable() Error");
  EXPECT_EQ(outcome.err, "DEBUG: ExaminePage() START\n" + kQuerySent +
                             "DEBUG: cupsBackChannelRead() failed. ret=-1\n");
}

TEST_F(EnableCode, AnAnswerThatIsNotBusyIsNotWaitedFor) {
  Connection().Answer(Zeros(6));
  Examine();
  EXPECT_THAT(Connection().journal,
              ElementsAre("drain 512 5.0, 512 sent", "read 512 1.0, 512 sent"));
}
