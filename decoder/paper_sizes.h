// SPDX-License-Identifier: Apache-2.0
//
// The sheets that the printer takes, and where an image may lie on each. In dots at 300 dpi.
#ifndef TQR7_DECODER_PAPER_SIZES_H
#define TQR7_DECODER_PAPER_SIZES_H

#include <cstdint>
#include <span>

namespace decoder {

/// One sheet size. The border is that of an image with a white border; 0 where there may be none.
struct SheetSize {
  std::uint16_t width;
  std::uint16_t height;
  std::uint16_t borderSide;  ///< left and right
  std::uint16_t borderTop;   ///< top and bottom
  bool twoUp;                ///< may carry two prints
};

/// The place and size of an image on its sheet.
struct ImagePlace {
  std::uint16_t left;
  std::uint16_t top;
  std::uint16_t width;
  std::uint16_t height;
};

/// All sheet sizes. Several papers may share a sheet.
std::span<const SheetSize> sheet_sizes();

/// The image that covers the whole sheet.
constexpr ImagePlace full_image(const SheetSize& sheet) {
  return {0, 0, sheet.width, sheet.height};
}

/// The image that leaves the sheet's border white all around.
constexpr ImagePlace bordered_image(const SheetSize& sheet) {
  return {sheet.borderSide, sheet.borderTop,
          static_cast<std::uint16_t>(sheet.width - 2 * sheet.borderSide),
          static_cast<std::uint16_t>(sheet.height - 2 * sheet.borderTop)};
}

/// Rows that a matte plane has more than its sheet.
inline constexpr std::uint16_t kMatteExtraRows = 12;

}  // namespace decoder

#endif  // TQR7_DECODER_PAPER_SIZES_H
