// SPDX-License-Identifier: Apache-2.0
//
// Image and matte data: rows, samples and their range.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/decoder/event_recording.h"
#include "tests/unit/stream_bytes.h"

namespace {

using stream::Bytes;
using stream::Finish;
using testing::IsEmpty;

constexpr std::size_t kPixels = 1552;  // offset of the image data
constexpr std::size_t kRow = 11112;    // bytes of a row of 1852 pixels

Bytes white_sheet() {
  return stream::first_sheet(stream::paper_5x15(), Finish::Gloss,
                             {0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F});
}

TEST(Planes, ReadSamplesLowByteFirst) {
  EventRecording recording;
  decode(stream::first_sheet(stream::paper_5x15(), Finish::Gloss,
                             {0x34, 0x12, 0x00, 0x20, 0x01, 0x00}),
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

// What a sample means, and which are white, is the conversion library's affair.
TEST(Planes, TakeSamplesAbove14BitsAndCountThemInEachSheet) {
  Bytes bytes = white_sheet();
  bytes.at(kPixels + 1) = 0x80;
  bytes.at(kPixels + 3) = 0x40;
  bytes.at(kPixels + kRow + 1) = 0xFF;
  EventRecording recording;
  decode(stream::join({bytes, bytes}), recording);
  EXPECT_THAT(recording.errors, IsEmpty());
  EXPECT_EQ(recording.samples[0], 0x80FF);
  EXPECT_EQ(recording.events[6],
            "sheet end at 7013224, 631 image rows, 0 matte rows, 3 bad samples");
  EXPECT_EQ(recording.events.back(),
            "sheet end at 14026448, 631 image rows, 0 matte rows, 3 bad samples");
}

TEST(Planes, TakeAnyMatteByte) {
  Bytes bytes = stream::first_sheet(stream::paper_5x15(), Finish::Matte,
                                    {0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F}, 0x7F);
  bytes.at(7013224) = 0x01;
  bytes.at(8204059) = 0xFE;
  EventRecording recording;
  decode(bytes, recording);
  EXPECT_THAT(recording.errors, IsEmpty());
  ASSERT_EQ(recording.matte.size(), 1190836U);
  EXPECT_EQ(recording.matte.front(), 0x01);
  EXPECT_EQ(recording.matte[1], 0x7F);
  EXPECT_EQ(recording.matte.back(), 0xFE);
  EXPECT_EQ(recording.events.back(),
            "sheet end at 8204060, 631 image rows, 643 matte rows, 0 bad samples");
}

}  // namespace
