// SPDX-License-Identifier: Apache-2.0
//
// Judges a photo on a paper size before paper is spent: how sharp it will be, what will be cut off,
// and which part of the page will stay white.
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
inline constexpr double kSoftFrom = 150.0;   ///< less looks coarse at arm's length
inline constexpr double kCutMost = 0.01;     ///< of a side; nobody misses less

enum class Sharpness : std::uint8_t { Sharp, Soft, Coarse };

/// "sharp", "soft", "coarse"
const char* to_string(Sharpness sharpness);

/// A photo and a job that prints it on a paper size.
struct PhotoJob {
  const NamedPaper& size;
  photo::JobWishes wishes;
  photo::PlannedPhoto plan;
  photo::PagePicture page;  ///< the last page, as phototopage makes it
  std::string refusal;      ///< why the page cannot be made; empty when it can
};

/// Returns where an area of the upright photo, or of the page under it, is after both are mirrored
/// and turned for the sheet. `width` and `height` are those of the whole photo or page, upright.
photo::PictureArea on_sheet(photo::PictureArea area, std::size_t width, std::size_t height,
                            const PhotoJob& job);

/// What is cut off one side of the upright photo.
struct Cut {
  const char* side;  ///< "left", "right", "top", "bottom"
  std::size_t pixels;
  double share;  ///< of the photo's width or height
  double dots;   ///< of paper that it would have taken
};

/// What stays white at one side of the page's image area, as the sheet comes out of the printer.
struct White {
  const char* side;  ///< "left", "right", "top" or "bottom"
  std::size_t dots;
  double share;  ///< of the area's width or height
};

/// How a photo will come out.
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
