// SPDX-License-Identifier: Apache-2.0
//
// Objects of Little CMS that release themselves. conversion/bounded_cms.h has others, for code
// whose memory handler may end a call of Little CMS in the middle.
#ifndef TQR7_MODEL_LITTLE_CMS_HANDLES_H
#define TQR7_MODEL_LITTLE_CMS_HANDLES_H

#include <lcms2.h>

#include <memory>

namespace cms {

struct ProfileCloser {
  void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, ProfileCloser>;

struct TransformDeleter {
  void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using Transform = std::unique_ptr<void, TransformDeleter>;

struct CurveFreer {
  void operator()(cmsToneCurve* curve) const { cmsFreeToneCurve(curve); }
};
using Curve = std::unique_ptr<cmsToneCurve, CurveFreer>;

}  // namespace cms

#endif  // TQR7_MODEL_LITTLE_CMS_HANDLES_H
