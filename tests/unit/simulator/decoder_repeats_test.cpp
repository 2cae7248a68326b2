// SPDX-License-Identifier: Apache-2.0
//
// What one command of the stream must repeat of another, and what it need not.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/simulator/event_recording.h"
#include "tests/unit/simulator/stream_bytes.h"

namespace {

using stream::Bytes;
using stream::Finish;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Fields, OfARepeatedQueryMustBeThoseOfTheFirst) {
  Bytes second = stream::readiness_query(stream::paper_10x15(), Finish::Gloss);
  second.at(82) = 0x63;
  EXPECT_THAT(errors_open(stream::join(
                  {stream::status_request(),
                   stream::readiness_query(stream::paper_10x15(), Finish::Gloss), second})),
              ElementsAre("offset 602: readiness query, OP rate: came 0x63, allowed 0x64 as in the "
                          "last readiness query"));
}

TEST(Fields, OfAQueryBehindAStatusRequestMayBeOthers) {
  EXPECT_THAT(
      errors_open(stream::join({stream::status_request(),
                                stream::readiness_query(stream::paper_10x15(), Finish::Gloss),
                                stream::status_request(),
                                stream::readiness_query(stream::paper_5x15(), Finish::Matte)})),
      IsEmpty());
}

TEST(WaitByte, OfThePrintOutIsThatOfTheJobHeader) {
  const Bytes sheet = stream::sheet(stream::paper_5x15(), Finish::Gloss, {});
  EXPECT_THAT(errors_of(stream::join({sheet, {0x1B, 0x42, 0x51, 0x31, 0x00, 0xFF}})),
              ElementsAre("offset 7013221: print-out, wait byte: came 255, allowed 5 as in the "
                          "last settings block"));
}

TEST(WaitByte, OfThePrintOutIsThatOfAQueryThatWasRefused) {
  EXPECT_THAT(errors_of(stream::join({stream::status_request(),
                                      stream::readiness_query(stream::paper_5x15(), Finish::Gloss),
                                      {0x1B, 0x42, 0x51, 0x31, 0x00, 0x06}})),
              ElementsAre("offset 525: print-out, wait byte: came 6, allowed 5 as in the last "
                          "settings block"));
}

TEST(WaitByte, OfAJobWithoutSheetsMayBeAny) {
  EXPECT_THAT(
      errors_of(stream::join({stream::status_request(), {0x1B, 0x42, 0x51, 0x31, 0x00, 0xFF}})),
      IsEmpty());
}

TEST(WaitByte, IsEachFilesOwn) {
  const Bytes sheet = stream::sheet(stream::paper_5x15(), Finish::Gloss, {});
  EXPECT_THAT(errors_of(stream::join({sheet,
                                      stream::print_out(),
                                      stream::status_request(),
                                      {0x1B, 0x42, 0x51, 0x31, 0x00, 0xFF}})),
              IsEmpty());
}

}  // namespace
