// SPDX-License-Identifier: Apache-2.0
//
// A photo's samples as sRGB, by the profile that it carries or by what else its file says.
#ifndef TQR7_PHOTO_TO_SRGB_H
#define TQR7_PHOTO_TO_SRGB_H

#include <cstddef>
#include <cstdint>
#include <memory>

#include "photo/photo_rows.h"

class BoundedCms;

namespace photo {

/// Converts rows of one photo. Relative colorimetric with black-point compensation, as the
/// conversion for the printer itself: what the printer's colours can show stays as it is, and
/// shadows keep their steps.
class ToSrgb {
 public:
  explicit ToSrgb(const PhotoFacts& facts);
  ~ToSrgb();
  ToSrgb(const ToSrgb&) = delete;
  ToSrgb& operator=(const ToSrgb&) = delete;

  /// `samples` are of the photo's kind; `rgb` has room for three bytes a pixel.
  void Convert(const std::uint8_t* samples, std::uint8_t* rgb, std::size_t pixels) const;

  /// The photo's colours are others than those of sRGB.
  bool Converts() const { return transform_ != nullptr; }
  /// The file has a profile that does not fit its samples or is broken; it was passed over.
  bool ProfilePassedOver() const { return profilePassedOver_; }

 private:
  Samples samples_;
  bool profilePassedOver_ = false;
  std::unique_ptr<BoundedCms> engine_;
  void* transform_ = nullptr;  ///< belongs to the engine; null where nothing is to be converted
};

}  // namespace photo

#endif  // TQR7_PHOTO_TO_SRGB_H
