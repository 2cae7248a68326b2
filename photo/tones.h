// SPDX-License-Identifier: Apache-2.0
//
// Changes of tone that a job may ask for: gamma, brightness, saturation, hue, and black and white.
#ifndef TQR7_PHOTO_TONES_H
#define TQR7_PHOTO_TONES_H

#include <cstddef>
#include <cstdint>

#include "photo/job_wishes.h"
#include "photo/picture.h"

namespace photo {

/// Changes the picture as the job wants it. White stays white.
void apply_tones(const JobWishes& wishes, Picture& picture);

/// Makes each pixel of 8-bit RGB the grey that looks as bright. Greys stay as they are.
void turn_grey(std::uint8_t* rgb, std::size_t pixels);

}  // namespace photo

#endif  // TQR7_PHOTO_TONES_H
