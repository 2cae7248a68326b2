// SPDX-License-Identifier: Apache-2.0
//
// The pixels as they are sent: their order, the size of each write, the progress, and failures.
#include "protocol/plane_transfer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "job/job_state.h"
#include "tests/unit/bytes.h"
#include "tests/unit/capture.h"
#include "tests/unit/failing_allocator.h"
#include "tests/unit/single_writes.h"

using testing::ElementsAre;

namespace {

struct Outcome {
  bool result;
  std::string err;
};

Outcome SendImage(SingleWrites& out, const tagMVBandImageParams& band) {
  Capture err(stderr);
  const bool result = send_image_data(out.stream(), &band);
  return {result, err.Text()};
}

Outcome SendMatte(SingleWrites& out, const tagMVBandImageParams& band) {
  Capture err(stderr);
  const bool result = send_matte_data(out.stream(), &band);
  return {result, err.Text()};
}

/// A top-down band of `width` × `height` over the bytes.
tagMVBandImageParams Over(std::vector<unsigned char>& bytes, std::int64_t width,
                          std::int64_t height, std::int64_t bytes_a_pixel) {
  return {bytes.data(), -width * bytes_a_pixel, {0, 0, width, height}};
}

class PlaneTransfer : public testing::Test {
 protected:
  void SetUp() override { page = 7; }
  void TearDown() override { page = 0; }
};

using ImageTransfer = PlaneTransfer;
using MatteTransfer = PlaneTransfer;

}  // namespace

TEST_F(ImageTransfer, SendsEachSampleLowByteFirst) {
  std::vector<std::uint16_t> samples = {0x1234, 0x3FFF, 0x0001};
  const tagMVBandImageParams band = {
      reinterpret_cast<unsigned char*>(samples.data()), -6, {0, 0, 1, 1}};
  SingleWrites out;
  EXPECT_TRUE(SendImage(out, band).result);
  EXPECT_EQ(out.bytes(), Bytes({0x34, 0x12, 0xFF, 0x3F, 0x01, 0x00}));
}

TEST_F(ImageTransfer, SendsATopDownBandFromItsFirstLine) {
  std::vector<unsigned char> bits = {'t', 'o', 'p', 'r', 'o', 'w', 'b', 'o', 't', 't', 'o', 'm'};
  SingleWrites out;
  EXPECT_TRUE(SendImage(out, {bits.data(), -6, {3, 4, 4, 6}}).result);
  EXPECT_EQ(out.bytes(), "toprowbottom");
}

TEST_F(ImageTransfer, SendsABottomUpBandFromItsLastLine) {
  std::vector<unsigned char> bits = {'b', 'o', 't', 't', 'o', 'm', 't', 'o', 'p', 'r', 'o', 'w'};
  SingleWrites out;
  EXPECT_TRUE(SendImage(out, {bits.data(), 6, {3, 4, 4, 6}}).result);
  EXPECT_EQ(out.bytes(), "toprowbottom");
}

TEST_F(ImageTransfer, LeavesOutThePaddingOfALine) {
  std::vector<unsigned char> bits = {'t', 'o', 'p', 'r', 'o', 'w', '-', '-',
                                     'b', 'o', 't', 't', 'o', 'm', '-', '-'};
  SingleWrites out;
  EXPECT_TRUE(SendImage(out, {bits.data(), -8, {0, 0, 1, 2}}).result);
  EXPECT_EQ(out.bytes(), "toprowbottom");
}

TEST_F(ImageTransfer, ASmallBandIsOneWriteAndOneMessage) {
  std::vector<unsigned char> bits(12, 'x');
  SingleWrites out;
  const Outcome outcome = SendImage(out, Over(bits, 2, 1, 6));
  EXPECT_THAT(out.sizes(), ElementsAre(12U));
  EXPECT_EQ(outcome.err, "INFO: Printing page 7, 99% complete...\n");
}

TEST_F(ImageTransfer, AFullBufferThatEndsTheImageIsTheLastWrite) {
  std::vector<unsigned char> bits(196608, 'x');
  SingleWrites out;
  const Outcome outcome = SendImage(out, Over(bits, 512, 64, 6));
  EXPECT_TRUE(outcome.result);
  EXPECT_THAT(out.sizes(), ElementsAre(196608U));
  EXPECT_EQ(outcome.err, "INFO: Printing page 7, 99% complete...\n");
}

TEST_F(ImageTransfer, TheRestBehindAFullBufferIsAWriteOfItsOwn) {
  std::vector<unsigned char> bits(196608 + 6 * 512, 'x');
  SingleWrites out;
  const Outcome outcome = SendImage(out, Over(bits, 512, 65, 6));
  EXPECT_TRUE(outcome.result);
  EXPECT_THAT(out.sizes(), ElementsAre(196608U, 3072U));
  EXPECT_EQ(outcome.err,
            "INFO: Printing page 7, 98% complete...\n"
            "INFO: Printing page 7, 99% complete...\n");
}

