// SPDX-License-Identifier: Apache-2.0
//
// Which part of the photo is printed on which dots of the page. All places are those of the upright
// photo, on a page that is turned the same way. Layout::turn says how the finished page is turned
// to be the sheet's.
#ifndef TQR7_PHOTO_LAYOUT_H
#define TQR7_PHOTO_LAYOUT_H

#include <cstddef>
#include <vector>

#include "photo/job_wishes.h"
#include "photo/picture.h"

namespace photo {

/// Dots of a page.
struct DotArea {
  std::size_t left;
  std::size_t top;
  std::size_t width;
  std::size_t height;
};

/// A part of the photo, and the dots that it is printed on.
struct Placing {
  PictureArea from;
  DotArea to;
};

struct Layout {
  std::size_t pageWidth;   ///< dots of the page under the upright photo
  std::size_t pageHeight;  ///< the same
  /// The page's turn in Exif's numbers: 1 is none, 8 a quarter to the left, 6 a quarter to the
  /// right, 3 upside down.
  int turn;
  std::vector<Placing> pages;  ///< empty when the photo would need more than kPagesMost
};

/// The size and density of an upright photo.
struct PhotoShape {
  std::size_t width;
  std::size_t height;
  double perInchAcross;  ///< pixels to the inch; 0 where the file does not say
  double perInchDown;    ///< the same
};

/// The width of the photo's pixels as a multiple of their height. A file that says more than 2 or
/// less than a half is taken to be wrong: its pixels count as square.
double pixel_aspect(const PhotoShape& photo);

/// The most pages that one photo may take.
inline constexpr std::size_t kPagesMost = 100;

/// A photo that fits the page to within this share of its width and height covers it instead. White
/// hairlines at two edges would look like a fault, and less than half a millimetre of the photo is
/// lost.
inline constexpr double kNearlyThePage = 0.005;

/// Lays out a photo on a page of this many dots.
Layout lay_out(const PhotoShape& photo, std::size_t pageWidth, std::size_t pageHeight,
               const JobWishes& wishes);

}  // namespace photo

#endif  // TQR7_PHOTO_LAYOUT_H
