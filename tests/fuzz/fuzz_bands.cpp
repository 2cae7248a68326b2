// SPDX-License-Identifier: Apache-2.0
//
// Fuzzes rectangles and bands against a slow model that counts in 128 bits and goes pixel by pixel.
// Rectangles have any edges; bands have small buffers, any strides that hold their lines, and lie
// anywhere in the plane.
#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <vector>

#include "image/band_image.h"
#include "image/rect.h"
#include "job/job_state.h"
#include "protocol/plane_transfer.h"
#include "tests/fuzz/input.h"
#include "tests/fuzz/model_band.h"
#include "tests/fuzz/streams.h"

namespace {

using fuzz::Input;
using fuzz::ModelBand;
using fuzz::require;
using fuzz::Wide;
using MV_TYPEDEF::tagRECT;

constexpr std::int64_t kLowest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kHighest = std::numeric_limits<std::int64_t>::max();
constexpr Wide kLargestTaken = Wide{1} << 20U;  // bytes that are surely to be had

bool same(const tagRECT& a, const tagRECT& b) {
  return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

// Any number, or one near 0, a power of two or an end of the number range.
std::int64_t take_edge(Input& input) {
  switch (input.Take<std::uint8_t>() % 5) {
    case 0:
      return input.Take<std::int64_t>();
    case 1:
      return kLowest + input.Take<std::uint8_t>();
    case 2:
      return kHighest - input.Take<std::uint8_t>();
    case 3: {
      const std::int64_t power = std::int64_t{1} << (input.Take<std::uint8_t>() % 63U);
      return power + input.Take<std::int8_t>();
    }
    default:
      return input.Take<std::int8_t>();
  }
}

tagRECT take_rect(Input& input) {
  tagRECT rect{};
  for (std::int64_t* edge : {&rect.left, &rect.top, &rect.right, &rect.bottom}) {
    *edge = take_edge(input);
  }
  return rect;
}

// 2^64 further or nearer is the same place to a number of 64 bits.
bool same_place(std::int64_t got, Wide want) {
  return (Wide{got} - want) % (Wide{1} << 64U) == 0;
}

void check_rectangles(Input& input) {
  const tagRECT a = take_rect(input);
  const tagRECT b = take_rect(input);
  const bool a_empty = Wide{a.right} - a.left <= 0 || Wide{a.bottom} - a.top <= 0;
  require((IsRectEmpty(&a) == 1) == a_empty);
  require(same_place(rect_width(a), Wide{a.right} - a.left));
  require(same_place(rect_height(a), Wide{a.bottom} - a.top));

  tagRECT shared = a;
  const Wide width = fuzz::shared_length(a.left, a.right, b.left, b.right);
  const Wide height = fuzz::shared_length(a.top, a.bottom, b.top, b.bottom);
  const bool any = width > 0 && height > 0;
  require((IntersectRect(&shared, &shared, &b) == 1) == any);
  require(any || same(shared, {0, 0, 0, 0}));
  require(!any || (Wide{shared.right} - shared.left == width &&
                   Wide{shared.bottom} - shared.top == height));
  require(!any || (shared.left >= a.left && shared.left >= b.left && shared.top >= a.top &&
                   shared.top >= b.top));

  tagRECT moved = a;
  const auto dx = input.Take<int>();
  const auto dy = input.Take<int>();
  require(OffsetRect(&moved, dx, dy) == 1);
  require(same_place(moved.left, Wide{a.left} + dx) && same_place(moved.right, Wide{a.right} + dx));
  require(same_place(moved.top, Wide{a.top} + dy) && same_place(moved.bottom, Wide{a.bottom} + dy));

  require(SetRect(&moved, dx, dy, dy, dx) == 1 && same(moved, {dx, dy, dy, dx}));
}

// A band of any rectangle either has a buffer for all of it, or none.
void check_making(Input& input) {
  const tagRECT rect = take_rect(input);
  const auto depth = input.Take<std::int8_t>();
  const auto direction = input.Take<int>();
  tagMVBandImageParams band{};
  const bool made = CImageUtility::CreateBandImage(&band, rect, depth, direction);
  require(made == (band.pBits != nullptr) && same(band.rcBand, rect));
  const Wide width = Wide{rect.right} - rect.left;
  const Wide height = Wide{rect.bottom} - rect.top;
  const Wide line = width * (depth / 8);
  require(same_place(band.lStride, direction < 0 ? -line : line));
  const bool sound = width >= 0 && height >= 0 && depth >= 8;
  const bool small = line <= kLargestTaken && height <= kLargestTaken;
  if (sound && small && line * height <= kLargestTaken) {
    require(made);
    for (Wide i = 0; i < line * height; ++i) {
      require(band.pBits[static_cast<std::size_t>(i)] == 0xFF);
    }
  }
  // Never a buffer that does not hold all pixels of the rectangle.
  if (sound && width > 0 && height > 0) {
    require(!made || (line <= kHighest && height <= kHighest && line * height <= kHighest));
  }
  CImageUtility::DeleteBandImage(&band);
  CImageUtility::DeleteBandImage(&band);
  require(band.pBits == nullptr);
}

// Where a band may lie: around a point from which its edges stay in range.
std::int64_t take_origin(Input& input) {
  const auto wild = input.Take<std::int64_t>();
  constexpr std::int64_t kMargin = 1000;
  return std::min(std::max(wild, kLowest + kMargin), kHighest - kMargin);
}

void check_copy(Input& input) {
  const std::int64_t depth = 1 + input.Take<std::uint8_t>() % 8;
  const bool top_down = (input.Take<std::uint8_t>() & 1U) != 0;
  const std::int64_t x = take_origin(input);
  const std::int64_t y = take_origin(input);
  ModelBand from = fuzz::take_band(input, depth, top_down, x, y);
  ModelBand to = fuzz::take_band(input, depth, top_down, x, y);
  ModelBand expected = to;
  expected.CopyFrom(from);
  tagMVBandImageParams to_band = to.Band();
  const tagMVBandImageParams from_band = from.Band();
  require(CImageUtility::CopyBandImage(&to_band, &from_band, static_cast<int>(depth * 8)));
  require(to.bytes == expected.bytes);
}

void check_fill(Input& input) {
  const std::int64_t depth = 1 + input.Take<std::uint8_t>() % 8;
  const bool top_down = (input.Take<std::uint8_t>() & 1U) != 0;
  ModelBand band = fuzz::take_band(input, depth, top_down, take_origin(input), take_origin(input));
  std::vector<unsigned char> pattern(static_cast<std::size_t>(depth));
  for (unsigned char& byte : pattern) {
    byte = input.Take<std::uint8_t>();
  }
  // A fill takes in the gaps behind the lines, the last one too.
  band.bytes.resize(static_cast<std::size_t>(band.line * band.height));
  band.bytes.shrink_to_fit();
  ModelBand expected = band;
  expected.Fill(pattern);
  tagMVBandImageParams record = band.Band();
  const bool has_buffer = record.pBits != nullptr;
  require(CImageUtility::FillBandImage(&record, static_cast<int>(depth * 8), pattern.data()) ==
          has_buffer);
  require(band.bytes == expected.bytes);
}

void check_sending(Input& input) {
  const bool matte = (input.Take<std::uint8_t>() & 1U) != 0;
  const bool top_down = (input.Take<std::uint8_t>() & 1U) != 0;
  ModelBand band =
      fuzz::take_band(input, matte ? 1 : 6, top_down, take_origin(input), take_origin(input));
  std::vector<unsigned char> sent;
  bool good = false;
  {
    fuzz::PrinterStream stream([&](std::span<const std::uint8_t> bytes) {
      sent.insert(sent.end(), bytes.begin(), bytes.end());
    });
    const tagMVBandImageParams record = band.Band();
    good = matte ? send_matte_data(fpOut, &record) : send_image_data(fpOut, &record);
    good = stream.Flush() && good;
  }
  require(good && sent == band.TopToBottom());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr void (*kChecks[])(Input&) = {check_rectangles, check_making, check_copy, check_fill,
                                         check_sending};
  Input input(data, size);
  kChecks[input.Take<std::uint8_t>() % std::size(kChecks)](input);
  return 0;
}
