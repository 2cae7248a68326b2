// SPDX-License-Identifier: Apache-2.0
//
// A photo held against a paper size before paper is spent: how sharp it will be, what will be cut
// off, and what of the page will stay white.
#ifndef TQR7_TOOLS_PHOTO_CHECK_H
#define TQR7_TOOLS_PHOTO_CHECK_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "photo/page_picture.h"
#include "tools/print_sizes.h"

namespace tools {

inline constexpr double kSharpFrom = 240.0;  ///< pixels of the photo to an inch of paper
inline constexpr double kSoftFrom = 150.0;   ///< what is below looks coarse at arm's length
inline constexpr double kCutMost = 0.01;     ///< of a side; less than that nobody misses

enum class Sharpness : std::uint8_t { Sharp, Soft, Coarse };

/// "sharp", "soft", "coarse"
const char* to_string(Sharpness sharpness);

/// A photo that a job prints on a paper size, as phototopage does.
struct PhotoJob {
  const PrintSize& size;
  photo::JobWishes wishes;
  photo::PlannedPhoto plan;
  photo::PagePicture page;  ///< the last
  std::string refusal;      ///< why that cannot be made; empty when it can
};

/// An area as it lies on the sheet, of something that is width x height as one looks at the upright
/// photo: the page, or the photo itself.
photo::PictureArea on_sheet(photo::PictureArea area, std::size_t width, std::size_t height,
                            const PhotoJob& job);

/// What is cut off one side of the photo, as one looks at its file.
struct Cut {
  const char* side;  ///< "left", "right", "top", "bottom"
  std::size_t pixels;
  double share;  ///< of the photo's width or height
  double dots;   ///< of paper that it would have taken
};

/// What of the page's image area the photo does not cover, as the sheet comes out of the printer.
struct White {
  const char* side;  ///< "left", "right", "top" or "bottom"
  std::size_t dots;
  double share;  ///< of the area's width or height
};

/// All that is known of how a photo will come out.
struct PhotoCheck {
  photo::DotArea used;     ///< pixels of the upright photo that are printed
  photo::DotArea printed;  ///< dots of the page's image area that the photo covers
  double dotsPerInch;  ///< pixels of the photo to an inch of paper, the fewer of both directions
  Sharpness sharpness;
  std::vector<Cut> cuts;                 ///< sides that lose something
  std::vector<White> whites;             ///< sides that stay white
  std::vector<std::string> notes;        ///< in sentences: what else the person should know
  std::vector<std::string> rulesBroken;  ///< in sentences; none when the photo may be printed
};

/// Dots of paper in millimetres.
double millimetres(double dots);

PhotoCheck check_photo(const PhotoJob& job);

}  // namespace tools

#endif  // TQR7_TOOLS_PHOTO_CHECK_H
