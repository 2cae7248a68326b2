// SPDX-License-Identifier: Apache-2.0
//
// Every byte of the commands: what a wrong one is called, and where.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "decoder/stream_parser.h"
#include "tests/unit/simulator/event_recording.h"
#include "tests/unit/simulator/stream_bytes.h"

namespace {

using stream::Bytes;
using stream::Finish;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// The four commands of a 10x15 gloss sheet: status request at 0, readiness query at 8, job header
// at 520, image header at 1032. A wrong byte in the settings is put in both blocks that carry them.
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
  const Bytes good = stream::headers(stream::paper_10x15(), Finish::Gloss);
  EXPECT_THAT(errors_open(with(good, GetParam().offset, GetParam().value)),
              ElementsAre(GetParam().error));
}

INSTANTIATE_TEST_SUITE_P(
    StatusRequest, FieldsOfOneCommand,
    testing::Values(
        WrongByte{4, 1, "offset 4: status request, fixed byte 4: came 0x01, allowed 0x00"},
        WrongByte{5, 2, "offset 5: status request, fixed byte 5: came 0x02, allowed 0x00"},
        WrongByte{6, 0, "offset 6: status request, fixed byte 6: came 0x00, allowed 0x01"},
        WrongByte{7, 0x17, "offset 7: status request, fixed byte 7: came 0x17, allowed 0x16"}));

INSTANTIATE_TEST_SUITE_P(
    ReadinessQuery, FieldsOfOneCommand,
    testing::Values(
        WrongByte{12, 1, "offset 12: readiness query, fixed byte 4: came 0x01, allowed 0x00"},
        WrongByte{13, 0x32, "offset 13: readiness query, fixed byte 5: came 0x32, allowed 0x33"},
        WrongByte{15, 0x3D,
                  "offset 14: readiness query, sheet width: came 1853, allowed 1550 or 1852"},
        WrongByte{17, 0xD1,
                  "offset 16: readiness query, sheet height: came 1233, allowed 631, 1232, 1833 or "
                  "2434 for a width of 1852"},
        WrongByte{19, 7, "offset 19: readiness query, zero fill byte 11: came 0x07, allowed 0x00"},
        WrongByte{22, 2, "offset 22: readiness query, margin cut-off: came 2, allowed 0 or 1"},
        WrongByte{23, 2, "offset 23: readiness query, two-up mode: came 2, allowed 0 or 1"},
        WrongByte{24, 1, "offset 24: readiness query, two-up split: came 256, allowed 0 or 616"},
        WrongByte{26, 3, "offset 26: readiness query, two-up option: came 3, allowed 0 or 1"},
        WrongByte{56, 1, "offset 56: readiness query, finish: came 1, allowed 0 or 3"},
        WrongByte{57, 1, "offset 57: readiness query, print mode: came 1, allowed 0 or 5"},
        WrongByte{58, 0, "offset 58: readiness query, fixed byte 50: came 0x00, allowed 0x01"},
        WrongByte{66, 3, "offset 66: readiness query, fixed byte 58: came 0x03, allowed 0x02"},
        WrongByte{88, 0, "offset 88: readiness query, fixed byte 80: came 0x00, allowed 0x01"},
        WrongByte{91, 9, "offset 91: readiness query, zero fill byte 83: came 0x09, allowed 0x00"},
        WrongByte{519, 1,
                  "offset 519: readiness query, zero fill byte 511: came 0x01, allowed 0x00"}));

INSTANTIATE_TEST_SUITE_P(
    JobHeader, FieldsOfOneCommand,
    testing::Values(
        WrongByte{524, 1, "offset 524: job header, fixed byte 4: came 0x01, allowed 0x00"},
        WrongByte{525, 0x34, "offset 525: job header, fixed byte 5: came 0x34, allowed 0x33"},
        WrongByte{531, 1, "offset 531: job header, zero fill byte 11: came 0x01, allowed 0x00"},
        WrongByte{533, 1, "offset 533: job header, zero fill byte 13: came 0x01, allowed 0x00"},
        WrongByte{534, 9, "offset 534: job header, margin cut-off: came 9, allowed 0 or 1"},
        WrongByte{539, 1, "offset 539: job header, zero fill byte 19: came 0x01, allowed 0x00"},
        WrongByte{567, 1, "offset 567: job header, zero fill byte 47: came 0x01, allowed 0x00"},
        WrongByte{568, 2, "offset 568: job header, finish: came 2, allowed 0 or 3"},
        WrongByte{569, 4, "offset 569: job header, print mode: came 4, allowed 0 or 5"},
        WrongByte{570, 2, "offset 570: job header, fixed byte 50: came 0x02, allowed 0x01"},
        WrongByte{571, 1, "offset 571: job header, zero fill byte 51: came 0x01, allowed 0x00"},
        WrongByte{572, 1, "offset 572: job header, zero fill byte 52: came 0x01, allowed 0x00"},
        WrongByte{577, 1, "offset 577: job header, zero fill byte 57: came 0x01, allowed 0x00"},
        WrongByte{578, 0, "offset 578: job header, fixed byte 58: came 0x00, allowed 0x02"},
        WrongByte{579, 1, "offset 579: job header, zero fill byte 59: came 0x01, allowed 0x00"},
        WrongByte{599, 1, "offset 599: job header, zero fill byte 79: came 0x01, allowed 0x00"},
        WrongByte{600, 2, "offset 600: job header, fixed byte 80: came 0x02, allowed 0x01"},
        WrongByte{603, 1, "offset 603: job header, zero fill byte 83: came 0x01, allowed 0x00"},
        WrongByte{1031, 1,
                  "offset 1031: job header, zero fill byte 511: came 0x01, allowed 0x00"}));

