// SPDX-License-Identifier: Apache-2.0
#include "simulator/sheet_marks.h"

#include <algorithm>
#include <array>

namespace simulator {
namespace {

constexpr std::size_t kChannels = 3;
constexpr std::size_t kDash = 12;
constexpr std::size_t kWidth = 2;
constexpr std::array<std::uint8_t, kChannels> kMagenta{255, 0, 255};
constexpr std::array<std::uint8_t, kChannels> kBlack{0, 0, 0};

// `along` counts the dots along the line.
void draw_dot(std::span<std::uint8_t> dots, std::size_t column, std::size_t along) {
  const auto& colour = along / kDash % 2 == 0 ? kMagenta : kBlack;
  std::copy(colour.begin(), colour.end(),
            dots.begin() + static_cast<std::ptrdiff_t>(kChannels * column));
}

void draw_across(std::span<std::uint8_t> dots, std::size_t from, std::size_t end) {
  for (std::size_t column = from; column < end; ++column) {
    draw_dot(dots, column, column - from);
  }
}

}  // namespace

void SheetMarks::DrawOutline(std::size_t row, std::span<std::uint8_t> dots) const {
  const decoder::ImageHeader& image = sheet_.image;
  const std::size_t top = image.top - kWidth;
  const std::size_t left = image.left - kWidth;
  const std::size_t bottom = std::size_t{image.top} + image.height;
  const std::size_t right = std::size_t{image.left} + image.width;
  if (row < top || row >= bottom + kWidth) {
    return;
  }
  if (row < image.top || row >= bottom) {
    draw_across(dots, left, right + kWidth);
    return;
  }
  for (std::size_t i = 0; i < kWidth; ++i) {
    draw_dot(dots, left + i, row - top);
    draw_dot(dots, right + i, row - top);
  }
}

// The decoder has checked that border and cut are right for the paper.
void SheetMarks::Draw(std::size_t row, std::span<std::uint8_t> dots) const {
  const std::size_t split = sheet_.job.twoUpSplit;
  if (split != 0 && (row + 1 == split || row == split)) {
    draw_across(dots, 0, sheet_.job.sheetWidth);
  }
  if (sheet_.image.left >= kWidth && sheet_.image.top >= kWidth) {
    DrawOutline(row, dots);
  }
}

}  // namespace simulator
