// SPDX-License-Identifier: Apache-2.0
//
// A part of a picture brought to a size in dots. The picture passes by row by row, so that only a
// strip of it is in memory, whatever its size.
//
// What is made smaller is averaged as light, as the eye does with paper: averaging the numbers of
// sRGB, which are no amounts of light, would darken fine patterns. What is made larger keeps to the
// numbers, whose steps look even: overshoots beside an edge are then equally faint on both sides.
#ifndef TQR7_PHOTO_RESAMPLER_H
#define TQR7_PHOTO_RESAMPLER_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "photo/layout.h"
#include "photo/picture.h"

namespace photo {

/// Writes the next row of the picture, 8-bit sRGB, or says why there is none.
using NextRow = std::function<std::string(std::uint8_t* rgb)>;

/// Brings `area` of a picture of width x height pixels, which `next` gives from its first row on,
/// to the size that `result` has. Says why not, or nothing. Rows below the area are not asked for.
std::string resample(std::size_t width, std::size_t height, const PictureArea& area,
                     const NextRow& next, Picture& result);

}  // namespace photo

#endif  // TQR7_PHOTO_RESAMPLER_H
