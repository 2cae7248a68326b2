// SPDX-License-Identifier: Apache-2.0
//
// What an ICC profile says of a printer or a screen, worked out by Little CMS in floating point:
// the truth that the conversion is held to. What cannot be made throws std::runtime_error.
#ifndef TQR7_BENCH_COLOUR_PRINTER_COLOURS_H
#define TQR7_BENCH_COLOUR_PRINTER_COLOURS_H

#include <lcms2.h>

#include <array>
#include <span>
#include <string>
#include <vector>

#include "bench/colour/picture.h"
#include "model/little_cms_handles.h"

namespace bench {

/// Amounts of R, G, B light that a device is asked for; it can show 0 … 1.
using DeviceColour = std::array<double, 3>;

/// The profile in a file.
cms::Profile profile_of(std::span<const unsigned char> bytes);
/// A file's bytes.
std::vector<unsigned char> read_profile(const std::string& path);

cms::Transform transform_between(const cms::Profile& from, cmsUInt32Number from_layout,
                                 const cms::Profile& to, cmsUInt32Number to_layout,
                                 cmsUInt32Number flags);

/// A device as its profile describes it, relative colorimetric.
class PrinterColours {
 public:
  explicit PrinterColours(const cms::Profile& profile);

  /// The device colour of each sRGB colour, with black-point compensation, not clipped where the
  /// profile's kind allows it (a matrix does, a table does not).
  std::vector<DeviceColour> device_of(std::span<const Rgb8> colours) const;

  /// What each device colour looks like, seen relative to the paper's white.
  std::vector<cmsCIELab> look_of(std::span<const DeviceColour> devices) const;

  /// The device colour nearest to a Lab colour, without black-point compensation.
  DeviceColour device_for(const cmsCIELab& colour) const;

 private:
  cms::Transform from_srgb_;
  cms::Transform to_lab_;
  cms::Transform from_lab_;
};

/// Whether the device can show it, give or take a thousandth of an 8-bit step.
bool printable(const DeviceColour& device);
/// With what it cannot show clipped, channel by channel.
DeviceColour clipped(const DeviceColour& device);
/// sRGB as a device colour of the screen.
DeviceColour on_screen(const Rgb8& colour);

}  // namespace bench

#endif  // TQR7_BENCH_COLOUR_PRINTER_COLOURS_H
