// SPDX-License-Identifier: Apache-2.0
//
// Whether the ICC profile that a photo carries may be left out: the printing system takes every
// picture for sRGB.
#ifndef TQR7_TOOLS_PHOTO_PROFILE_H
#define TQR7_TOOLS_PHOTO_PROFILE_H

#include <cstdint>
#include <span>

namespace tools {

enum class PhotoProfile : std::uint8_t {
  Srgb,       ///< its colours are those of sRGB
  Other,      ///< colours that come out wrong when they are taken for sRGB
  Unreadable  ///< not a profile of RGB pictures, or a broken one
};

/// What the profile's bytes, which may be anything, amount to.
PhotoProfile judge_photo_profile(std::span<const std::uint8_t> bytes);

}  // namespace tools

#endif  // TQR7_TOOLS_PHOTO_PROFILE_H
