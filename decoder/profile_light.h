// SPDX-License-Identifier: Apache-2.0
//
// Reads an ICC profile in the direction in which people see a print: from device values to linear
// light, by Little CMS.
#ifndef TQR7_DECODER_PROFILE_LIGHT_H
#define TQR7_DECODER_PROFILE_LIGHT_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace decoder {

/// No printer's profile is larger.
inline constexpr std::size_t kProfileBytesMost = std::size_t{4} << 20U;

/// Converts device values to light by a profile, relative colorimetric with black-point
/// compensation: the device's white becomes the screen's white, and its black the screen's black.
class ProfileLight {
 public:
  /// Reads a profile of an RGB printer or display. Returns null when it cannot be used, and says
  /// the reason in `why`. The bytes may be anything, and are not kept.
  static std::unique_ptr<ProfileLight> Open(std::span<const std::uint8_t> profile,
                                            std::string& why);

  ProfileLight(const ProfileLight&) = delete;
  ProfileLight& operator=(const ProfileLight&) = delete;
  ~ProfileLight();

  /// Whether the profile has one curve for each channel and then a matrix, so that each channel
  /// adds its own light, whatever the others are.
  bool ChannelsAdd() const;

  /// Converts `pixels` pixels of R, G, B, 0 … 65535, to light in the primaries of sRGB. Colours
  /// that a screen cannot show are outside 0 … 1. Both arrays have 3 values a pixel.
  void ToLight(const std::uint16_t* device, float* light, std::uint32_t pixels) const;

 private:
  struct Engine;
  explicit ProfileLight(std::unique_ptr<Engine> engine);

  std::unique_ptr<Engine> engine_;
};

}  // namespace decoder

#endif  // TQR7_DECODER_PROFILE_LIGHT_H
