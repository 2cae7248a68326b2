// SPDX-License-Identifier: Apache-2.0
//
// Which command may follow which, whatever the printer answers; decoder_exchanges_test.cpp has the
// answers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/decoder/event_recording.h"
#include "tests/unit/stream_bytes.h"

namespace {

using stream::Bytes;
using stream::Finish;
using stream::join;
using testing::ElementsAre;
using testing::IsEmpty;

Bytes status() {
  return stream::status_request();
}
Bytes query() {
  return stream::readiness_query(stream::paper_5x15(), Finish::Gloss);
}
Bytes job() {
  return stream::job_header(stream::paper_5x15(), Finish::Gloss);
}
Bytes image() {
  return stream::image_header(stream::paper_5x15(), Finish::Gloss);
}
Bytes data() {
  return stream::pixels(stream::paper_5x15().imageBytes, {0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F});
}
Bytes end() {
  return stream::print_out();
}
Bytes sheet() {
  return join({status(), query(), job(), image(), data()});
}

TEST(Order, OfAWholeJobIsTold) {
  EventRecording recording;
  decode(join({status(), sheet(), end()}), recording);
  EXPECT_THAT(recording.events,
              ElementsAre("status request at 0", "status request at 8", "readiness query at 16",
                          "job header at 528", "image header at 1040", "sheet 1852 x 631",
                          "sheet end at 7013224, 631 image rows, 0 matte rows, 0 bad samples",
                          "print-out at 7013224, wait byte 5"));
}

TEST(Order, AllowsSeveralSheets) {
  EventRecording recording;
  decode(join({status(), sheet(), sheet(), sheet(), end()}), recording);
  EXPECT_THAT(recording.errors, IsEmpty());
  EXPECT_EQ(recording.events.back(), "print-out at 21039656, wait byte 5");
}

TEST(Order, AllowsAnEmptyConnection) {
  EXPECT_THAT(errors_of({}), IsEmpty());
}

TEST(Order, NeedsAStatusRequestFirst) {
  EXPECT_THAT(errors_open(query()),
              ElementsAre("offset 0: readiness query, order of commands: came readiness query at "
                          "the beginning, allowed status request"));
  EXPECT_THAT(errors_open(end()),
              ElementsAre("offset 0: print-out, order of commands: came print-out at the "
                          "beginning, allowed status request"));
}

TEST(Order, NeedsAQueryBeforeTheJobHeader) {
  EXPECT_THAT(
      errors_open(join({status(), job()})),
      ElementsAre("offset 8: job header, order of commands: came job header after the first "
                  "status request of a file, allowed status request or print-out"));
  EXPECT_THAT(errors_open(join({status(), status(), job()})),
              ElementsAre("offset 16: job header, order of commands: came job header after status "
                          "request, allowed status request, readiness query or print-out"));
}

TEST(Order, NeedsAJobHeaderBeforeTheImageHeader) {
  EXPECT_THAT(errors_open(join({status(), status(), query(), image()})),
              ElementsAre("offset 528: image header, order of commands: came image header after "
                          "readiness query, allowed status request, readiness query or job "
                          "header"));
}

TEST(Order, NeedsAnImageHeaderAfterTheJobHeader) {
  EXPECT_THAT(errors_open(join({status(), status(), query(), job(), status()})),
              ElementsAre("offset 1040: status request, order of commands: came status request "
                          "after job header, allowed image header"));
}

TEST(Order, NeedsAStatusRequestAfterThePrintOut) {
  EXPECT_THAT(errors_open(join({status(), end(), query()})),
              ElementsAre("offset 14: readiness query, order of commands: came readiness query "
                          "after print-out, allowed status request"));
  EXPECT_THAT(errors_open(join({status(), end(), end()})),
              ElementsAre("offset 14: print-out, order of commands: came print-out after "
                          "print-out, allowed status request"));
}

TEST(Order, LeavesNoByteBehindThePrintOut) {
  EXPECT_THAT(errors_of(join({status(), end(), {0x00}})),
              ElementsAre("offset 14: stream, command code: came 00, allowed 1B 47 44 30, 1B 47 44 "
                          "33, 1B 53 50 30, 1B 5A 54 01, 1B 42 51 31"));
}

TEST(Order, LeavesNoByteBehindASheet) {
  EXPECT_THAT(errors_of(join({status(), sheet(), {0xFF}, end()})),
              ElementsAre("offset 7013224: stream, command code: came FF, allowed 1B 47 44 30, 1B "
                          "47 44 33, 1B 53 50 30, 1B 5A 54 01, 1B 42 51 31"));
}

TEST(Order, LetsNoSecondJobHeaderFollowTheFirst) {
  EXPECT_THAT(errors_open(join({status(), status(), query(), job(), job()})),
              ElementsAre("offset 1040: job header, order of commands: came job header after job "
                          "header, allowed image header"));
}

TEST(Order, LetsNoSecondImageHeaderFollowASheet) {
  EXPECT_THAT(
      errors_of(join({status(), sheet(), image()})),
      ElementsAre("offset 7013224: image header, order of commands: came image header after "
                  "image header, allowed status request or print-out"));
}

TEST(Order, GoesOnFromACommandOutOfPlace) {
  EXPECT_THAT(errors_of(join({query(), job(), image(), data(), end()})),
              ElementsAre("offset 0: readiness query, order of commands: came readiness query at "
                          "the beginning, allowed status request"));
}

TEST(Order, ForgetsAJobHeaderThatIsNotUsed) {
  EventRecording recording;
  decode(join({status(), status(), query(), job(), status(), image(), data(), status(), end()}),
         recording);
  EXPECT_THAT(
      recording.events,
      ElementsAre("status request at 0", "status request at 8", "readiness query at 16",
                  "job header at 528",
                  "offset 1040: status request, order of commands: came status request after job "
                  "header, allowed image header",
                  "status request at 1040",
                  "offset 1048: image header, order of commands: came image header after status "
                  "request, allowed status request, readiness query or print-out",
                  "image header at 1048", "skipped 7011672 bytes from 1560",
                  "status request at 7013232", "print-out at 7013240, wait byte 5"));
}

}  // namespace