INSTANTIATE_TEST_SUITE_P(
    JobHeaderUnlikeTheQuery, FieldsOfOneCommand,
    testing::Values(
        WrongByte{530, 6,
                  "offset 530: job header, wait byte: came 0x06, allowed 0x05 as in the last "
                  "readiness query"},
        WrongByte{534, 1,
                  "offset 534: job header, margin cut-off: came 0x01, allowed 0x00 as in the last "
                  "readiness query"},
        WrongByte{569, 5,
                  "offset 569: job header, print mode: came 0x05, allowed 0x00 as in the last "
                  "readiness query"},
        WrongByte{601, 0,
                  "offset 601: job header, RGB rate: came 0x00, allowed 0x2A as in the last "
                  "readiness query"},
        WrongByte{602, 0,
                  "offset 602: job header, OP rate: came 0x00, allowed 0x64 as in the last "
                  "readiness query"}));

INSTANTIATE_TEST_SUITE_P(
    TwoUpFieldsThatDisagree, FieldsOfOneCommand,
    testing::Values(WrongByte{535, 1,
                              "offset 535: job header, two-up mode: came 1, allowed 0, as the "
                              "other two-up fields say"},
                    WrongByte{538, 1,
                              "offset 538: job header, two-up option: came 1, allowed 0, as the "
                              "other two-up fields say"}));

INSTANTIATE_TEST_SUITE_P(
    ImageHeader, FieldsOfOneCommand,
    testing::Values(
        WrongByte{1035, 2, "offset 1035: image header, flag: came 0x02, allowed 0x01"},
        WrongByte{1036, 1, "offset 1036: image header, fixed byte 4: came 0x01, allowed 0x00"},
        WrongByte{1037, 8, "offset 1037: image header, fixed byte 5: came 0x08, allowed 0x09"},
        WrongByte{1039, 84,
                  "offset 1038: image header, image left: came 84, allowed 0 on a sheet of 1852 x "
                  "1232"},
        WrongByte{1041, 74,
                  "offset 1040: image header, image top: came 74, allowed 0 on a sheet of 1852 x "
                  "1232"},
        WrongByte{1042, 0x06,
                  "offset 1042: image header, image width: came 1596, allowed 1852 on a sheet of "
                  "1852 x 1232"},
        WrongByte{1045, 0xD1,
                  "offset 1044: image header, image height: came 1233, allowed 1232 on a sheet of "
                  "1852 x 1232"},
        WrongByte{1046, 1, "offset 1046: image header, zero fill byte 14: came 0x01, allowed 0x00"},
        WrongByte{1051, 1, "offset 1051: image header, zero fill byte 19: came 0x01, allowed 0x00"},
        WrongByte{1053, 1,
                  "offset 1052: image header, matte width: came 1, allowed 0 without the matte "
                  "finish"},
        WrongByte{1054, 1,
                  "offset 1054: image header, matte height: came 256, allowed 0 without the matte "
                  "finish"},
        WrongByte{1056, 1, "offset 1056: image header, zero fill byte 24: came 0x01, allowed 0x00"},
        WrongByte{1063, 1, "offset 1063: image header, zero fill byte 31: came 0x01, allowed 0x00"},
        WrongByte{1064, 0, "offset 1064: image header, year: came 234, allowed 1000 to 9999"},
        WrongByte{1064, 0x28, "offset 1064: image header, year: came 10474, allowed 1000 to 9999"},
        WrongByte{1066, 0, "offset 1066: image header, month: came 0, allowed 1 to 12"},
        WrongByte{1066, 13, "offset 1066: image header, month: came 13, allowed 1 to 12"},
        WrongByte{1067, 0, "offset 1067: image header, day: came 0, allowed 1 to 31"},
        WrongByte{1067, 32, "offset 1067: image header, day: came 32, allowed 1 to 31"},
        WrongByte{1068, 24, "offset 1068: image header, hour: came 24, allowed 0 to 23"},
        WrongByte{1069, 60, "offset 1069: image header, minute: came 60, allowed 0 to 59"},
        WrongByte{1070, 60, "offset 1070: image header, second: came 60, allowed 0 to 59"},
        WrongByte{1071, 1, "offset 1071: image header, zero fill byte 39: came 0x01, allowed 0x00"},
        WrongByte{1543, 1,
                  "offset 1543: image header, zero fill byte 511: came 0x01, allowed 0x00"}));

