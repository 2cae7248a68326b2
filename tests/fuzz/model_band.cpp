// SPDX-License-Identifier: Apache-2.0
#include "tests/fuzz/model_band.h"

#include <algorithm>

namespace fuzz {

namespace {

constexpr std::int64_t kLongestEdge = 41;
constexpr std::int64_t kFarthest = 50;
constexpr std::int64_t kGaps = 9;

std::int64_t take_below(Input& input, std::int64_t limit) {
  return input.Take<std::uint8_t>() % limit;
}

}  // namespace

Wide shared_length(std::int64_t first, std::int64_t end, std::int64_t other_first,
                   std::int64_t other_end) {
  const Wide from = first > other_first ? first : other_first;
  const Wide to = end < other_end ? end : other_end;
  return to - from;
}

tagMVBandImageParams ModelBand::Band() {
  return {bytes.data(), top_down ? -line : line, {left, top, left + width, top + height}};
}

std::size_t ModelBand::Place(Wide x, Wide y, std::int64_t byte) const {
  const Wide row = y - top;
  const Wide line_number = top_down ? row : height - 1 - row;
  return static_cast<std::size_t>(line_number * line + (x - left) * depth + byte);
}

bool ModelBand::Holds(Wide x, Wide y) const {
  return x >= left && x < Wide{left} + width && y >= top && y < Wide{top} + height;
}

void ModelBand::CopyFrom(const ModelBand& other) {
  for (Wide y = top; y < Wide{top} + height; ++y) {
    for (Wide x = left; x < Wide{left} + width; ++x) {
      for (std::int64_t i = 0; other.Holds(x, y) && i < depth; ++i) {
        bytes.at(Place(x, y, i)) = other.bytes.at(other.Place(x, y, i));
      }
    }
  }
}

void ModelBand::Fill(const std::vector<unsigned char>& pattern) {
  for (Wide y = top; y < Wide{top} + height; ++y) {
    for (std::int64_t i = 0; i < line - line % depth; ++i) {
      bytes.at(Place(left, y, i)) = pattern.at(static_cast<std::size_t>(i % depth));
    }
  }
}

std::vector<unsigned char> ModelBand::TopToBottom() const {
  std::vector<unsigned char> rows;
  for (Wide y = top; y < Wide{top} + height; ++y) {
    for (std::int64_t i = 0; i < width * depth; ++i) {
      rows.push_back(bytes.at(Place(left, y, i)));
    }
  }
  return rows;
}

ModelBand take_band(Input& input, std::int64_t depth, bool top_down, std::int64_t x,
                    std::int64_t y) {
  ModelBand band;
  band.depth = depth;
  band.top_down = top_down;
  band.left = x + take_below(input, kFarthest);
  band.top = y + take_below(input, kFarthest);
  band.width = take_below(input, kLongestEdge);
  band.height = take_below(input, kLongestEdge);
  const std::int64_t gap = take_below(input, kGaps);
  band.line = band.width * depth + gap;
  const std::int64_t size = std::max<std::int64_t>(band.line * band.height - gap, 0);
  band.bytes.resize(static_cast<std::size_t>(size));
  auto value = input.Take<std::uint8_t>();
  for (unsigned char& byte : band.bytes) {
    byte = value;
    value = static_cast<unsigned char>(value * 5U + 1U);
  }
  return band;
}

}  // namespace fuzz
