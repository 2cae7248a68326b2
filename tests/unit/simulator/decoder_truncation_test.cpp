// SPDX-License-Identifier: Apache-2.0
//
// Streams that end too early: what is incomplete, and by how much.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/unit/simulator/event_recording.h"
#include "tests/unit/simulator/stream_bytes.h"

namespace {

using stream::Bytes;
using stream::Finish;
using testing::ElementsAre;
using testing::IsEmpty;

// A 5x15 matte sheet and the print-out: status request 0, query 8, job header 520, image header
// 1032, image data 1544, matte data 7013216, print-out 8204052, end 8204058.
std::vector<std::string> errors_of_first(std::size_t length) {
  Bytes bytes = stream::join(
      {stream::sheet(stream::paper_5x15(), Finish::Matte, {0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F}),
       stream::print_out()});
  bytes.resize(length);
  return errors_of(bytes);
}

TEST(Truncation, AtTheEndOfACommandThatMayEndAStreamIsNone) {
  EXPECT_THAT(errors_of_first(0), IsEmpty());
  EXPECT_THAT(errors_of_first(8), IsEmpty());
  EXPECT_THAT(errors_of_first(520), IsEmpty());
  EXPECT_THAT(errors_of_first(8204052), IsEmpty());
  EXPECT_THAT(errors_of_first(8204058), IsEmpty());
}

TEST(Truncation, WithinACommandCodeIsTold) {
  EXPECT_THAT(errors_of_first(1), ElementsAre("offset 1: stream, command code: came the end after "
                                              "1 of 4 bytes, allowed 4 bytes, 3 more"));
  EXPECT_THAT(errors_of_first(11), ElementsAre("offset 11: stream, command code: came the end "
                                               "after 3 of 4 bytes, allowed 4 bytes, 1 more"));
}

TEST(Truncation, WithinTheStatusRequestIsTold) {
  EXPECT_THAT(errors_of_first(7), ElementsAre("offset 7: status request, length: came the end "
                                              "after 7 of 8 bytes, allowed 8 bytes, 1 more"));
}

TEST(Truncation, WithinTheReadinessQueryIsTold) {
  EXPECT_THAT(errors_of_first(12),
              ElementsAre("offset 12: readiness query, length: came the end after 4 of 512 bytes, "
                          "allowed 512 bytes, 508 more"));
  EXPECT_THAT(errors_of_first(519),
              ElementsAre("offset 519: readiness query, length: came the end after 511 of 512 "
                          "bytes, allowed 512 bytes, 1 more"));
}

TEST(Truncation, WithinTheJobHeaderIsTold) {
  EXPECT_THAT(errors_of_first(1031),
              ElementsAre("offset 1031: job header, length: came the end after 511 of 512 bytes, "
                          "allowed 512 bytes, 1 more"));
}

TEST(Truncation, BehindTheJobHeaderLacksTheImageHeader) {
  EXPECT_THAT(errors_of_first(1032),
              ElementsAre("offset 1032: image header, length: came the end after 0 of 512 bytes, "
                          "allowed 512 bytes, 512 more"));
}

TEST(Truncation, WithinTheImageHeaderIsTold) {
  EXPECT_THAT(errors_of_first(1036),
              ElementsAre("offset 1036: image header, length: came the end after 4 of 512 bytes, "
                          "allowed 512 bytes, 508 more"));
}

TEST(Truncation, OfTheImageDataIsTold) {
  EXPECT_THAT(errors_of_first(1544),
              ElementsAre("offset 1544: image data, length: came the end after 0 of 7011672 bytes, "
                          "allowed 7011672 bytes, 7011672 more"));
  EXPECT_THAT(errors_of_first(7013215),
              ElementsAre("offset 7013215: image data, length: came the end after 7011671 of "
                          "7011672 bytes, allowed 7011672 bytes, 1 more"));
}

TEST(Truncation, OfTheMatteDataIsTold) {
  EXPECT_THAT(errors_of_first(7013216),
              ElementsAre("offset 7013216: matte data, length: came the end after 0 of 1190836 "
                          "bytes, allowed 1190836 bytes, 1190836 more"));
  EXPECT_THAT(errors_of_first(8204051),
              ElementsAre("offset 8204051: matte data, length: came the end after 1190835 of "
                          "1190836 bytes, allowed 1190836 bytes, 1 more"));
}

TEST(Truncation, WithinThePrintOutIsTold) {
  EXPECT_THAT(errors_of_first(8204057),
              ElementsAre("offset 8204057: print-out, length: came the end after 5 of 6 bytes, "
                          "allowed 6 bytes, 1 more"));
}

TEST(Truncation, OfASheetTellsHowManyRowsCame) {
  Bytes bytes =
      stream::sheet(stream::paper_5x15(), Finish::Gloss, {0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F});
  bytes.resize(1544 + 10 * 11112 + 100);
  EventRecording recording;
  decode(bytes, recording);
  EXPECT_EQ(recording.events.back(), "sheet cut, 10 image rows, 0 matte rows");
}

}  // namespace
