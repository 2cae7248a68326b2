// SPDX-License-Identifier: Apache-2.0
//
// Image and matte data: rows, samples and their range.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/simulator/event_recording.h"
#include "tests/unit/simulator/stream_bytes.h"

namespace {

using stream::Bytes;
using stream::Finish;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t kPixels = 1544;  // offset of the image data
constexpr std::size_t kRow = 11112;    // bytes of a row of 1852 pixels

Bytes white_sheet() {
  return stream::sheet(stream::paper_5x15(), Finish::Gloss, {0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F});
}

TEST(Planes, ReadSamplesLowByteFirst) {
  EventRecording recording;
  decode(stream::sheet(stream::paper_5x15(), Finish::Gloss, {0x34, 0x12, 0x00, 0x20, 0x01, 0x00}),
         recording);
  ASSERT_EQ(recording.samples.size(), 3505836U);
  EXPECT_EQ(recording.samples[0], 0x1234);
  EXPECT_EQ(recording.samples[1], 0x2000);
  EXPECT_EQ(recording.samples[2], 0x0001);
  EXPECT_EQ(recording.samples[3505833], 0x1234);
}

TEST(Planes, TakeTheWhitestSample) {
  EXPECT_THAT(errors_of(white_sheet()), IsEmpty());
}

TEST(Planes, NameASampleAbove14Bits) {
  Bytes bytes = white_sheet();
  bytes.at(kPixels + 2 * kRow + 30 + 2) = 0x00;  // row 2, column 5, sample 1
  bytes.at(kPixels + 2 * kRow + 30 + 3) = 0x40;
  EXPECT_THAT(errors_of(bytes), ElementsAre("offset 23800: image data, row 2, column 5, sample 1: "
                                            "came 0x4000, allowed 0x0000 to 0x3FFF"));
}

TEST(Planes, CountFurtherSamplesAbove14Bits) {
  Bytes bytes = white_sheet();
  bytes.at(kPixels + 1) = 0x80;
  bytes.at(kPixels + 3) = 0x40;
  bytes.at(kPixels + kRow + 1) = 0xFF;
  EventRecording recording;
  decode(bytes, recording);
  EXPECT_THAT(recording.errors, ElementsAre("offset 1544: image data, row 0, column 0, sample 0: "
                                            "came 0x80FF, allowed 0x0000 to 0x3FFF"));
  EXPECT_EQ(recording.events.back(),
            "sheet end at 7013216, 631 image rows, 0 matte rows, 3 bad samples");
}

TEST(Planes, NameTheFirstBadSampleOfEachSheet) {
  Bytes bad = white_sheet();
  bad.at(kPixels + 1) = 0x80;
  EXPECT_THAT(errors_of(stream::join({bad, bad})),
              ElementsAre("offset 1544: image data, row 0, column 0, sample 0: came 0x80FF, "
                          "allowed 0x0000 to 0x3FFF",
                          "offset 7014760: image data, row 0, column 0, sample 0: came 0x80FF, "
                          "allowed 0x0000 to 0x3FFF"));
}

TEST(Planes, TakeAnyMatteByte) {
  Bytes bytes = stream::sheet(stream::paper_5x15(), Finish::Matte,
                              {0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F}, 0x7F);
  bytes.at(7013216) = 0x01;
  bytes.at(8204051) = 0xFE;
  EventRecording recording;
  decode(bytes, recording);
  EXPECT_THAT(recording.errors, IsEmpty());
  ASSERT_EQ(recording.matte.size(), 1190836U);
  EXPECT_EQ(recording.matte.front(), 0x01);
  EXPECT_EQ(recording.matte[1], 0x7F);
  EXPECT_EQ(recording.matte.back(), 0xFE);
  EXPECT_EQ(recording.events.back(),
            "sheet end at 8204052, 631 image rows, 643 matte rows, 0 bad samples");
}

}  // namespace
