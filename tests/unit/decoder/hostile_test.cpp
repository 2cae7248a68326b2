// SPDX-License-Identifier: Apache-2.0
//
// Bytes that are no print stream: found out, and got over.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "decoder/stream_parser.h"
#include "tests/unit/decoder/event_recording.h"
#include "tests/unit/stream_bytes.h"

namespace {

using stream::Bytes;
using stream::Finish;
using stream::join;
using testing::ElementsAre;

constexpr const char* kCodes = "1B 47 44 30, 1B 47 44 33, 1B 53 50 30, 1B 5A 54 01, 1B 42 51 31";

std::string no_code(std::size_t offset, const std::string& came) {
  return "offset " + std::to_string(offset) + ": stream, command code: came " + came +
         ", allowed " + kCodes;
}

TEST(Garbage, IsPassedOverUpToTheNextCommand) {
  EventRecording recording;
  decode(join({{'@', 'P', 'J', 'L'}, stream::status_request()}), recording);
  EXPECT_THAT(recording.events,
              ElementsAre(no_code(0, "40"), "skipped 4 bytes from 0", "status request at 4"));
}

TEST(Garbage, MayBeginLikeACommand) {
  EventRecording recording;
  decode(join({{0x1B, 0x47, 0x44, 0x37}, stream::status_request()}), recording);
  EXPECT_THAT(recording.events, ElementsAre(no_code(0, "1B 47 44 37"), "skipped 4 bytes from 0",
                                            "status request at 4"));
}

TEST(Garbage, DoesNotHideTheCommandRightBehindAnEscape) {
  EventRecording recording;
  decode(join({{0x1B}, stream::status_request()}), recording);
  EXPECT_THAT(recording.events,
              ElementsAre(no_code(0, "1B 1B"), "skipped 1 bytes from 0", "status request at 1"));
}

TEST(Garbage, UpToTheEndIsCounted) {
  EventRecording recording;
  decode({'h', 'e', 'l', 'l', 'o', 0x1B, 0x47}, recording);
  EXPECT_THAT(recording.events, ElementsAre(no_code(0, "68"), "skipped 7 bytes from 0"));
}

TEST(Garbage, BetweenCommandsLeavesTheOrderAlone) {
  EventRecording recording;
  decode(join({stream::status_request(), {0x00, 0x00}, stream::print_out()}), recording);
  EXPECT_THAT(recording.events,
              ElementsAre("status request at 0", no_code(8, "00"), "skipped 2 bytes from 8",
                          "print-out at 10, wait byte 5"));
}

// Pixels hold no command code, whatever they show: the search ends at the next true command.
TEST(WrongImageSize, PassesOverThePixels) {
  Bytes sheet = stream::first_sheet(stream::paper_5x15(), Finish::Gloss,
                                    {0x1B, 0x1B, 0x47, 0x30, 0x33, 0x1B});
  sheet.at(1052) = 0x03;
  EventRecording recording;
  decode(join({sheet, stream::status_request(), stream::print_out()}), recording);
  EXPECT_THAT(recording.events,
              ElementsAre("status request at 0", "status request at 8", "readiness query at 16",
                          "job header at 528",
                          "offset 1052: image header, image height: came 887, allowed 631 on a "
                          "sheet of 1852 x 631",
                          "image header at 1040", "skipped 7011672 bytes from 1552",
                          "status request at 7013224", "print-out at 7013232, wait byte 5"));
}

TEST(WrongImageSize, WithoutPixelsSkipsNothing) {
  Bytes headers = stream::first_headers(stream::paper_5x15(), Finish::Gloss);
  headers.at(1052) = 0x03;
  EventRecording recording;
  decode(join({headers, stream::status_request()}), recording);
  EXPECT_THAT(recording.events,
              ElementsAre("status request at 0", "status request at 8", "readiness query at 16",
                          "job header at 528",
                          "offset 1052: image header, image height: came 887, allowed 631 on a "
                          "sheet of 1852 x 631",
                          "image header at 1040", "status request at 1552"));
}

TEST(WrongField, LeavesTheSheetReadable) {
  Bytes sheet = stream::first_sheet(stream::paper_5x15(), Finish::Gloss, {0, 0, 0, 0, 0, 0});
  sheet.at(1074) = 77;
  EventRecording recording;
  decode(join({sheet, stream::print_out()}), recording);
  EXPECT_THAT(recording.errors,
              ElementsAre("offset 1074: image header, month: came 77, allowed 1 to 12"));
  EXPECT_EQ(recording.events.back(), "print-out at 7013224, wait byte 5");
}

TEST(AFinishThatIsNone, ReadsAsGloss) {
  Bytes sheet = stream::first_sheet(stream::paper_5x15(), Finish::Gloss, {0, 0, 0, 0, 0, 0});
  sheet.at(16 + 48) = 1;
  sheet.at(528 + 48) = 1;
  EventRecording recording;
  decode(join({sheet, stream::print_out()}), recording);
  EXPECT_THAT(recording.errors,
              ElementsAre("offset 64: readiness query, finish: came 1, allowed 0 or 3",
                          "offset 576: job header, finish: came 1, allowed 0 or 3"));
  EXPECT_EQ(recording.events.back(), "print-out at 7013224, wait byte 5");
}

class RandomBytes : public testing::TestWithParam<unsigned> {};

TEST_P(RandomBytes, AreReadToTheirEnd) {
  std::mt19937 random(GetParam());
  Bytes bytes(100000);
  for (std::uint8_t& byte : bytes) {
    byte = static_cast<std::uint8_t>(random());
  }
  EventRecording recording;
  decoder::StreamParser parser(recording);
  parser.Feed(bytes);
  parser.EndOfStream();
  EXPECT_EQ(parser.Offset(), 100000U);
  EXPECT_GT(parser.ErrorCount(), 0U);
  EXPECT_LT(recording.events.size(), 200000U);
}

// Only the bytes of the codes, in any order: as many half and whole commands as can be.
TEST_P(RandomBytes, OfCommandCodesAreReadToTheirEnd) {
  std::mt19937 random(GetParam());
  const Bytes letters = {0x1B, 'G', 'D', '0', '3', 'S', 'P', 'Z', 'T', 0x01, 'B', 'Q', '1'};
  Bytes bytes(100000);
  for (std::uint8_t& byte : bytes) {
    byte = letters[random() % letters.size()];
  }
  EventRecording recording;
  decoder::StreamParser parser(recording);
  parser.Feed(bytes);
  parser.EndOfStream();
  EXPECT_EQ(parser.Offset(), 100000U);
  EXPECT_GT(parser.ErrorCount(), 0U);
}

TEST_P(RandomBytes, InTheHeadersBeginNoSheetBeyondThePapers) {
  std::mt19937 random(GetParam());
  for (int round = 0; round < 200; ++round) {
    Bytes bytes = stream::first_headers(stream::paper_10x15(), Finish::Matte);
    for (int i = 0; i < 8; ++i) {
      bytes.at(random() % bytes.size()) = static_cast<std::uint8_t>(random());
    }
    EventRecording recording;
    decode(bytes, recording);
    for (const std::string& event : recording.events) {
      const bool sheet = event.starts_with("sheet 1") || event.starts_with("sheet 6");
      EXPECT_TRUE(!sheet || event == "sheet 1852 x 1232") << event;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomBytes, testing::Range(1U, 9U));

}  // namespace
