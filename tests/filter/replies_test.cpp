// SPDX-License-Identifier: Apache-2.0
//
// How the printer's replies and the backend's answers arrive: in pieces, with more than was asked
// for, late, or not at all.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"
#include "tests/reason_keywords.h"

namespace filter_test {
namespace {

Reply Pieces(std::vector<std::string> pieces) {
  return {.pieces = std::move(pieces)};
}

std::vector<std::string> SingleBytes(const std::string& bytes) {
  std::vector<std::string> result;
  for (const char byte : bytes) {
    result.emplace_back(1, byte);
  }
  return result;
}

/// The job's log from the examination of its one sheet to the end.
std::string Rest(const std::string& readiness_reply) {
  return kExamine + ReadinessExchange(kSettings, readiness_reply) +
         "DEBUG: CMD_GET_ENABLE[00 + 00]\n" + Transfer(1, 1550, 1082) + SheetDone(1);
}

std::string BeforeExamination() {
  return GoodStart() + SmallPage() + StatusExchange() + GoodState() + kCleaned;
}

/// The log of a job whose first status reply is `reply`, which is good.
std::string AllWell(const std::string& reply) {
  return kBanner + kTwoWays + StatusExchange(reply) + GoodState() + kCleaned + SmallPage() +
         SmallSheet(kSettings);
}

void ExpectPrintedWith(const Outcome& outcome, const std::string& log) {
  EXPECT_TRUE(SameLog(outcome.log, log));
  EXPECT_TRUE(SameStream(outcome.stream, SmallStream()));
  EXPECT_EQ(outcome.status, 0);
}

TEST(StatusReply, IsGatheredFromTwoPieces) {
  ExpectPrintedWith(
      Print({.input = SmallRaster(),
             .printer = {.status = {Pieces({kGood.substr(0, 10), kGood.substr(10)})}}}),
      AllWell(kGood));
}

TEST(StatusReply, IsGatheredFromSingleBytes) {
  const Outcome outcome =
      Print({.input = SmallRaster(), .printer = {.status = {Pieces(SingleBytes(kGood))}}});

  ExpectPrintedWith(outcome, AllWell(kGood));
}

TEST(StatusReply, OfFortyBytesIsTakenWhole) {
  const std::string reply = kGood + std::string(25, '\x77');
  ExpectPrintedWith(Print({.input = SmallRaster(), .printer = {.status = {Answer(reply)}}}),
                    AllWell(reply));
}

TEST(StatusReply, WithAPieceBeyondFifteenBytesIsTakenWhole) {
  const std::string reply = kGood + "tail";
  ExpectPrintedWith(
      Print({.input = SmallRaster(),
             .printer = {.status = {Pieces({reply.substr(0, 14), reply.substr(14)})}}}),
      AllWell(reply));
}

TEST(StatusReply, OfFiveHundredAndTwelveBytesFillsTheRoom) {
  const std::string reply = kGood + std::string(497, 'z');
  ExpectPrintedWith(Print({.input = SmallRaster(), .printer = {.status = {Answer(reply)}}}),
                    AllWell(reply));
}

TEST(StatusReply, ThatOverflowsTheRoomLeavesItsRestToTheNextExchange) {
  const std::string reply = kGood + std::string(497, 'z') + kGood;

  const Outcome outcome =
      Print({.input = SmallRaster(), .printer = {.status = {Answer(reply), kSilence}}});

  ExpectPrintedWith(outcome, AllWell(reply.substr(0, 512)));
}

TEST(StatusReply, HasNoSignInItsErrorGroup) {
  const std::string reply = StatusReply(0x90, 0x81);

  const Outcome outcome = Print({.input = SmallRaster(), .printer = {.status = {Answer(reply)}}});

  EXPECT_TRUE(SameLog(outcome.log,
                      kBanner + kTwoWays + StatusExchange(reply) + UnknownError("0x9081") + kStop));
  EXPECT_EQ(outcome.status, 1);
}

TEST(StatusReply, ThatEndsWithTheBackChannelFailsAtOnce) {
  const Outcome outcome =
      Print({.input = SmallRaster(),
             .printer = {.status = {{.pieces = {"\x11\x22"}, .then_close_back_channel = true}}}});

  EXPECT_TRUE(SameLog(outcome.log, kBanner + kTwoWays + FailedStatusExchange(0) +
                                       UnknownError("UNAVAILABLE") + kStop));
  EXPECT_EQ(outcome.status, 1);
}

TEST(StatusReply, IsNotWaitedForAgainAfterAnEmptyRead) {
  const Outcome outcome =
      Print({.input = SmallRaster(), .environment = {{"FILTER_TEST_READS", "0"}}});

  EXPECT_TRUE(SameLog(outcome.log, kBanner + kTwoWays + FailedStatusExchange(0) +
                                       UnknownError("UNAVAILABLE") + kStop));
  EXPECT_EQ(outcome.status, 1);
}

TEST(StrayByte, BeforeTheFirstStatusReplyIsTakenForItsFirst) {
  FilterProcess filter({.input = SmallRaster()});
  filter.SendAnswer("!");

  const Outcome outcome = filter.Finish();

  // The fourth and the fifth byte of the printer's reply have moved to where the number stands.
  EXPECT_TRUE(SameLog(outcome.log, kBanner + kTwoWays + StatusExchange("!" + kGood) +
                                       UnknownError("0x4400") + kStop));
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest()));
  EXPECT_EQ(outcome.status, 1);
}

