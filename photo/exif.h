// SPDX-License-Identifier: Apache-2.0
//
// What printing needs of a photo's Exif data: which way up the photo is, how large its pixels are,
// and whether its colours are those of Adobe RGB.
#ifndef TQR7_PHOTO_EXIF_H
#define TQR7_PHOTO_EXIF_H

#include <cstdint>
#include <span>

namespace photo {

/// The photo is as it should be seen, or the file does not say.
inline constexpr int kExifUpright = 1;

/// Whole pixels to the inch; 0 where the file does not say.
struct PixelDensity {
  bool IsKnown() const { return across > 0 && down > 0; }

  std::uint32_t across = 0;
  std::uint32_t down = 0;
};

/// Returns the orientation, 1 to 8, of Exif data: a TIFF file of either byte order, which may be
/// broken anywhere. Returns kExifUpright when the data has none, or one that does not exist.
int exif_orientation(std::span<const std::uint8_t> tiff);

/// Returns the density; 0 x 0 when the data has none. Like the printing system, it ignores the unit
/// and what comes after a number's point.
PixelDensity exif_density(std::span<const std::uint8_t> tiff);

/// Whether the camera has marked the photo as Adobe RGB. Many cameras set this mark, as the rules
/// for their file systems say, and embed no profile.
bool exif_says_adobe_rgb(std::span<const std::uint8_t> tiff);

}  // namespace photo

#endif  // TQR7_PHOTO_EXIF_H
