// SPDX-License-Identifier: Apache-2.0
//
// Where the printing system puts a picture on a page: what imagetoraster, the filter that CUPS
// prints pictures through, does with a picture of one size and a page of another. Its rounding is
// followed to the last dot.
#ifndef TQR7_TOOLS_PLACEMENT_H
#define TQR7_TOOLS_PLACEMENT_H

#include <cstdint>

#include "tools/print_sizes.h"

namespace tools {

/// print-scaling, as `lp -o` takes it.
enum class PrintScaling : std::uint8_t {
  Fit,  ///< the whole picture, as large as the page allows
  Fill  ///< the page as full as it goes, the picture cropped to its middle
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
  std::uint32_t width;   ///< in dots, from the left edge of the page's image area
  std::uint32_t height;  ///< in dots, from its upper edge

  /// A picture so narrow that nothing of it is left has no place.
  bool Empty() const { return width == 0 || height == 0; }
  /// Dots on paper for each pixel of the picture, across the picture and down.
  double DotsPerPixelAcross() const;
  double DotsPerPixelDown() const;
};

/// Places a picture of this many pixels, neither of them 0. `aspect` says how many times as wide as
/// high a pixel is; Fill crops as if they were square all the same.
Placement place_picture(std::uint32_t width, std::uint32_t height, const PrintSize& size,
                        PrintScaling scaling, float aspect = 1);

}  // namespace tools

#endif  // TQR7_TOOLS_PLACEMENT_H