TEST(StrayByte, BehindTheStatusReplyIsTakenForTheReadinessRepliesFirst) {
  const Outcome outcome = Print({.input = SmallRaster(),
                                 .printer = {.status = {Answer(kGood), Pieces({kGood, "\x01"})},
                                             .readiness = {Answer(kReady)}}});

  // The reply's fourth byte and the first of its code have moved to where the code stands.
  EXPECT_TRUE(SameLog(outcome.log, BeforeExamination() + kExamine +
                                       ReadinessExchange(kSettings, "\x01" + kReady) +
                                       "DEBUG: PROTOCOL ERROR\n"
                                       "STATE: +paused\n"
                                       "ERROR: protocol-error 0xd400\n"
                                       "DEBUG: protocol-error\n"
                                       "[sleep 1]\n"));
  EXPECT_EQ(outcome.status, 1);
}

TEST(ReadinessReply, IsGatheredFromFourAndTwoBytes) {
  ExpectPrintedWith(
      Print({.input = SmallRaster(),
             .printer = {.readiness = {Pieces({kReady.substr(0, 4), kReady.substr(4)})}}}),
      BeforeExamination() + Rest(kReady));
}

TEST(ReadinessReply, TakesItsCodeFromTheSecondPiece) {
  const std::string reply = EnableReply(0x02, 0x00);

  const Outcome outcome =
      Print({.input = SmallRaster(),
             .printer = {.readiness = {Pieces({reply.substr(0, 4), reply.substr(4)})}}});

  EXPECT_TRUE(SameLog(outcome.log, BeforeExamination() + kExamine +
                                       ReadinessExchange(kSettings, reply) +
                                       "DEBUG: CMD_GET_ENABLE[02 + 00]\n"
                                       "STATE: +paused\n"
                                       "ERROR: driver-setting-unmuch 0x0200\n"
                                       "DEBUG: ERROR CMD_GET_ENABLE[02 + 00]\n"
                                       "[sleep 1]\n"));
}

TEST(ReadinessReply, IsGatheredFromSingleBytes) {
  ExpectPrintedWith(
      Print({.input = SmallRaster(), .printer = {.readiness = {Pieces(SingleBytes(kReady))}}}),
      BeforeExamination() + Rest(kReady));
}

TEST(ReadinessReply, OfTenBytesIsKeptWhole) {
  const std::string reply = kReady + "\xFF\xFF\xFF\xFF";
  ExpectPrintedWith(Print({.input = SmallRaster(), .printer = {.readiness = {Answer(reply)}}}),
                    BeforeExamination() + Rest(reply));
}

TEST(ReadinessReply, OfFortyBytesIsKeptWhole) {
  const std::string reply = kReady + std::string(34, '\x88');
  ExpectPrintedWith(Print({.input = SmallRaster(), .printer = {.readiness = {Answer(reply)}}}),
                    BeforeExamination() + Rest(reply));
}

TEST(ReadinessReply, IsTakenInUpToTheRoomThereIs) {
  const std::string reply = kReady + std::string(594, 'y');
  ExpectPrintedWith(Print({.input = SmallRaster(), .printer = {.readiness = {Answer(reply)}}}),
                    BeforeExamination() + Rest(reply.substr(0, 512)));
}

TEST(ReadinessReply, IsReadAgainAfterEmptyReads) {
  const Outcome outcome =
      Print({.input = SmallRaster(), .environment = {{"FILTER_TEST_READS", "real real 0 0 0"}}});

  ExpectPrintedWith(outcome, BeforeExamination() + Rest(kReady));
}

