// SPDX-License-Identifier: Apache-2.0
//
// The sheets that the printer takes, and where an image may lie on each. In dots at 300 dpi.
#ifndef TQR7_DECODER_PAPER_SIZES_H
#define TQR7_DECODER_PAPER_SIZES_H

#include <cstdint>
#include <span>

namespace decoder {

/// One sheet size.
struct SheetSize {
  std::uint16_t width;
  std::uint16_t height;
  bool whiteBorder;  ///< an image with a white border is allowed, too
  bool twoUp;        ///< may carry two prints
};

/// The place and size of an image on its sheet.
struct ImagePlace {
  std::uint16_t left;
  std::uint16_t top;
  std::uint16_t width;
  std::uint16_t height;
};

/// All sheet sizes: 13 papers, several of which share a sheet.
std::span<const SheetSize> sheet_sizes();

/// The sheet of this size, or null.
const SheetSize* find_sheet(std::uint16_t width, std::uint16_t height);

/// The image that covers the whole sheet.
ImagePlace full_image(const SheetSize& sheet);

/// The image that leaves 84 dots white at each side, and 74 lines at top and bottom.
ImagePlace bordered_image(const SheetSize& sheet);

/// Rows that a matte plane has more than its sheet.
inline constexpr std::uint16_t kMatteExtraRows = 12;

}  // namespace decoder

#endif  // TQR7_DECODER_PAPER_SIZES_H
