// SPDX-License-Identifier: Apache-2.0
//
// What matters here of a photo's Exif data: which way up the camera says it is, how large its
// pixels are, and whether it counts colours in another way than most.
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

/// Whether the camera has marked the photo as Adobe RGB: many set that mark, which the rules of
/// their file system have for it, in place of a profile.
bool exif_says_adobe_rgb(std::span<const std::uint8_t> tiff);

}  // namespace tools

#endif  // TQR7_TOOLS_EXIF_H
