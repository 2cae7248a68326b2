// SPDX-License-Identifier: Apache-2.0
//
// Every byte of the commands: what a wrong one is called, and where.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "decoder/stream_parser.h"
#include "tests/unit/decoder/event_recording.h"
#include "tests/unit/stream_bytes.h"

namespace {

using stream::Bytes;
using stream::Finish;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// A file's first 10x15 gloss sheet: status requests at 0 and 8, readiness query at 16, job header
// at 528, image header at 1040. A wrong byte in the settings is put in both blocks that carry them.
struct WrongByte {
  std::size_t offset;
  std::uint8_t value;
  const char* error;
};

void PrintTo(const WrongByte& wrong, std::ostream* out) {
  *out << "byte " << wrong.offset << " set to " << int{wrong.value};
}

Bytes with(Bytes bytes, std::size_t offset, std::uint8_t value) {
  bytes.at(offset) = value;
  return bytes;
}

class FieldsOfOneCommand : public testing::TestWithParam<WrongByte> {};

TEST_P(FieldsOfOneCommand, AreNamedWithOffsetAndWhatIsAllowed) {
  const Bytes good = stream::first_headers(stream::paper_10x15(), Finish::Gloss);
  EXPECT_THAT(errors_open(with(good, GetParam().offset, GetParam().value)),
              ElementsAre(GetParam().error));
}

INSTANTIATE_TEST_SUITE_P(
    StatusRequest, FieldsOfOneCommand,
    testing::Values(
        WrongByte{12, 1, "offset 12: status request, fixed byte 4: came 0x01, allowed 0x00"},
        WrongByte{13, 2, "offset 13: status request, fixed byte 5: came 0x02, allowed 0x00"},
        WrongByte{14, 0, "offset 14: status request, fixed byte 6: came 0x00, allowed 0x01"},
        WrongByte{15, 0x17, "offset 15: status request, fixed byte 7: came 0x17, allowed 0x16"}));

INSTANTIATE_TEST_SUITE_P(
    ReadinessQuery, FieldsOfOneCommand,
    testing::Values(
        WrongByte{20, 1, "offset 20: readiness query, fixed byte 4: came 0x01, allowed 0x00"},
        WrongByte{21, 0x32, "offset 21: readiness query, fixed byte 5: came 0x32, allowed 0x33"},
        WrongByte{23, 0x3D,
                  "offset 22: readiness query, sheet width: came 1853, allowed 1550 or 1852"},
        WrongByte{25, 0xD1,
                  "offset 24: readiness query, sheet height: came 1233, allowed 631, 1232, 1833 or "
                  "2434 for a width of 1852"},
        WrongByte{27, 7, "offset 27: readiness query, zero fill byte 11: came 0x07, allowed 0x00"},
        WrongByte{30, 2, "offset 30: readiness query, margin cut-off: came 2, allowed 0 or 1"},
        WrongByte{31, 2, "offset 31: readiness query, two-up mode: came 2, allowed 0 or 1"},
        WrongByte{32, 1, "offset 32: readiness query, two-up split: came 256, allowed 0 or 616"},
        WrongByte{34, 3, "offset 34: readiness query, two-up option: came 3, allowed 0 or 1"},
        WrongByte{64, 1, "offset 64: readiness query, finish: came 1, allowed 0 or 3"},
        WrongByte{65, 1, "offset 65: readiness query, print mode: came 1, allowed 0 or 5"},
        WrongByte{66, 0, "offset 66: readiness query, fixed byte 50: came 0x00, allowed 0x01"},
        WrongByte{74, 3, "offset 74: readiness query, fixed byte 58: came 0x03, allowed 0x02"},
        WrongByte{96, 0, "offset 96: readiness query, fixed byte 80: came 0x00, allowed 0x01"},
        WrongByte{99, 9, "offset 99: readiness query, zero fill byte 83: came 0x09, allowed 0x00"},
        WrongByte{527, 1,
                  "offset 527: readiness query, zero fill byte 511: came 0x01, allowed 0x00"}));

INSTANTIATE_TEST_SUITE_P(
    JobHeader, FieldsOfOneCommand,
    testing::Values(
        WrongByte{532, 1, "offset 532: job header, fixed byte 4: came 0x01, allowed 0x00"},
        WrongByte{533, 0x34, "offset 533: job header, fixed byte 5: came 0x34, allowed 0x33"},
        WrongByte{539, 1, "offset 539: job header, zero fill byte 11: came 0x01, allowed 0x00"},
        WrongByte{541, 1, "offset 541: job header, zero fill byte 13: came 0x01, allowed 0x00"},
        WrongByte{542, 9, "offset 542: job header, margin cut-off: came 9, allowed 0 or 1"},
        WrongByte{547, 1, "offset 547: job header, zero fill byte 19: came 0x01, allowed 0x00"},
        WrongByte{575, 1, "offset 575: job header, zero fill byte 47: came 0x01, allowed 0x00"},
        WrongByte{576, 2, "offset 576: job header, finish: came 2, allowed 0 or 3"},
        WrongByte{577, 4, "offset 577: job header, print mode: came 4, allowed 0 or 5"},
        WrongByte{578, 2, "offset 578: job header, fixed byte 50: came 0x02, allowed 0x01"},
        WrongByte{579, 1, "offset 579: job header, zero fill byte 51: came 0x01, allowed 0x00"},
        WrongByte{580, 1, "offset 580: job header, zero fill byte 52: came 0x01, allowed 0x00"},
        WrongByte{585, 1, "offset 585: job header, zero fill byte 57: came 0x01, allowed 0x00"},
        WrongByte{586, 0, "offset 586: job header, fixed byte 58: came 0x00, allowed 0x02"},
        WrongByte{587, 1, "offset 587: job header, zero fill byte 59: came 0x01, allowed 0x00"},
        WrongByte{607, 1, "offset 607: job header, zero fill byte 79: came 0x01, allowed 0x00"},
        WrongByte{608, 2, "offset 608: job header, fixed byte 80: came 0x02, allowed 0x01"},
        WrongByte{611, 1, "offset 611: job header, zero fill byte 83: came 0x01, allowed 0x00"},
        WrongByte{1039, 1,
                  "offset 1039: job header, zero fill byte 511: came 0x01, allowed 0x00"}));

INSTANTIATE_TEST_SUITE_P(
    JobHeaderUnlikeTheQuery, FieldsOfOneCommand,
    testing::Values(
        WrongByte{538, 6,
                  "offset 538: job header, wait byte: came 0x06, allowed 0x05 as in the last "
                  "readiness query"},
        WrongByte{542, 1,
                  "offset 542: job header, margin cut-off: came 0x01, allowed 0x00 as in the last "
                  "readiness query"},
        WrongByte{577, 5,
                  "offset 577: job header, print mode: came 0x05, allowed 0x00 as in the last "
                  "readiness query"},
        WrongByte{609, 0,
                  "offset 609: job header, RGB rate: came 0x00, allowed 0x2A as in the last "
                  "readiness query"},
        WrongByte{610, 0,
                  "offset 610: job header, OP rate: came 0x00, allowed 0x64 as in the last "
                  "readiness query"}));

INSTANTIATE_TEST_SUITE_P(
    TwoUpFieldsThatDisagree, FieldsOfOneCommand,
    testing::Values(WrongByte{543, 1,
                              "offset 543: job header, two-up mode: came 1, allowed 0, as the "
                              "other two-up fields say"},
                    WrongByte{546, 1,
                              "offset 546: job header, two-up option: came 1, allowed 0, as the "
                              "other two-up fields say"}));

INSTANTIATE_TEST_SUITE_P(
    ImageHeader, FieldsOfOneCommand,
    testing::Values(
        WrongByte{1043, 2, "offset 1043: image header, flag: came 0x02, allowed 0x01"},
        WrongByte{1044, 1, "offset 1044: image header, fixed byte 4: came 0x01, allowed 0x00"},
        WrongByte{1045, 8, "offset 1045: image header, fixed byte 5: came 0x08, allowed 0x09"},
        WrongByte{1047, 84,
                  "offset 1046: image header, image left: came 84, allowed 0 on a sheet of 1852 x "
                  "1232"},
        WrongByte{1049, 74,
                  "offset 1048: image header, image top: came 74, allowed 0 on a sheet of 1852 x "
                  "1232"},
        WrongByte{1050, 0x06,
                  "offset 1050: image header, image width: came 1596, allowed 1852 on a sheet of "
                  "1852 x 1232"},
        WrongByte{1053, 0xD1,
                  "offset 1052: image header, image height: came 1233, allowed 1232 on a sheet of "
                  "1852 x 1232"},
        WrongByte{1054, 1, "offset 1054: image header, zero fill byte 14: came 0x01, allowed 0x00"},
        WrongByte{1059, 1, "offset 1059: image header, zero fill byte 19: came 0x01, allowed 0x00"},
        WrongByte{1061, 1,
                  "offset 1060: image header, matte width: came 1, allowed 0 without the matte "
                  "finish"},
        WrongByte{1062, 1,
                  "offset 1062: image header, matte height: came 256, allowed 0 without the matte "
                  "finish"},
        WrongByte{1064, 1, "offset 1064: image header, zero fill byte 24: came 0x01, allowed 0x00"},
        WrongByte{1071, 1, "offset 1071: image header, zero fill byte 31: came 0x01, allowed 0x00"},
        WrongByte{1072, 0, "offset 1072: image header, year: came 234, allowed 1000 to 9999"},
        WrongByte{1072, 0x28, "offset 1072: image header, year: came 10474, allowed 1000 to 9999"},
        WrongByte{1074, 0, "offset 1074: image header, month: came 0, allowed 1 to 12"},
        WrongByte{1074, 13, "offset 1074: image header, month: came 13, allowed 1 to 12"},
        WrongByte{1075, 0, "offset 1075: image header, day: came 0, allowed 1 to 31"},
        WrongByte{1075, 32, "offset 1075: image header, day: came 32, allowed 1 to 31"},
        WrongByte{1076, 24, "offset 1076: image header, hour: came 24, allowed 0 to 23"},
        WrongByte{1077, 60, "offset 1077: image header, minute: came 60, allowed 0 to 59"},
        WrongByte{1078, 60, "offset 1078: image header, second: came 60, allowed 0 to 59"},
        WrongByte{1079, 1, "offset 1079: image header, zero fill byte 39: came 0x01, allowed 0x00"},
        WrongByte{1551, 1,
                  "offset 1551: image header, zero fill byte 511: came 0x01, allowed 0x00"}));

TEST(Fields, OfAGoodStreamGiveNoError) {
  EXPECT_THAT(errors_open(stream::first_headers(stream::paper_10x15(), Finish::Gloss)), IsEmpty());
  EXPECT_THAT(errors_open(stream::first_headers(stream::paper_10x15(), Finish::Matte)), IsEmpty());
}

TEST(Fields, AreCheckedInEveryByteOfTheHeaders) {
  const Bytes good = stream::first_headers(stream::paper_10x15(), Finish::Gloss);
  constexpr std::size_t kYearLowByte = 1073;  // any value is a year
  for (std::size_t offset = 0; offset < good.size(); ++offset) {
    if (offset == kYearLowByte) {
      continue;
    }
    const auto wrong = static_cast<std::uint8_t>(good[offset] ^ 0x80U);
    EXPECT_THAT(errors_open(with(good, offset, wrong)), testing::Not(IsEmpty()))
        << "byte " << offset;
  }
}

TEST(Fields, ThatMayHoldAnyValueDo) {
  for (const std::uint8_t value : Bytes{0x00, 0x01, 0x7F, 0xFF}) {
    Bytes bytes = stream::first_headers(stream::paper_10x15(), Finish::Gloss);
    for (const std::size_t block : {16U, 528U}) {
      bytes.at(block + 10) = value;  // wait byte
      bytes.at(block + 81) = value;  // RGB rate
      bytes.at(block + 82) = value;  // OP rate
    }
    EXPECT_THAT(errors_open(bytes), IsEmpty());
  }
}

TEST(Fields, TakeTheFastModeAndTheMarginCutOff) {
  Bytes bytes = stream::first_headers(stream::paper_10x15(), Finish::Gloss);
  for (const std::size_t block : {16U, 528U}) {
    bytes.at(block + 14) = 1;
    bytes.at(block + 49) = 5;
  }
  EXPECT_THAT(errors_open(bytes), IsEmpty());
}

TEST(Fields, OfTheTwoUpLayoutMustStandTogether) {
  const Bytes good = stream::first_headers(stream::paper_5x15x2(), Finish::Gloss);
  EXPECT_THAT(errors_open(with(good, 543, 0)),
              ElementsAre("offset 543: job header, two-up mode: came 0, allowed 1, as the other "
                          "two-up fields say"));
  EXPECT_THAT(errors_open(with(with(good, 544, 0), 545, 0)),
              ElementsAre("offset 544: job header, two-up split: came 0, allowed 616, as the other "
                          "two-up fields say"));
  EXPECT_THAT(errors_open(with(good, 546, 0)),
              ElementsAre("offset 546: job header, two-up option: came 0, allowed 1, as the other "
                          "two-up fields say"));
}

TEST(Fields, OfTheTwoUpLayoutBelongToTheSheetOf1852By1232Only) {
  Bytes query = stream::readiness_query(stream::paper_5x15(), Finish::Gloss);
  query.at(15) = 1;
  query.at(16) = 0x02;
  query.at(17) = 0x68;
  query.at(18) = 1;
  EXPECT_THAT(
      errors_open(stream::join({stream::status_request(), stream::status_request(), query})),
      ElementsAre(
          "offset 31: readiness query, two-up mode: came 1, allowed 0 on a sheet of 1852 x 631",
          "offset 32: readiness query, two-up split: came 616, allowed 0 on a sheet of 1852 x 631",
          "offset 34: readiness query, two-up option: came 1, allowed 0 on a sheet of 1852 x 631"));
}

TEST(Fields, GiveOneErrorForARunOfBytesThatShouldBeZero) {
  Bytes bytes = stream::first_headers(stream::paper_10x15(), Finish::Gloss);
  bytes.at(1088) = 0x11;
  bytes.at(1089) = 0x22;
  bytes.at(1108) = 0x33;
  EXPECT_THAT(errors_open(bytes),
              ElementsAre("offset 1088: image header, zero fill byte 48: came 0x11 and 2 more that "
                          "are not zero, allowed 0x00"));
}

TEST(Fields, OfThePrintOutAreChecked) {
  EXPECT_THAT(
      errors_of(stream::join({stream::status_request(), {0x1B, 0x42, 0x51, 0x31, 0x01, 0x05}})),
      ElementsAre("offset 12: print-out, fixed byte 4: came 0x01, allowed 0x00"));
}

TEST(Fields, ArriveInTheRecords) {
  EventRecording recording;
  decode_open(stream::first_headers(stream::paper_5x15x2(), Finish::Matte), recording);
  ASSERT_THAT(recording.jobs, SizeIs(2));
  const decoder::JobHeader& job = recording.jobs[1];
  EXPECT_EQ(job.sheetWidth, 1852);
  EXPECT_EQ(job.sheetHeight, 1232);
  EXPECT_EQ(job.waitByte, 5);
  EXPECT_EQ(job.marginCutOff, 0);
  EXPECT_EQ(job.twoUpMode, 1);
  EXPECT_EQ(job.twoUpSplit, 616);
  EXPECT_EQ(job.twoUpOption, 1);
  EXPECT_EQ(job.finish, 3);
  EXPECT_EQ(job.printMode, 0);
  EXPECT_EQ(job.rgbRate, 42);
  EXPECT_EQ(job.opRate, 100);
  ASSERT_THAT(recording.images, SizeIs(1));
  const decoder::ImageHeader& image = recording.images[0];
  EXPECT_EQ(image.flag, 1);
  EXPECT_EQ(image.left, 0);
  EXPECT_EQ(image.top, 0);
  EXPECT_EQ(image.width, 1852);
  EXPECT_EQ(image.height, 1232);
  EXPECT_EQ(image.matteWidth, 1852);
  EXPECT_EQ(image.matteHeight, 1244);
  EXPECT_EQ(image.year, 2026);
  EXPECT_EQ(image.month, 3);
  EXPECT_EQ(image.day, 15);
  EXPECT_EQ(image.hour, 10);
  EXPECT_EQ(image.minute, 20);
  EXPECT_EQ(image.second, 30);
}

}  // namespace