TEST(Fields, OfAGoodStreamGiveNoError) {
  EXPECT_THAT(errors_open(stream::headers(stream::paper_10x15(), Finish::Gloss)), IsEmpty());
  EXPECT_THAT(errors_open(stream::headers(stream::paper_10x15(), Finish::Matte)), IsEmpty());
}

TEST(Fields, AreCheckedInEveryByteOfTheHeaders) {
  const Bytes good = stream::headers(stream::paper_10x15(), Finish::Gloss);
  constexpr std::size_t kYearLowByte = 1065;  // any value is a year
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
    Bytes bytes = stream::headers(stream::paper_10x15(), Finish::Gloss);
    for (const std::size_t block : {8U, 520U}) {
      bytes.at(block + 10) = value;  // wait byte
      bytes.at(block + 81) = value;  // RGB rate
      bytes.at(block + 82) = value;  // OP rate
    }
    EXPECT_THAT(errors_open(bytes), IsEmpty());
  }
}

TEST(Fields, TakeTheFastModeAndTheMarginCutOff) {
  Bytes bytes = stream::headers(stream::paper_10x15(), Finish::Gloss);
  for (const std::size_t block : {8U, 520U}) {
    bytes.at(block + 14) = 1;
    bytes.at(block + 49) = 5;
  }
  EXPECT_THAT(errors_open(bytes), IsEmpty());
}

TEST(Fields, OfTheTwoUpLayoutMustStandTogether) {
  const Bytes good = stream::headers(stream::paper_5x15x2(), Finish::Gloss);
  EXPECT_THAT(errors_open(with(good, 535, 0)),
              ElementsAre("offset 535: job header, two-up mode: came 0, allowed 1, as the other "
                          "two-up fields say"));
  EXPECT_THAT(errors_open(with(with(good, 536, 0), 537, 0)),
              ElementsAre("offset 536: job header, two-up split: came 0, allowed 616, as the other "
                          "two-up fields say"));
  EXPECT_THAT(errors_open(with(good, 538, 0)),
              ElementsAre("offset 538: job header, two-up option: came 0, allowed 1, as the other "
                          "two-up fields say"));
}

TEST(Fields, OfTheTwoUpLayoutBelongToTheSheetOf1852By1232Only) {
  Bytes query = stream::readiness_query(stream::paper_5x15(), Finish::Gloss);
  query.at(15) = 1;
  query.at(16) = 0x02;
  query.at(17) = 0x68;
  query.at(18) = 1;
  EXPECT_THAT(
      errors_open(stream::join({stream::status_request(), query})),
      ElementsAre(
          "offset 23: readiness query, two-up mode: came 1, allowed 0 on a sheet of 1852 x 631",
          "offset 24: readiness query, two-up split: came 616, allowed 0 on a sheet of 1852 x 631",
          "offset 26: readiness query, two-up option: came 1, allowed 0 on a sheet of 1852 x 631"));
}

TEST(Fields, GiveOneErrorForARunOfBytesThatShouldBeZero) {
  Bytes bytes = stream::headers(stream::paper_10x15(), Finish::Gloss);
  bytes.at(1080) = 0x11;
  bytes.at(1081) = 0x22;
  bytes.at(1100) = 0x33;
  EXPECT_THAT(errors_open(bytes),
              ElementsAre("offset 1080: image header, zero fill byte 48: came 0x11 and 2 more that "
                          "are not zero, allowed 0x00"));
}

TEST(Fields, OfThePrintOutAreChecked) {
  EXPECT_THAT(
      errors_of(stream::join({stream::status_request(), {0x1B, 0x42, 0x51, 0x31, 0x01, 0x05}})),
      ElementsAre("offset 12: print-out, fixed byte 4: came 0x01, allowed 0x00"));
}

TEST(Fields, ArriveInTheRecords) {
  EventRecording recording;
  decode_open(stream::headers(stream::paper_5x15x2(), Finish::Matte), recording);
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
