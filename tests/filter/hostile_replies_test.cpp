// SPDX-License-Identifier: Apache-2.0
//
// Backends and printers that answer anything at all: the filter comes to an end, and prints only
// after the answers that allow it.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/seeded_random.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

const std::map<std::string, std::string> kShortWaits = {{"FILTER_TEST_WAIT_SCALE", "0.02"}};

std::string RandomBytes(std::mt19937* random, std::size_t count) {
  std::string bytes;
  while (bytes.size() < count) {
    bytes += static_cast<char>((*random)() & 0xFF);
  }
  return bytes;
}

const std::string kAnyAnswer = kAnyText + "\n";

TEST(HostileBidiReply, OfAnyFrameEndsTheJobBeforeAnythingIsSent) {
  const std::string refusal = kBanner + "DEBUG: CUPS_SC_CMD_GET_BIDI=" + kAnyAnswer + kNoTwoWays;
  std::mt19937 random = SeededRandom(1);
  for (int round = 0; round < 60; ++round) {
    SCOPED_TRACE(round);
    std::string frame = RandomBytes(&random, 1 + random() % 700);
    frame[0] = random() % 2 == 0 ? '\x03' : frame[0];  // often the right command
    frame += "end";                                    // never the one byte that allows the job

    const Outcome outcome = Print({.input = SmallRaster(),
                                   .environment = kShortWaits,
                                   .printer = {.bidi = {.frame = frame}}});

    EXPECT_TRUE(SameStream(outcome.stream, ""));
    EXPECT_TRUE(SameLog(outcome.log, refusal));
    EXPECT_EQ(outcome.status, 1);
  }
}

TEST(HostileBidiReply, ThatClaimsMoreThanItBringsEndsTheJob) {
  for (const std::string& frame :
       {"\x03\x01\x00\x01"s, "\x03\x01\xFF\xFF\x01"s, "\x03\x01\x02\x00\x01"s, "\x03\x01\x00"s,
        "\x03"s, "\x02\x01\x00\x01\x01"s}) {
    SCOPED_TRACE(testing::PrintToString(frame));

    const Outcome outcome = Print({.input = SmallRaster(),
                                   .environment = kShortWaits,
                                   .printer = {.bidi = {.frame = frame}}});

    EXPECT_TRUE(SameStream(outcome.stream, ""));
    EXPECT_EQ(outcome.status, 1);
  }
}

TEST(HostileDrainReply, OfAnyFrameDoesNotKeepTheReplyFromBeingRead) {
  const std::string reply = StatusReply(0x21, 0x10);
  std::string log = kBanner + kTwoWays + StatusExchange(reply) +
                    KnownError("0x2110", "com.corvantiel-error0007_2110") + kStop;
  log.replace(log.find(kDrained), kDrained.size(), "DEBUG: CUPS_SC_CMD_DRAIN_OUTPUT=" + kAnyAnswer);
  std::mt19937 random = SeededRandom(2);
  for (int round = 0; round < 40; ++round) {
    SCOPED_TRACE(round);
    const SideReply drain{.frame = RandomBytes(&random, 1 + random() % 600)};

    const Outcome outcome = Print({.input = SmallRaster(),
                                   .environment = {{"FILTER_TEST_WAIT_SCALE", "0.2"}},
                                   .printer = {.drains = {drain}, .status = {Answer(reply)}}});

    EXPECT_TRUE(SameLog(outcome.log, log));
    EXPECT_EQ(outcome.status, 1);
  }
}

TEST(HostileStatusReply, OfAnyBytesGoesOnOnlyWhenTheErrorNumberIsZero) {
  std::mt19937 random = SeededRandom(3);
  for (int round = 0; round < 80; ++round) {
    SCOPED_TRACE(round);
    std::string reply = RandomBytes(&random, 15 + random() % 900);
    reply[4] = static_cast<char>(random() % 2);
    reply[5] = static_cast<char>(random() % 2);
    const bool good = reply[4] == '\0' && reply[5] == '\0';

    const Outcome outcome = Print({.printer = {.status = {Answer(reply)}}});

    EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + (good ? PrintOut() : "")));
    EXPECT_EQ(outcome.log.find(Dump("[STS]", reply.substr(0, 512))) != std::string::npos, true);
    EXPECT_EQ(outcome.log.ends_with(good ? kNoPages : kStop), true);
    EXPECT_EQ(outcome.status, 1);
  }
}

TEST(HostileStatusReply, InAnyPiecesIsTakenFromFifteenBytesOn) {
  std::mt19937 random = SeededRandom(4);
  for (int round = 0; round < 40; ++round) {
    SCOPED_TRACE(round);
    Reply reply;
    std::string taken;
    while (taken.size() < 15) {
      reply.pieces.push_back(RandomBytes(&random, 1 + random() % 20));
      taken += reply.pieces.back();
    }

    const Outcome outcome = Print({.printer = {.status = {reply}}});

    EXPECT_NE(outcome.log.find(Dump("[STS]", taken)), std::string::npos);
    EXPECT_EQ(outcome.status, 1);
  }
}

TEST(HostileReadinessReply, OfAnyBytesPrintsOnlyAfterCodeZero) {
  std::mt19937 random = SeededRandom(5);
  for (int round = 0; round < 40; ++round) {
    SCOPED_TRACE(round);
    std::string reply = RandomBytes(&random, 6 + random() % 900);
    reply[4] = static_cast<char>(random() % 4);
    reply[5] = static_cast<char>(2 + random() % 250);

    const Outcome outcome = Print({.input = SmallRaster(),
                                   .options = "PageSize=RQ_5x15",
                                   .printer = {.readiness = {Answer(reply)}}});

    const Settings settings{.paper = &k5x15};
    EXPECT_TRUE(
        SameStream(outcome.stream, StatusRequest() + StatusRequest() + ReadinessQuery(settings)));
    EXPECT_NE(outcome.log.find(Dump("[STS]CMD_GET_ENABLE", reply.substr(0, 512))),
              std::string::npos);
    EXPECT_TRUE(outcome.log.ends_with("DEBUG: protocol-error\n[sleep 1]\n"));
    EXPECT_EQ(outcome.status, 1);
  }
}

}  // namespace
}  // namespace filter_test
