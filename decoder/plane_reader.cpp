// SPDX-License-Identifier: Apache-2.0
#include "decoder/plane_reader.h"

#include <algorithm>

namespace decoder {

void PlaneReader::Begin(std::size_t rowBytes, std::uint32_t rows) {
  row_.clear();
  row_.reserve(rowBytes);
  rowBytes_ = rowBytes;
  rows_ = rows;
  rowNumber_ = 0;
}

std::size_t PlaneReader::Take(std::span<const std::uint8_t> bytes) {
  const std::size_t count = std::min(bytes.size(), rowBytes_ - row_.size());
  row_.insert(row_.end(), bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count));
  return count;
}

void PlaneReader::NextRow() {
  row_.clear();
  ++rowNumber_;
}

void read_samples(std::span<const std::uint8_t> row, std::vector<std::uint16_t>& samples) {
  samples.resize(row.size() / 2);
  for (std::size_t i = 0; i < samples.size(); ++i) {
    samples[i] = static_cast<std::uint16_t>(row[2 * i] | row[2 * i + 1] << 8U);
  }
}

std::uint64_t count_bad_samples(std::span<const std::uint16_t> samples) {
  return static_cast<std::uint64_t>(
      std::count_if(samples.begin(), samples.end(),
                    [](std::uint16_t sample) { return sample > kSampleMaximum; }));
}

}  // namespace decoder
