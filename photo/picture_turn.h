// SPDX-License-Identifier: Apache-2.0
//
// Finished pictures turned and mirrored by Exif's eight orientations.
#ifndef TQR7_PHOTO_PICTURE_TURN_H
#define TQR7_PHOTO_PICTURE_TURN_H

#include "photo/layout.h"
#include "tools/picture.h"

namespace photo {

/// Whether a picture of this orientation has width and height exchanged.
constexpr bool swaps_sides(int orientation) {
  constexpr int kFirstSwapped = 5;
  return orientation >= kFirstSwapped;
}

/// The picture as it must be seen, when `orientation`, 1 to 8, says how it lies.
tools::Picture turned(const tools::Picture& picture, int orientation);

/// The part of a picture as it lies in its file, width x height pixels, which is this part when it
/// is seen upright.
PhotoArea area_in_file(const PhotoArea& upright, std::size_t width, std::size_t height,
                       int orientation);

/// Exchanges left and right.
void mirror(tools::Picture& picture);

}  // namespace photo

#endif  // TQR7_PHOTO_PICTURE_TURN_H
