// SPDX-License-Identifier: Apache-2.0
//
// Converts a photo's samples to sRGB, by its embedded profile or by what else its file says.
#ifndef TQR7_PHOTO_TO_SRGB_H
#define TQR7_PHOTO_TO_SRGB_H

#include <cstddef>
#include <cstdint>
#include <memory>

#include "photo/photo_rows.h"

class BoundedCms;

namespace photo {

/// Converts rows of one photo: relative colorimetric with black-point compensation, as in the
/// conversion for the printer. Colours that sRGB has stay as they are, and shadows keep their
/// steps.
class ToSrgb {
 public:
  explicit ToSrgb(const PhotoFacts& facts);
  ~ToSrgb();
  ToSrgb(const ToSrgb&) = delete;
  ToSrgb& operator=(const ToSrgb&) = delete;

  /// `samples` are of the photo's kind; `rgb` has room for three bytes a pixel.
  void Convert(const std::uint8_t* samples, std::uint8_t* rgb, std::size_t pixels) const;

  /// Whether the photo's profile or marks say other colours than those of sRGB.
  bool Converts() const { return transform_ != nullptr; }
  /// Whether the file has a profile that is broken or does not fit its samples.
  bool ProfilePassedOver() const { return profilePassedOver_; }

 private:
  Samples samples_;
  bool profilePassedOver_ = false;
  std::unique_ptr<BoundedCms> engine_;
  void* transform_ = nullptr;  ///< belongs to the engine; null where nothing is converted
};

}  // namespace photo

#endif  // TQR7_PHOTO_TO_SRGB_H
