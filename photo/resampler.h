// SPDX-License-Identifier: Apache-2.0
//
// Brings a part of a picture to a size in dots. The picture is read row by row, and only a strip of
// it is in memory, however large it is.
//
// A smaller picture is made of averages of light, as the eye does it with paper: averages of sRGB
// numbers, which are no amounts of light, would darken fine patterns. A larger picture is made of
// the numbers, because their steps look even: overshoots at an edge are equally faint on both
// sides.
#ifndef TQR7_PHOTO_RESAMPLER_H
#define TQR7_PHOTO_RESAMPLER_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "photo/layout.h"
#include "photo/picture.h"

namespace photo {

/// Writes the next row of the picture, 8-bit sRGB. Returns why it cannot, or nothing.
using NextRow = std::function<std::string(std::uint8_t* rgb)>;

/// Brings `area` of a picture of width x height pixels to the size of `result`. `next` is called
/// for each row from the first on, but not for rows below the area. Returns why it cannot, or
/// nothing.
std::string resample(std::size_t width, std::size_t height, const PictureArea& area,
                     const NextRow& next, Picture& result);

}  // namespace photo

#endif  // TQR7_PHOTO_RESAMPLER_H
