// SPDX-License-Identifier: Apache-2.0
//
// Little CMS for measuring: what cannot be made throws std::runtime_error.
#ifndef TQR7_BENCH_LITTLE_CMS_H
#define TQR7_BENCH_LITTLE_CMS_H

#include <lcms2.h>

#include <span>
#include <string>
#include <vector>

#include "model/little_cms_handles.h"

namespace bench {

using cms::Profile;
using cms::Transform;

/// The pixel layouts for Little CMS's float pipeline, which does not clip.
inline constexpr cmsUInt32Number kRgbFloat = TYPE_RGB_DBL;
inline constexpr cmsUInt32Number kLabFloat = TYPE_Lab_DBL;

using ProfileBytes = std::vector<unsigned char>;

/// A file's bytes.
ProfileBytes read_profile(const std::string& path);

Profile opened(std::span<const unsigned char> bytes);
Profile srgb_profile();
Profile lab_profile();

/// The bytes that a profile made in memory would have as a file.
ProfileBytes saved(const Profile& profile);

Transform transform_between(const Profile& from, cmsUInt32Number fromLayout, const Profile& to,
                            cmsUInt32Number toLayout, cmsUInt32Number intent,
                            cmsUInt32Number flags);

}  // namespace bench

#endif  // TQR7_BENCH_LITTLE_CMS_H
