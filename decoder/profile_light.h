// SPDX-License-Identifier: Apache-2.0
//
// An ICC profile read as the eye reads a print: from device values to linear light, by Little CMS.
#ifndef TQR7_DECODER_PROFILE_LIGHT_H
#define TQR7_DECODER_PROFILE_LIGHT_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace decoder {

/// No printer's profile is larger; a file that is, is something else.
inline constexpr std::size_t kProfileBytesMost = std::size_t{4} << 20U;

/// A profile's way from its device to light, relative colorimetric with black-point compensation:
/// the device's white becomes the screen's white, its black the screen's black.
class ProfileLight {
 public:
  /// Reads a profile of an RGB printer or display. Null when it cannot be used; `why` then says the
  /// reason. The bytes may be anything, and are not kept.
  static std::unique_ptr<ProfileLight> Open(std::span<const std::uint8_t> profile,
                                            std::string& why);

  ProfileLight(const ProfileLight&) = delete;
  ProfileLight& operator=(const ProfileLight&) = delete;
  ~ProfileLight();

  /// The profile is a matrix behind one curve a channel: each channel adds its own light, whatever
  /// the others do.
  bool ChannelsAdd() const;

  /// `pixels` pixels of R, G, B in 0 … 65535 to light in the primaries of sRGB; colours that a
  /// screen cannot show lie outside 0 … 1. Both arrays hold 3 values a pixel.
  void ToLight(const std::uint16_t* device, float* light, std::uint32_t pixels) const;

 private:
  struct Engine;
  explicit ProfileLight(std::unique_ptr<Engine> engine);

  std::unique_ptr<Engine> engine_;
};

}  // namespace decoder

#endif  // TQR7_DECODER_PROFILE_LIGHT_H