TEST(ReadinessReply, IsReadAgainAfterAnEmptyReadBetweenItsPieces) {
  const Outcome outcome =
      Print({.input = SmallRaster(),
             .environment = {{"FILTER_TEST_READS", "real real real 0"}},
             .printer = {.readiness = {Pieces({kReady.substr(0, 2), kReady.substr(2)})}}});

  ExpectPrintedWith(outcome, BeforeExamination() + Rest(kReady));
}

struct DrainCase {
  const char* name;
  int status;
  const char* line;
};

class DrainAnswer : public testing::TestWithParam<DrainCase> {};

TEST_P(DrainAnswer, IsLoggedAndTheReplyReadAllTheSame) {
  const SideReply answer{.frame = "\x02"s + static_cast<char>(GetParam().status) + "\0\0"s};
  const std::string line = "DEBUG: CUPS_SC_CMD_DRAIN_OUTPUT=" + std::string(GetParam().line) + "\n";
  std::string log = BeforeExamination() + Rest(kReady);
  for (std::size_t at = 0; (at = log.find(kDrained, at)) != std::string::npos;) {
    log.replace(at, kDrained.size(), line);
  }

  ExpectPrintedWith(
      Print({.input = SmallRaster(), .printer = {.drains = {answer, answer, answer}}}), log);
}

const DrainCase kDrainCases[] = {
    {"None", 0, "CUPS_SC_STATUS_NONE(0)"},
    {"IoError", 2, "CUPS_SC_STATUS_IO_ERROR(2)"},
    {"Timeout", 3, "CUPS_SC_STATUS_TIMEOUT(3)"},
    {"NoResponse", 4, "CUPS_SC_STATUS_NO_RESPONSE(4)"},
    {"BadMessage", 5, "CUPS_SC_STATUS_BAD_MESSAGE(5)"},
    {"TooBig", 6, "CUPS_SC_STATUS_TOO_BIG(6)"},
    {"NotImplemented", 7, "CUPS_SC_STATUS_NOT_IMPLEMENTED(7)"},
    {"WithoutAName", 0x7F, "UNKNOWN(127)"},
};

INSTANTIATE_TEST_SUITE_P(Status, DrainAnswer, testing::ValuesIn(kDrainCases),
                         [](const testing::TestParamInfo<DrainCase>& drain) {
                           return std::string(drain.param.name);
                         });

TEST(Drain, ThatIsNeverAnsweredIsWaitedForAndThenTheReplyIsRead) {
  const Outcome outcome = Print({.input = SmallRaster(),
                                 .environment = {{"FILTER_TEST_WAIT_SCALE", "0.05"}},
                                 .printer = {.drains = {{.silent = true}}}});

  std::string log = AllWell(kGood);
  log.replace(log.find(kDrained), kDrained.size(),
              "DEBUG: CUPS_SC_CMD_DRAIN_OUTPUT=CUPS_SC_STATUS_TIMEOUT(3)\n");
  ExpectPrintedWith(outcome, log);
}

TEST(Waits, OfAPrintedSheetAreTheseAndNoOthers) {
  const Outcome outcome =
      Print({.input = SmallRaster(),
             .printer = {.status = {Pieces({kGood.substr(0, 10), kGood.substr(10)})},
                         .readiness = {Pieces({kReady.substr(0, 4), kReady.substr(4)})}}});

  EXPECT_EQ(outcome.notes,
            "side channel 3, room 512, 30.0 s\n"
            "side channel 2, room 512, 5.0 s\n"
            "back channel, room 512, 1.0 s\n"
            "back channel, room 502, 1.0 s\n"
            "side channel 2, room 512, 5.0 s\n"
            "back channel, room 512, 1.0 s\n"
            "side channel 2, room 512, 5.0 s\n"
            "back channel, room 512, 1.0 s\n"
            "back channel, room 508, 1.0 s\n"
            "sleep 5, output held back\n");
}

TEST(ErrorNumbers, EachRaiseTheirOwnReasonAndWithdrawAllOthers) {
  const std::string start = kBanner + kTwoWays;
  for (const ReasonKeyword& reason : ReasonKeywords()) {
    SCOPED_TRACE(reason.keyword);
    const std::string reply = StatusReply(static_cast<unsigned char>(reason.error_number >> 8),
                                          static_cast<unsigned char>(reason.error_number));
    char number[8];
    std::snprintf(number, sizeof number, "0x%04x", static_cast<unsigned>(reason.error_number));

    const Outcome outcome = Print({.printer = {.status = {Answer(reply)}}});

    std::string log = start;
    log.append(StatusExchange(reply)).append(KnownError(number, reason.keyword)).append(kStop);
    EXPECT_TRUE(SameLog(outcome.log, log));
    EXPECT_EQ(outcome.status, 1);
  }
}

}  // namespace
}  // namespace filter_test
