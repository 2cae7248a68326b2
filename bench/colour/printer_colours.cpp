// SPDX-License-Identifier: Apache-2.0
#include "bench/colour/printer_colours.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace bench {

namespace {

// Optimised pipelines are tables and rounded numbers; the truth is worked out stage by stage.
constexpr cmsUInt32Number kExactly = cmsFLAGS_NOOPTIMIZE | cmsFLAGS_NOCACHE;

void* made(void* thing, const char* what) {
  if (thing == nullptr) {
    throw std::runtime_error(std::string("Little CMS cannot make ") + what);
  }
  return thing;
}

template <typename From, typename To>
std::vector<To> transformed(const cms::Transform& transform, std::span<const From> colours) {
  std::vector<To> result(colours.size());
  cmsDoTransform(transform.get(), colours.data(), result.data(),
                 static_cast<cmsUInt32Number>(colours.size()));
  return result;
}

}  // namespace

cms::Profile profile_of(std::span<const unsigned char> bytes) {
  return cms::Profile(
      made(cmsOpenProfileFromMem(bytes.data(), static_cast<cmsUInt32Number>(bytes.size())),
           "a profile of these bytes"));
}

std::vector<unsigned char> read_profile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::vector<unsigned char> bytes{std::istreambuf_iterator<char>(file),
                                   std::istreambuf_iterator<char>()};
  if (!file || bytes.empty()) {
    throw std::runtime_error(path + ": cannot be read");
  }
  return bytes;
}

cms::Transform transform_between(const cms::Profile& from, cmsUInt32Number from_layout,
                                 const cms::Profile& to, cmsUInt32Number to_layout,
                                 cmsUInt32Number flags) {
  return cms::Transform(made(cmsCreateTransform(from.get(), from_layout, to.get(), to_layout,
                                                INTENT_RELATIVE_COLORIMETRIC, flags),
                             "the transform"));
}

PrinterColours::PrinterColours(const cms::Profile& profile) {
  const cms::Profile srgb(made(cmsCreate_sRGBProfile(), "the sRGB profile"));
  const cms::Profile lab(made(cmsCreateLab4Profile(nullptr), "the Lab profile"));
  from_srgb_ = transform_between(srgb, TYPE_RGB_DBL, profile, TYPE_RGB_DBL,
                                 kExactly | cmsFLAGS_BLACKPOINTCOMPENSATION);
  to_lab_ = transform_between(profile, TYPE_RGB_DBL, lab, TYPE_Lab_DBL, kExactly);
  from_lab_ = transform_between(lab, TYPE_Lab_DBL, profile, TYPE_RGB_DBL, kExactly);
}

std::vector<DeviceColour> PrinterColours::device_of(std::span<const Rgb8> colours) const {
  std::vector<DeviceColour> levels(colours.size());
  std::transform(colours.begin(), colours.end(), levels.begin(), on_screen);
  return transformed<DeviceColour, DeviceColour>(from_srgb_, levels);
}

std::vector<cmsCIELab> PrinterColours::look_of(std::span<const DeviceColour> devices) const {
  return transformed<DeviceColour, cmsCIELab>(to_lab_, devices);
}

DeviceColour PrinterColours::device_for(const cmsCIELab& colour) const {
  return transformed<cmsCIELab, DeviceColour>(from_lab_, {&colour, 1}).front();
}

bool printable(const DeviceColour& device) {
  constexpr double kSlack = 0.001 / 255.0;
  return std::all_of(device.begin(), device.end(),
                     [](double value) { return value >= -kSlack && value <= 1.0 + kSlack; });
}

DeviceColour clipped(const DeviceColour& device) {
  return {std::clamp(device[0], 0.0, 1.0), std::clamp(device[1], 0.0, 1.0),
          std::clamp(device[2], 0.0, 1.0)};
}

DeviceColour on_screen(const Rgb8& colour) {
  return {colour[0] / 255.0, colour[1] / 255.0, colour[2] / 255.0};
}

}  // namespace bench
