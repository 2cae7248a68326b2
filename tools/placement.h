// SPDX-License-Identifier: Apache-2.0
//
// Where a photo comes to lie on a page: what phototopage, the filter that prints photos, does with
// an upright photo of one size and a page of another.
#ifndef TQR7_TOOLS_PLACEMENT_H
#define TQR7_TOOLS_PLACEMENT_H

#include <cstdint>

#include "photo/layout.h"
#include "tools/print_sizes.h"

namespace tools {

/// print-scaling, as `lp -o` takes it.
enum class PrintScaling : std::uint8_t {
  Fit,  ///< the whole picture, as large as the page allows
  Fill  ///< the page covered, the picture cropped to its middle
};

/// A rectangle of a picture, in its pixels.
struct PixelArea {
  std::uint32_t left;
  std::uint32_t top;
  std::uint32_t width;
  std::uint32_t height;
};

/// A picture on a page. What of the page's image area the picture does not cover stays white.
struct Placement {
  PixelArea used;        ///< the part of the picture that is printed
  bool turned;           ///< a quarter to the left: its top right corner comes to the top left
  std::uint32_t left;    ///< in dots, from the left edge of the page's image area
  std::uint32_t top;     ///< in dots, from its upper edge
  std::uint32_t width;   ///< in dots
  std::uint32_t height;  ///< in dots

  /// Dots on paper for each pixel of the picture, across the picture and down.
  double DotsPerPixelAcross() const;
  double DotsPerPixelDown() const;
};

/// Places an upright picture, which has pixels.
Placement place_picture(const photo::PhotoShape& shape, const PrintSize& size,
                        PrintScaling scaling);

}  // namespace tools

#endif  // TQR7_TOOLS_PLACEMENT_H
