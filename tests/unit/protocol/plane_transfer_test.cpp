// SPDX-License-Identifier: Apache-2.0
//
// The pixels as they are sent: their order and the size of each write, for bands of any kind.
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
#include "tests/unit/single_writes.h"

using testing::ElementsAre;

namespace {

struct Transfer {
  bool result;
  std::string err;
};

Transfer SendImage(SingleWrites& out, const tagMVBandImageParams& band) {
  Capture err(stderr);
  const bool result = send_image_data(out.stream(), &band);
  return {result, err.Text()};
}

Transfer SendMatte(SingleWrites& out, const tagMVBandImageParams& band) {
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

TEST_F(ImageTransfer, AFullBufferThatEndsTheImageIsTheLastWrite) {
  std::vector<unsigned char> bits(196608, 'x');
  SingleWrites out;
  const Transfer outcome = SendImage(out, Over(bits, 512, 64, 6));
  EXPECT_TRUE(outcome.result);
  EXPECT_THAT(out.sizes(), ElementsAre(196608U));
  EXPECT_EQ(outcome.err, "INFO: Printing page 7, 99% complete...\n");
}

TEST_F(ImageTransfer, TheRestBehindAFullBufferIsAWriteOfItsOwn) {
  std::vector<unsigned char> bits(196608 + 6 * 512, 'x');
  SingleWrites out;
  const Transfer outcome = SendImage(out, Over(bits, 512, 65, 6));
  EXPECT_TRUE(outcome.result);
  EXPECT_THAT(out.sizes(), ElementsAre(196608U, 3072U));
  EXPECT_EQ(outcome.err,
            "INFO: Printing page 7, 98% complete...\n"
            "INFO: Printing page 7, 99% complete...\n");
}

TEST_F(ImageTransfer, WithoutWidthOrHeightNothingIsSent) {
  std::vector<unsigned char> bits(60, 'x');
  for (const MV_TYPEDEF::tagRECT& rect :
       {MV_TYPEDEF::tagRECT{5, 0, 5, 9}, MV_TYPEDEF::tagRECT{0, 5, 9, 5},
        MV_TYPEDEF::tagRECT{9, 0, 0, 1}, MV_TYPEDEF::tagRECT{0, 1, 1, 0}}) {
    SingleWrites out;
    const Transfer outcome = SendImage(out, {bits.data(), -6, rect});
    EXPECT_TRUE(outcome.result);
    EXPECT_TRUE(out.sizes().empty());
    EXPECT_EQ(outcome.err, "");
  }
}

TEST_F(ImageTransfer, ALastWriteThatFailsIsAFailureWithoutAMessage) {
  std::vector<unsigned char> bits(60, 'x');
  SingleWrites out(1);
  const Transfer transfer = SendImage(out, Over(bits, 10, 1, 6));
  EXPECT_FALSE(transfer.result);
  EXPECT_EQ(transfer.err, "");
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

TEST_F(MatteTransfer, SendsABottomUpBandFromItsLastLine) {
  std::vector<unsigned char> bits = {'b', 'o', 't', '-', 't', 'o', 'p', '-'};
  SingleWrites out;
  EXPECT_TRUE(SendMatte(out, {bits.data(), 4, {8, 9, 11, 11}}).result);
  EXPECT_EQ(out.bytes(), "topbot");
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
    EXPECT_TRUE(out.sizes().empty());
  }
}

TEST_F(ImageTransfer, OfABottomUpBandWithoutRowsSendsNothing) {
  std::vector<unsigned char> bytes(6);
  const tagMVBandImageParams band = {bytes.data(), 6, {0, 5, 1, 5}};
  SingleWrites out;
  SendImage(out, band);
  EXPECT_EQ(out.bytes(), "");
}
