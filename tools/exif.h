// SPDX-License-Identifier: Apache-2.0
//
// The one thing that matters here of a photo's Exif data: which way up the camera says it is.
#ifndef TQR7_TOOLS_EXIF_H
#define TQR7_TOOLS_EXIF_H

#include <cstdint>
#include <span>

#include "tools/picture.h"

namespace tools {

/// The photo is as it should be seen, or the file does not say.
inline constexpr int kExifUpright = 1;

/// The orientation, 1 to 8, of Exif data: a TIFF file of either byte order, of which nothing need
/// be right. kExifUpright when it tells none that there is.
int exif_orientation(std::span<const std::uint8_t> tiff);

/// What must be done to see the photo upright: "turned by 90 degrees clockwise", …; empty for
/// kExifUpright.
const char* exif_orientation_words(int orientation);

/// The density that it says; 0 x 0 when it says none. The printing system passes over its unit and
/// takes whole numbers, and so does this.
PixelDensity exif_density(std::span<const std::uint8_t> tiff);

}  // namespace tools

#endif  // TQR7_TOOLS_EXIF_H
