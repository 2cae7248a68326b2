// SPDX-License-Identifier: Apache-2.0
#include "simulator/thumbnail.h"

#include <algorithm>

namespace simulator {
namespace {

constexpr std::size_t kChannels = 3;

std::size_t divided_up(std::size_t number, std::size_t by) {
  return (number + by - 1) / by;
}

}  // namespace

Thumbnail::Thumbnail(std::size_t width, std::size_t height)
    : sheetWidth_(width),
      sheetHeight_(height),
      scale_(divided_up(std::max(width, height), kThumbnailSide)),
      width_(divided_up(width, scale_)),
      height_(divided_up(height, scale_)),
      sums_(kChannels * width_, 0) {
  pixels_.reserve(kChannels * width_ * height_);
}

void Thumbnail::AddRow(std::span<const std::uint8_t> row) {
  for (std::size_t i = 0; i < row.size(); ++i) {
    sums_[i / kChannels / scale_ * kChannels + i % kChannels] += row[i];
  }
  ++rowsIn_;
  if (rowsIn_ % scale_ == 0 || rowsIn_ == sheetHeight_) {
    FinishRow();
  }
}

// The squares of the last column and the last row may be cut off.
void Thumbnail::FinishRow() {
  const std::size_t rows = (rowsIn_ - 1) % scale_ + 1;
  for (std::size_t i = 0; i < sums_.size(); ++i) {
    const std::size_t columns = std::min(scale_, sheetWidth_ - i / kChannels * scale_);
    const std::size_t dots = rows * columns;
    pixels_.push_back(static_cast<std::uint8_t>((sums_[i] + dots / 2) / dots));
  }
  std::fill(sums_.begin(), sums_.end(), 0);
}

std::span<const std::uint8_t> Thumbnail::Row(std::size_t row) const {
  return std::span(pixels_).subspan(kChannels * width_ * row, kChannels * width_);
}

}  // namespace simulator
