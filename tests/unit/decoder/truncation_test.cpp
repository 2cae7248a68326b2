// SPDX-License-Identifier: Apache-2.0
//
// Streams that end too early: what is incomplete, and by how much.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/unit/decoder/event_recording.h"
#include "tests/unit/stream_bytes.h"

namespace {

using stream::Bytes;
using stream::Finish;
using testing::ElementsAre;
using testing::IsEmpty;

// A 5x15 matte sheet and the print-out: status requests 0 and 8, query 16, job header 528,
// image header 1040, image data 1552, matte data 7013224, print-out 8204060, end 8204066.
std::vector<std::string> errors_of_first(std::size_t length) {
  Bytes bytes = stream::join({stream::first_sheet(stream::paper_5x15(), Finish::Matte,
                                                  {0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F}),
                              stream::print_out()});
  bytes.resize(length);
  return errors_of(bytes);
}

TEST(Truncation, AtTheEndOfACommandThatMayEndAStreamIsNone) {
  EXPECT_THAT(errors_of_first(0), IsEmpty());
  EXPECT_THAT(errors_of_first(8), IsEmpty());
  EXPECT_THAT(errors_of_first(16), IsEmpty());
  EXPECT_THAT(errors_of_first(528), IsEmpty());
  EXPECT_THAT(errors_of_first(8204060), IsEmpty());
  EXPECT_THAT(errors_of_first(8204066), IsEmpty());
}

TEST(Truncation, WithinACommandCodeIsTold) {
  EXPECT_THAT(errors_of_first(1), ElementsAre("offset 1: stream, command code: came the end after "
                                              "1 of 4 bytes, allowed 4 bytes, 3 more"));
  EXPECT_THAT(errors_of_first(19), ElementsAre("offset 19: stream, command code: came the end "
                                               "after 3 of 4 bytes, allowed 4 bytes, 1 more"));
}

TEST(Truncation, WithinTheStatusRequestIsTold) {
  EXPECT_THAT(errors_of_first(7), ElementsAre("offset 7: status request, length: came the end "
                                              "after 7 of 8 bytes, allowed 8 bytes, 1 more"));
}

TEST(Truncation, WithinTheReadinessQueryIsTold) {
  EXPECT_THAT(errors_of_first(20),
              ElementsAre("offset 20: readiness query, length: came the end after 4 of 512 bytes, "
                          "allowed 512 bytes, 508 more"));
  EXPECT_THAT(errors_of_first(527),
              ElementsAre("offset 527: readiness query, length: came the end after 511 of 512 "
                          "bytes, allowed 512 bytes, 1 more"));
}

TEST(Truncation, WithinTheJobHeaderIsTold) {
  EXPECT_THAT(errors_of_first(1039),
              ElementsAre("offset 1039: job header, length: came the end after 511 of 512 bytes, "
                          "allowed 512 bytes, 1 more"));
}

TEST(Truncation, BehindTheJobHeaderLacksTheImageHeader) {
  EXPECT_THAT(errors_of_first(1040),
              ElementsAre("offset 1040: image header, length: came the end after 0 of 512 bytes, "
                          "allowed 512 bytes, 512 more"));
}

TEST(Truncation, WithinTheImageHeaderIsTold) {
  EXPECT_THAT(errors_of_first(1044),
              ElementsAre("offset 1044: image header, length: came the end after 4 of 512 bytes, "
                          "allowed 512 bytes, 508 more"));
}

TEST(Truncation, OfTheImageDataIsTold) {
  EXPECT_THAT(errors_of_first(1552),
              ElementsAre("offset 1552: image data, length: came the end after 0 of 7011672 bytes, "
                          "allowed 7011672 bytes, 7011672 more"));
  EXPECT_THAT(errors_of_first(7013223),
              ElementsAre("offset 7013223: image data, length: came the end after 7011671 of "
                          "7011672 bytes, allowed 7011672 bytes, 1 more"));
}

TEST(Truncation, OfTheMatteDataIsTold) {
  EXPECT_THAT(errors_of_first(7013224),
              ElementsAre("offset 7013224: matte data, length: came the end after 0 of 1190836 "
                          "bytes, allowed 1190836 bytes, 1190836 more"));
  EXPECT_THAT(errors_of_first(8204059),
              ElementsAre("offset 8204059: matte data, length: came the end after 1190835 of "
                          "1190836 bytes, allowed 1190836 bytes, 1 more"));
}

TEST(Truncation, WithinThePrintOutIsTold) {
  EXPECT_THAT(errors_of_first(8204065),
              ElementsAre("offset 8204065: print-out, length: came the end after 5 of 6 bytes, "
                          "allowed 6 bytes, 1 more"));
}

TEST(Truncation, OfASheetTellsHowManyRowsCame) {
  Bytes bytes = stream::first_sheet(stream::paper_5x15(), Finish::Gloss,
                                    {0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F});
  bytes.resize(1552 + 10 * 11112 + 100);
  EventRecording recording;
  decode(bytes, recording);
  EXPECT_EQ(recording.events.back(), "sheet cut, 10 image rows, 0 matte rows");
}

}  // namespace
