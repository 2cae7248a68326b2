// SPDX-License-Identifier: Apache-2.0
//
// The pieces in which a stream comes make no difference.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "decoder/stream_parser.h"
#include "tests/unit/decoder/event_recording.h"
#include "tests/unit/stream_bytes.h"

namespace {

using stream::Bytes;
using stream::Finish;
using testing::IsEmpty;

void decode_in_pieces(const Bytes& bytes, std::size_t piece, EventRecording& recording) {
  decoder::StreamParser parser(recording);
  for (std::size_t at = 0; at < bytes.size(); at += piece) {
    parser.Feed(std::span(bytes).subspan(at, std::min(piece, bytes.size() - at)));
  }
  parser.EndOfStream();
}

// Two files of a sheet each, the second one matte; the pixels count up, so that no two rows are
// alike.
Bytes two_sheets() {
  Bytes image = stream::pixels(stream::paper_5x15().imageBytes, {});
  for (std::size_t i = 0; i < image.size(); ++i) {
    image[i] = static_cast<std::uint8_t>(i / 7 % 64);
  }
  Bytes matte = stream::matte(stream::paper_5x15().matteBytes, 0);
  for (std::size_t i = 0; i < matte.size(); ++i) {
    matte[i] = static_cast<std::uint8_t>(i % 251);
  }
  return stream::join({stream::first_headers(stream::paper_5x15(), Finish::Gloss), image,
                       stream::print_out(),
                       stream::first_headers(stream::paper_5x15(), Finish::Matte), image, matte,
                       stream::print_out()});
}

class Pieces : public testing::TestWithParam<std::size_t> {};

TEST_P(Pieces, GiveWhatTheWholeStreamGives) {
  const Bytes bytes = two_sheets();
  EventRecording whole;
  decode(bytes, whole);
  ASSERT_THAT(whole.errors, IsEmpty());
  EventRecording pieces;
  decode_in_pieces(bytes, GetParam(), pieces);
  EXPECT_EQ(pieces.events, whole.events);
  EXPECT_EQ(pieces.samples, whole.samples);
  EXPECT_EQ(pieces.matte, whole.matte);
}

TEST_P(Pieces, OfABadStreamGiveTheSameErrors) {
  Bytes bytes = stream::join({{0x1B, 0x1B, 0x47, 0x00},
                              stream::first_headers(stream::paper_5x15(), Finish::Gloss),
                              {0xFF, 0xFF, 0x01},
                              stream::status_request(),
                              {0x1B, 0x5A}});
  bytes.at(4 + 1050) = 0;  // an image width that is none: the pixels are passed over
  EventRecording whole;
  decode(bytes, whole);
  ASSERT_EQ(whole.errors.size(), 3U);
  EventRecording pieces;
  decode_in_pieces(bytes, GetParam(), pieces);
  EXPECT_EQ(pieces.events, whole.events);
}

INSTANTIATE_TEST_SUITE_P(Sizes, Pieces, testing::Values(1, 2, 3, 5, 7, 511, 512, 513, 65536));

}  // namespace
