// SPDX-License-Identifier: Apache-2.0
//
// Which part of a photo comes to which dots of the page. The photo is meant upright here, as one
// looks at it, and the page as it lies under it; how both are turned for the sheet is said beside.
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

/// A part of the photo and where it goes.
struct Placing {
  PictureArea from;
  DotArea to;
};

struct Layout {
  std::size_t pageWidth;   ///< dots, as one looks at the upright photo
  std::size_t pageHeight;  ///< the same
  /// How that page is turned to be the sheet's, as Exif counts orientations: 1 not at all, 8 a
  /// quarter to the left, 6 to the right, 3 upside down.
  int turn;
  std::vector<Placing> pages;  ///< one each; none when the photo would need too many
};

/// The shape of an upright photo.
struct PhotoShape {
  std::size_t width;
  std::size_t height;
  double perInchAcross;  ///< pixels to the inch; 0 where the file does not say
  double perInchDown;    ///< the same
};

/// How many times as wide as high the photo's pixels are printed. What a file says beyond twice or
/// half is an error of its own and would distort the photo: such pixels count as square.
double pixel_aspect(const PhotoShape& photo);

/// Pages that one photo may be spread over.
inline constexpr std::size_t kPagesMost = 100;

/// A photo whose shape is this near to the page's fills it when it is to fit: hairlines of white at
/// two edges look like a fault, and less than half a millimetre of the photo is lost.
inline constexpr double kNearlyThePage = 0.005;

/// Lays out a photo on a page of this many dots.
Layout lay_out(const PhotoShape& photo, std::size_t pageWidth, std::size_t pageHeight,
               const JobWishes& wishes);

}  // namespace photo

#endif  // TQR7_PHOTO_LAYOUT_H