TEST_F(ImageTransfer, ASheetOf10x15Takes70Writes) {
  std::vector<unsigned char> bits(std::size_t{1852} * 1232 * 6, 'x');
  SingleWrites out;
  const Outcome outcome = SendImage(out, Over(bits, 1852, 1232, 6));
  EXPECT_TRUE(outcome.result);
  std::vector<std::size_t> sizes(69, 196608);
  sizes.push_back(124032);
  EXPECT_EQ(out.sizes(), sizes);
  std::string messages;
  for (const int percent : {50, 51, 52, 52, 53, 54, 54, 55, 56, 57, 57, 58, 59, 60, 60, 61, 62, 62,
                            63, 64, 65, 65, 66, 67, 67, 68, 69, 70, 70, 71, 72, 72, 73, 74, 75, 75,
                            76, 77, 78, 78, 79, 80, 80, 81, 82, 82, 83, 84, 85, 85, 86, 87, 88, 88,
                            89, 90, 90, 91, 92, 93, 93, 94, 95, 95, 96, 97, 98, 98, 99, 99}) {
    messages += "INFO: Printing page 7, " + std::to_string(percent) + "% complete...\n";
  }
  EXPECT_EQ(outcome.err, messages);
}

TEST_F(ImageTransfer, BytesCrossTheBufferUnchanged) {
  // 70,000 pixels whose bytes count up with a period that divides neither pixel nor buffer.
  std::vector<unsigned char> bits(420000);
  for (std::size_t i = 0; i < bits.size(); ++i) {
    bits[i] = static_cast<unsigned char>(i % 251);
  }
  SingleWrites out;
  EXPECT_TRUE(SendImage(out, Over(bits, 700, 100, 6)).result);
  EXPECT_TRUE(out.bytes() == Bytes(bits.data(), bits.size()));
}

TEST_F(ImageTransfer, WithoutWidthOrHeightNothingIsSent) {
  std::vector<unsigned char> bits(60, 'x');
  for (const MV_TYPEDEF::tagRECT& rect :
       {MV_TYPEDEF::tagRECT{5, 0, 5, 9}, MV_TYPEDEF::tagRECT{0, 5, 9, 5},
        MV_TYPEDEF::tagRECT{9, 0, 0, 1}, MV_TYPEDEF::tagRECT{0, 1, 1, 0}}) {
    SingleWrites out;
    const Outcome outcome = SendImage(out, {bits.data(), -6, rect});
    EXPECT_TRUE(outcome.result);
    EXPECT_EQ(out.attempts(), 0U);
    EXPECT_EQ(outcome.err, "");
  }
}

TEST_F(ImageTransfer, StopsAtTheFirstWriteThatFails) {
  const long before = LiveArrays();
  std::vector<unsigned char> bits(589824, 'x');
  SingleWrites out(2);
  const Outcome outcome = SendImage(out, Over(bits, 512, 192, 6));
  EXPECT_FALSE(outcome.result);
  EXPECT_EQ(out.attempts(), 2U);
  EXPECT_EQ(outcome.err, "INFO: Printing page 7, 66% complete...\n");
  EXPECT_EQ(LiveArrays(), before);
}

TEST_F(ImageTransfer, ALastWriteThatFailsIsAFailureWithoutAMessage) {
  const long before = LiveArrays();
  std::vector<unsigned char> bits(60, 'x');
  SingleWrites out(1);
  const Outcome outcome = SendImage(out, Over(bits, 10, 1, 6));
  EXPECT_FALSE(outcome.result);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(LiveArrays(), before);
}

TEST_F(ImageTransfer, WithoutMemoryNothingIsSent) {
  std::vector<unsigned char> bits(60, 'x');
  SingleWrites out;
  const ArraysRefused refused(0);
  const Outcome outcome = SendImage(out, Over(bits, 10, 1, 6));
  EXPECT_FALSE(outcome.result);
  EXPECT_EQ(out.attempts(), 0U);
  EXPECT_EQ(outcome.err, "");
}

TEST_F(ImageTransfer, GivesItsBufferBack) {
  const long before = LiveArrays();
  std::vector<unsigned char> bits(60, 'x');
  SingleWrites out;
  EXPECT_TRUE(SendImage(out, Over(bits, 10, 1, 6)).result);
  EXPECT_EQ(LiveArrays(), before);
  EXPECT_EQ(LastArraySize(), 196608U);
}

TEST_F(ImageTransfer, LeavesTheFlushToItsCaller) {
  Capture out(stdout);
  Capture err(stderr);
  std::vector<unsigned char> bits(60, 'x');
  const tagMVBandImageParams band = Over(bits, 10, 1, 6);
  send_image_data(stdout, &band);
  const std::string arrived = out.Arrived();
  err.Text();
  EXPECT_EQ(out.Text(), std::string(60, 'x'));
  EXPECT_EQ(arrived, "");
}

