// SPDX-License-Identifier: Apache-2.0
//
// What CUPS lets a job do to a picture's tones: gamma, brightness, saturation, hue, and black
// and white.
#ifndef TQR7_PHOTO_TONES_H
#define TQR7_PHOTO_TONES_H

#include "photo/job_wishes.h"
#include "tools/picture.h"

namespace photo {

/// Changes the picture as the wishes say. White stays white; without wishes nothing changes.
void apply_tones(const JobWishes& wishes, tools::Picture& picture);

}  // namespace photo

#endif  // TQR7_PHOTO_TONES_H
