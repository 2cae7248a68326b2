// SPDX-License-Identifier: Apache-2.0
#include "photo/page_edges.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace photo {
namespace {

constexpr std::size_t kColours = 3;
constexpr std::uint8_t kWhite = 0xFF;

long to_dots(double points) {
  constexpr double kDotsPerPoint = 300.0 / 72;
  constexpr double kSheetMost = 100'000;  // points; no sheet is larger, whatever a header says
  return std::lround(std::clamp(std::isfinite(points) ? points : 0, -kSheetMost, kSheetMost) *
                     kDotsPerPoint);
}

// The corner nearest to this one where a smaller length is all on the page and a larger covers it.
long inside(long corner, long length, long room) {
  return std::clamp(corner, std::min(0L, room - length), std::max(0L, room - length));
}

// At each end of `count` lines: when at most kBlankLines are white, copies the next line into them.
template <typename IsWhite, typename Copy>
void fill_blank(std::size_t count, const IsWhite& isWhite, const Copy& copy) {
  const auto blank = [&](const auto& lineAt) {
    std::size_t lines = 0;
    while (lines <= kBlankLines && lines < count && isWhite(lineAt(lines))) {
      ++lines;
    }
    const bool copied = lines <= kBlankLines && lines < count;
    for (std::size_t i = 0; copied && i < lines; ++i) {
      copy(lineAt(lines), lineAt(i));
    }
  };
  blank([](std::size_t i) { return i; });
  blank([count](std::size_t i) { return count - 1 - i; });
}

}  // namespace

Corner find_corner(const cups_page_header2_t& header, const JobPage& page) {
  const auto width = static_cast<long>(page.width);
  const auto height = static_cast<long>(page.height);
  const auto across = static_cast<long>(header.cupsWidth);
  const auto down = static_cast<long>(header.cupsHeight);
  const float* const box = header.cupsImagingBBox;
  Corner corner{(width - across) / 2, (height - down) / 2};
  if (box[2] > box[0] && box[3] > box[1]) {
    corner = {to_dots(box[0] - page.left), to_dots(page.top - box[3])};
  }
  return {inside(corner.left, across, width), inside(corner.top, down, height)};
}

PageSheet::PageSheet(std::size_t width, std::size_t height)
    : width_(width), height_(height), stride_(kColours * width), rgb_(stride_ * height, kWhite) {}

void PageSheet::Lay(const Corner& corner, std::size_t y, const std::uint8_t* rgb,
                    std::size_t width) {
  const long row = corner.top + static_cast<long>(y);
  const long first = std::max(0L, corner.left);
  const long end = std::min(static_cast<long>(width_), corner.left + static_cast<long>(width));
  if (row < 0 || row >= static_cast<long>(height_) || first >= end) {
    return;
  }
  std::memcpy(Row(static_cast<std::size_t>(row)) + kColours * static_cast<std::size_t>(first),
              rgb + kColours * static_cast<std::size_t>(first - corner.left),
              kColours * static_cast<std::size_t>(end - first));
}

void PageSheet::CopyRow(std::size_t from, std::size_t to) {
  std::memcpy(Row(to), Row(from), stride_);
}

void PageSheet::CloseGaps(const Corner& corner, std::size_t width, std::size_t height) {
  const long right = corner.left + static_cast<long>(width);
  const long bottom = corner.top + static_cast<long>(height);
  const long overRight = static_cast<long>(width_) - right;
  const long overBottom = static_cast<long>(height_) - bottom;
  for (std::size_t y = 0; y < height_; ++y) {
    std::uint8_t* const row = Row(y);
    for (long x = corner.left - 1; x >= 0 && corner.left <= kRoundedOff; --x) {
      std::memcpy(row + kColours * static_cast<std::size_t>(x),
                  row + kColours * static_cast<std::size_t>(corner.left), kColours);
    }
    for (long x = right; x < static_cast<long>(width_) && overRight <= kRoundedOff; ++x) {
      std::memcpy(row + kColours * static_cast<std::size_t>(x),
                  row + kColours * static_cast<std::size_t>(right - 1), kColours);
    }
  }
  for (long y = corner.top - 1; y >= 0 && corner.top <= kRoundedOff; --y) {
    CopyRow(static_cast<std::size_t>(corner.top), static_cast<std::size_t>(y));
  }
  for (long y = bottom; y < static_cast<long>(height_) && overBottom <= kRoundedOff; ++y) {
    CopyRow(static_cast<std::size_t>(bottom - 1), static_cast<std::size_t>(y));
  }
}

void PageSheet::CopyColumn(std::size_t from, std::size_t to) {
  for (std::size_t y = 0; y < height_; ++y) {
    std::memcpy(Row(y) + kColours * to, Row(y) + kColours * from, kColours);
  }
}

bool PageSheet::IsWhiteRow(std::size_t y) {
  const std::uint8_t* const row = Row(y);
  return std::all_of(row, row + stride_, [](std::uint8_t sample) { return sample == kWhite; });
}

bool PageSheet::IsWhiteColumn(std::size_t x) {
  for (std::size_t y = 0; y < height_; ++y) {
    const std::uint8_t* const dot = Row(y) + kColours * x;
    if (dot[0] != kWhite || dot[1] != kWhite || dot[2] != kWhite) {
      return false;
    }
  }
  return true;
}

void PageSheet::FillBlankLines() {
  fill_blank(
      height_, [this](std::size_t y) { return IsWhiteRow(y); },
      [this](std::size_t from, std::size_t to) { CopyRow(from, to); });
  fill_blank(
      width_, [this](std::size_t x) { return IsWhiteColumn(x); },
      [this](std::size_t from, std::size_t to) { CopyColumn(from, to); });
}

}  // namespace photo
