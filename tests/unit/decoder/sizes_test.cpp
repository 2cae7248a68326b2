// SPDX-License-Identifier: Apache-2.0
//
// The papers: each is taken in both finishes, and no other size is.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/unit/decoder/event_recording.h"
#include "tests/unit/stream_bytes.h"

namespace {

using stream::Bytes;
using stream::Finish;
using stream::Paper;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class EveryPaper : public testing::TestWithParam<Paper> {};

TEST_P(EveryPaper, PrintsInGloss) {
  const Bytes job = stream::join(
      {stream::first_sheet(GetParam(), Finish::Gloss, {0xFF, 0x3F, 0x00, 0x00, 0x34, 0x12}),
       stream::print_out()});
  EventRecording recording;
  decode(job, recording);
  EXPECT_THAT(recording.errors, IsEmpty());
  EXPECT_EQ(recording.samples.size(), GetParam().imageBytes / 2);
  EXPECT_EQ(recording.events.back(),
            "print-out at " + std::to_string(1552 + GetParam().imageBytes) + ", wait byte 5");
}

TEST_P(EveryPaper, PrintsInMatte) {
  const Bytes job = stream::join(
      {stream::first_sheet(GetParam(), Finish::Matte, {0xFF, 0x3F, 0x00, 0x00, 0x34, 0x12}, 0x80),
       stream::print_out()});
  EventRecording recording;
  decode(job, recording);
  EXPECT_THAT(recording.errors, IsEmpty());
  EXPECT_EQ(recording.samples.size(), GetParam().imageBytes / 2);
  EXPECT_EQ(recording.matte.size(), GetParam().matteBytes);
}

INSTANTIATE_TEST_SUITE_P(Papers, EveryPaper, testing::ValuesIn(stream::papers),
                         [](const auto& paper) { return std::string("P") + paper.param.name; });

Bytes with_image_numbers(const Paper& paper, const Bytes& leftTopWidthHeight) {
  Bytes bytes = stream::first_headers(paper, Finish::Gloss);
  for (std::size_t i = 0; i < leftTopWidthHeight.size(); ++i) {
    bytes.at(1046 + i) = leftTopWidthHeight[i];
  }
  return bytes;
}

TEST(Sizes, OfTheHalfImageAreNoSheetOfTheirOwn) {
  EXPECT_THAT(
      errors_open(with_image_numbers(stream::paper_5x15x2(), {0, 0, 0, 0, 0x07, 0x3C, 0x02, 0x68})),
      ElementsAre("offset 1052: image header, image height: came 616, allowed 1232 on a "
                  "sheet of 1852 x 1232"));
}

TEST(Sizes, LeaveNoWhiteBorderOnASheetWithoutOne) {
  EXPECT_THAT(
      errors_open(with_image_numbers(stream::paper_5x15(), {0, 84, 0, 74, 0x06, 0x94, 0x01, 0xE3})),
      ElementsAre("offset 1046: image header, image left: came 84, allowed 0 on a sheet of "
                  "1852 x 631",
                  "offset 1048: image header, image top: came 74, allowed 0 on a sheet of "
                  "1852 x 631",
                  "offset 1050: image header, image width: came 1684, allowed 1852 on a "
                  "sheet of 1852 x 631",
                  "offset 1052: image header, image height: came 483, allowed 631 on a "
                  "sheet of 1852 x 631"));
}

TEST(Sizes, LeaveNoWhiteBorderAroundTwoPrints) {
  EXPECT_THAT(errors_open(with_image_numbers(stream::paper_5x15x2(),
                                             {0, 84, 0, 74, 0x06, 0x94, 0x04, 0x3C})),
              Contains("offset 1046: image header, image left: came 84, allowed 0 on a sheet of "
                       "1852 x 1232"));
}

TEST(Sizes, NameTheWhiteBorderWhereTheImageIsNearestToIt) {
  EXPECT_THAT(errors_open(with_image_numbers(stream::paper_10x15_wb(),
                                             {0, 83, 0, 74, 0x06, 0x94, 0x04, 0x3C})),
              ElementsAre("offset 1046: image header, image left: came 83, allowed 84 with a white "
                          "border on a sheet of 1852 x 1232"));
}

TEST(Sizes, OfTheMattePlaneAreTheSheetAndTwelveRows) {
  Bytes bytes = stream::first_headers(stream::paper_10x15_wb(), Finish::Matte);
  bytes.at(1060 + 1) = 0x3B;
  bytes.at(1062 + 1) = 0xD0;
  EXPECT_THAT(errors_open(bytes),
              ElementsAre("offset 1060: image header, matte width: came 1851, allowed 1852 for "
                          "matte on a sheet of 1852 x 1232",
                          "offset 1062: image header, matte height: came 1232, allowed 1244 for "
                          "matte on a sheet of 1852 x 1232"));
}

TEST(Sizes, OfAMattePlaneThatAreWrongBeginNoSheet) {
  Bytes bytes = stream::first_headers(stream::paper_10x15(), Finish::Matte);
  bytes.at(1060) = 0xFF;
  EventRecording recording;
  decode(bytes, recording);
  EXPECT_THAT(recording.errors,
              ElementsAre("offset 1060: image header, matte width: came 65340, allowed 1852 for "
                          "matte on a sheet of 1852 x 1232"));
  EXPECT_THAT(recording.events, Not(Contains(StartsWith("sheet "))));
}

TEST(Sizes, BeyondAllPapersBeginNoSheet) {
  Bytes bytes = stream::first_headers(stream::paper_10x15(), Finish::Gloss);
  for (std::size_t i = 1046; i < 1054; ++i) {
    bytes.at(i) = 0xFF;
  }
  EventRecording recording;
  decode(bytes, recording);
  EXPECT_THAT(recording.errors, Contains("offset 1050: image header, image width: came 65535, "
                                         "allowed 1852 on a sheet of 1852 x 1232"));
  EXPECT_THAT(recording.events, Not(Contains(StartsWith("sheet "))));
}

TEST(Sizes, BeyondAllPapersInTheJobHeaderBeginNoSheet) {
  Bytes bytes = stream::first_headers(stream::paper_10x15(), Finish::Gloss);
  for (const std::size_t block : {16U, 528U}) {
    for (std::size_t i = 6; i < 10; ++i) {
      bytes.at(block + i) = 0xFF;
    }
  }
  EventRecording recording;
  decode(bytes, recording);
  EXPECT_THAT(recording.errors,
              ElementsAre("offset 22: readiness query, sheet width: came 65535, allowed 1550 or "
                          "1852",
                          "offset 534: job header, sheet width: came 65535, allowed 1550 or 1852"));
  EXPECT_THAT(recording.events, Not(Contains(StartsWith("sheet "))));
}

TEST(Sizes, MixedOfTwoPapersAreNone) {
  Bytes query = stream::readiness_query(stream::paper_10x15(), Finish::Gloss);
  query.at(6) = 0x06;
  query.at(7) = 0x0E;
  EXPECT_THAT(
      errors_open(stream::join({stream::status_request(), stream::status_request(), query})),
      ElementsAre("offset 24: readiness query, sheet height: came 1232, allowed 1082, 1533 "
                  "or 2134 for a width of 1550"));
}

}  // namespace