TEST_F(MatteTransfer, SendsATopDownBandFromItsFirstLine) {
  std::vector<unsigned char> bits = {'t', 'o', 'p', '-', 'b', 'o', 't', '-'};
  SingleWrites out;
  EXPECT_TRUE(SendMatte(out, {bits.data(), -4, {0, 0, 3, 2}}).result);
  EXPECT_EQ(out.bytes(), "topbot");
}

TEST_F(MatteTransfer, SendsABottomUpBandFromItsLastLine) {
  std::vector<unsigned char> bits = {'b', 'o', 't', '-', 't', 'o', 'p', '-'};
  SingleWrites out;
  EXPECT_TRUE(SendMatte(out, {bits.data(), 4, {8, 9, 11, 11}}).result);
  EXPECT_EQ(out.bytes(), "topbot");
}

TEST_F(MatteTransfer, APlaneOf10x15Takes12WritesAndNoMessage) {
  std::vector<unsigned char> bits(std::size_t{1852} * 1244);
  for (std::size_t i = 0; i < bits.size(); ++i) {
    bits[i] = static_cast<unsigned char>(i % 251);
  }
  SingleWrites out;
  const Outcome outcome = SendMatte(out, Over(bits, 1852, 1244, 1));
  EXPECT_TRUE(outcome.result);
  EXPECT_EQ(outcome.err, "");
  std::vector<std::size_t> sizes(11, 196608);
  sizes.push_back(141200);
  EXPECT_EQ(out.sizes(), sizes);
  EXPECT_TRUE(out.bytes() == Bytes(bits.data(), bits.size()));
}

TEST_F(MatteTransfer, AFullBufferThatEndsThePlaneIsTheLastWrite) {
  std::vector<unsigned char> bits(196608, 'x');
  SingleWrites out;
  EXPECT_TRUE(SendMatte(out, Over(bits, 3072, 64, 1)).result);
  EXPECT_THAT(out.sizes(), ElementsAre(196608U));
}

TEST_F(MatteTransfer, WithoutWidthOrHeightNothingIsSent) {
  std::vector<unsigned char> bits(60, 'x');
  for (const MV_TYPEDEF::tagRECT& rect :
       {MV_TYPEDEF::tagRECT{5, 0, 5, 9}, MV_TYPEDEF::tagRECT{0, 5, 9, 5},
        MV_TYPEDEF::tagRECT{9, 0, 0, 1}, MV_TYPEDEF::tagRECT{0, 1, 1, 0}}) {
    SingleWrites out;
    EXPECT_TRUE(SendMatte(out, {bits.data(), -1, rect}).result);
    EXPECT_EQ(out.attempts(), 0U);
  }
}

TEST_F(MatteTransfer, StopsAtTheSecondWriteWhenThatFails) {
  const long before = LiveArrays();
  std::vector<unsigned char> bits(589874, 'x');
  SingleWrites out(2);
  const Outcome outcome = SendMatte(out, Over(bits, 196608, 3, 1));
  EXPECT_FALSE(outcome.result);
  EXPECT_EQ(out.attempts(), 2U);
  EXPECT_THAT(out.sizes(), ElementsAre(196608U));
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(LiveArrays(), before);
}

TEST_F(MatteTransfer, ALastWriteThatFailsIsAFailure) {
  const long before = LiveArrays();
  std::vector<unsigned char> bits(60, 'x');
  SingleWrites out(1);
  const Outcome outcome = SendMatte(out, Over(bits, 60, 1, 1));
  EXPECT_FALSE(outcome.result);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(LiveArrays(), before);
}

TEST_F(MatteTransfer, WithoutMemoryNothingIsSent) {
  std::vector<unsigned char> bits(60, 'x');
  SingleWrites out;
  const ArraysRefused refused(0);
  EXPECT_FALSE(SendMatte(out, Over(bits, 60, 1, 1)).result);
  EXPECT_EQ(out.attempts(), 0U);
}

TEST_F(MatteTransfer, GivesItsBufferBack) {
  const long before = LiveArrays();
  std::vector<unsigned char> bits(60, 'x');
  SingleWrites out;
  EXPECT_TRUE(SendMatte(out, Over(bits, 60, 1, 1)).result);
  EXPECT_EQ(LiveArrays(), before);
  EXPECT_EQ(LastArraySize(), 196608U);
}

TEST_F(ImageTransfer, OfABottomUpBandWithoutRowsSendsNothing) {
  std::vector<unsigned char> bytes(6);
  const tagMVBandImageParams band = {bytes.data(), 6, {0, 5, 1, 5}};
  SingleWrites out;
  SendImage(out, band);
  EXPECT_EQ(out.bytes(), "");
}
