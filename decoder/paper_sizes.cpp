// SPDX-License-Identifier: Apache-2.0
#include "decoder/paper_sizes.h"

#include <algorithm>
#include <array>

namespace decoder {
namespace {

constexpr std::array<SheetSize, 7> kSheets{{
    {1550, 1082, true, false},   // 9x13
    {1852, 1232, true, true},    // 10x15, and two 5x15
    {1550, 2134, true, false},   // 13x18
    {1852, 2434, true, false},   // 15x20
    {1852, 631, false, false},   // 5x15
    {1852, 1833, false, false},  // 15x15
    {1550, 1533, false, false},  // 13x13
}};

constexpr std::uint16_t kBorderSide = 84;
constexpr std::uint16_t kBorderTop = 74;

}  // namespace

std::span<const SheetSize> sheet_sizes() {
  return kSheets;
}

const SheetSize* find_sheet(std::uint16_t width, std::uint16_t height) {
  const auto* const found =
      std::find_if(kSheets.begin(), kSheets.end(), [width, height](const SheetSize& sheet) {
        return sheet.width == width && sheet.height == height;
      });
  return found == kSheets.end() ? nullptr : &*found;
}

ImagePlace full_image(const SheetSize& sheet) {
  return {0, 0, sheet.width, sheet.height};
}

ImagePlace bordered_image(const SheetSize& sheet) {
  return {kBorderSide, kBorderTop, static_cast<std::uint16_t>(sheet.width - 2 * kBorderSide),
          static_cast<std::uint16_t>(sheet.height - 2 * kBorderTop)};
}

}  // namespace decoder
