// SPDX-License-Identifier: Apache-2.0
#include "bench/printer_colours.h"

#include <algorithm>

#include "bench/page_conversion.h"

namespace bench {

namespace {

// Optimised pipelines are tables and rounded numbers; the truth is worked out stage by stage.
constexpr cmsUInt32Number kExactly = cmsFLAGS_NOOPTIMIZE | cmsFLAGS_NOCACHE;

// Lab is handed to Little CMS as three doubles.
static_assert(sizeof(Lab) == sizeof(cmsCIELab));

cmsUInt32Number count_of(std::size_t size) {
  return static_cast<cmsUInt32Number>(size);
}

}  // namespace

DeviceColour clipped(const DeviceColour& device) {
  return {std::clamp(device[0], 0.0, 1.0), std::clamp(device[1], 0.0, 1.0),
          std::clamp(device[2], 0.0, 1.0)};
}

bool printable(const DeviceColour& device) {
  constexpr double kSlack = 0.001 / 255.0;
  return std::all_of(device.begin(), device.end(),
                     [](double value) { return value >= -kSlack && value <= 1.0 + kSlack; });
}

DeviceColour device_of_samples(const std::uint16_t* samples) {
  return {samples[0] / kFullScale, samples[1] / kFullScale, samples[2] / kFullScale};
}

PrinterColours::PrinterColours(std::span<const unsigned char> profile) {
  const Profile printer = opened(profile);
  const Profile srgb = srgb_profile();
  const Profile lab = lab_profile();
  fromSrgb_ = transform_between(srgb, kRgbFloat, printer, kRgbFloat, INTENT_RELATIVE_COLORIMETRIC,
                                kExactly | cmsFLAGS_BLACKPOINTCOMPENSATION);
  toLab_ =
      transform_between(printer, kRgbFloat, lab, kLabFloat, INTENT_RELATIVE_COLORIMETRIC, kExactly);
  fromLab_ =
      transform_between(lab, kLabFloat, printer, kRgbFloat, INTENT_RELATIVE_COLORIMETRIC, kExactly);
}

std::vector<DeviceColour> PrinterColours::device_of(std::span<const Rgb8> colours) const {
  std::vector<DeviceColour> levels;
  levels.reserve(colours.size());
  for (const Rgb8& colour : colours) {
    levels.push_back({colour[0] / 255.0, colour[1] / 255.0, colour[2] / 255.0});
  }
  std::vector<DeviceColour> devices(colours.size());
  cmsDoTransform(fromSrgb_.get(), levels.data(), devices.data(), count_of(levels.size()));
  return devices;
}

std::vector<Lab> PrinterColours::print_of(std::span<const DeviceColour> devices) const {
  std::vector<Lab> prints(devices.size());
  cmsDoTransform(toLab_.get(), devices.data(), prints.data(), count_of(devices.size()));
  return prints;
}

std::vector<DeviceColour> PrinterColours::device_for(std::span<const Lab> colours) const {
  std::vector<DeviceColour> devices(colours.size());
  cmsDoTransform(fromLab_.get(), colours.data(), devices.data(), count_of(colours.size()));
  return devices;
}

}  // namespace bench
