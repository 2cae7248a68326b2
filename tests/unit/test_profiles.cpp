// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/test_profiles.h"

#include <lcms2.h>

#include <array>
#include <cmath>

namespace profiles {
namespace {

constexpr cmsCIExyY kD65 = {0.3127, 0.3290, 1.0};
constexpr cmsCIExyY kD50 = {0.3457, 0.3585, 1.0};
constexpr cmsCIExyYTRIPLE kSrgb = {{0.64, 0.33, 1.0}, {0.30, 0.60, 1.0}, {0.15, 0.06, 1.0}};
constexpr cmsCIExyYTRIPLE kAdobeGreen = {{0.64, 0.33, 1.0}, {0.21, 0.71, 1.0}, {0.15, 0.06, 1.0}};
constexpr cmsCIExyYTRIPLE kDyes = {{0.60, 0.34, 1.0}, {0.28, 0.58, 1.0}, {0.17, 0.10, 1.0}};

Profile saved(cmsHPROFILE handle) {
  cmsUInt32Number size = 0;
  cmsSaveProfileToMem(handle, nullptr, &size);
  Profile bytes(size);
  cmsSaveProfileToMem(handle, bytes.data(), &size);
  cmsCloseProfile(handle);
  return bytes;
}

// Light is black + (1 - black) × value ^ gamma.
cmsHPROFILE matrix(const cmsCIExyY& white, const cmsCIExyYTRIPLE& primaries, double gamma,
                   double black) {
  // (a v) ^ gamma + black, without a straight piece.
  const double a = std::pow(1.0 - black, 1.0 / gamma);
  const std::array<double, 7> curve = {gamma, a, 0.0, 0.0, 0.0, black, black};
  cmsToneCurve* const response = cmsBuildParametricToneCurve(nullptr, 5, curve.data());
  const std::array<cmsToneCurve*, 3> responses = {response, response, response};
  cmsHPROFILE handle = cmsCreateRGBProfile(&white, &primaries, responses.data());
  cmsFreeToneCurve(response);
  return handle;
}

// The colour of one node, through the transform that comes as cargo.
int sample_node(const cmsUInt16Number* in, cmsUInt16Number* out, void* toLab) {
  const std::array<double, 3> device = {in[0] / 65535.0, in[1] / 65535.0, in[2] / 65535.0};
  cmsCIELab lab{};
  cmsDoTransform(toLab, device.data(), &lab, 1);
  cmsFloat2LabEncoded(out, &lab);
  return 1;
}

cmsPipeline* table_of(cmsHPROFILE handle) {
  constexpr cmsUInt32Number kPoints = 9;
  cmsHPROFILE lab = cmsCreateLab4Profile(nullptr);
  cmsHTRANSFORM toLab = cmsCreateTransform(handle, TYPE_RGB_DBL, lab, TYPE_Lab_DBL,
                                           INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOOPTIMIZE);
  cmsStage* const nodes = cmsStageAllocCLut16bit(nullptr, kPoints, 3, 3, nullptr);
  cmsStageSampleCLut16bit(nodes, sample_node, toLab, 0);
  cmsDeleteTransform(toLab);
  cmsCloseProfile(lab);
  cmsPipeline* const table = cmsPipelineAlloc(nullptr, 3, 3);
  cmsPipelineInsertStage(table, cmsAT_END, cmsStageAllocToneCurves(nullptr, 3, nullptr));
  cmsPipelineInsertStage(table, cmsAT_END, nodes);
  cmsPipelineInsertStage(table, cmsAT_END, cmsStageAllocToneCurves(nullptr, 3, nullptr));
  return table;
}

Profile with_class(Profile bytes, const char* kind) {
  constexpr std::size_t kClass = 12;
  for (std::size_t i = 0; i < 4; ++i) {
    bytes[kClass + i] = static_cast<std::uint8_t>(kind[i]);
  }
  return bytes;
}

}  // namespace

Profile srgb() {
  return saved(cmsCreate_sRGBProfile());
}

Profile linear() {
  return saved(matrix(kD65, kSrgb, 1.0, 0.0));
}

Profile grey_black() {
  return saved(matrix(kD65, kSrgb, 1.0, 0.01));
}

Profile wide_green() {
  return saved(matrix(kD65, kAdobeGreen, 1.0, 0.0));
}

Profile matrix_printer() {
  cmsHPROFILE handle = matrix(kD50, kDyes, 1.8, 0.006);
  cmsSetDeviceClass(handle, cmsSigOutputClass);
  return saved(handle);
}

Profile table_printer() {
  cmsHPROFILE model = matrix(kD50, kDyes, 1.8, 0.006);
  cmsPipeline* const table = table_of(model);
  cmsCloseProfile(model);
  cmsHPROFILE handle = cmsCreateProfilePlaceholder(nullptr);
  cmsSetProfileVersion(handle, 4.3);
  cmsSetDeviceClass(handle, cmsSigOutputClass);
  cmsSetColorSpace(handle, cmsSigRgbData);
  cmsSetPCS(handle, cmsSigLabData);
  const cmsCIEXYZ paper = {0.90, 0.93, 0.68};
  cmsWriteTag(handle, cmsSigMediaWhitePointTag, &paper);
  cmsWriteTag(handle, cmsSigAToB0Tag, table);
  cmsLinkTag(handle, cmsSigAToB1Tag, cmsSigAToB0Tag);
  Profile bytes = saved(handle);
  cmsPipelineFree(table);
  return bytes;
}

Profile grey_display() {
  cmsToneCurve* const response = cmsBuildGamma(nullptr, 2.2);
  Profile bytes = saved(cmsCreateGrayProfile(&kD50, response));
  cmsFreeToneCurve(response);
  return bytes;
}

Profile link_of_two() {
  return with_class(table_printer(), "link");
}

Profile rgb_scanner() {
  return with_class(matrix_printer(), "scnr");
}

Profile black_only_press() {
  cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
  cmsSetProfileVersion(profile, 2.1);
  cmsSetDeviceClass(profile, cmsSigOutputClass);
  cmsSetColorSpace(profile, cmsSigCmykData);
  cmsSetPCS(profile, cmsSigLabData);
  cmsPipeline* const way = cmsPipelineAlloc(nullptr, 4, 3);
  cmsStage* const table = cmsStageAllocCLut16bit(nullptr, 2, 4, 3, nullptr);
  cmsStageSampleCLut16bit(
      table,
      [](const cmsUInt16Number* ink, cmsUInt16Number* lab, void* /*cargo*/) -> cmsInt32Number {
        lab[0] = ink[3] == 0 ? 0xFF00 : 0;  // as version 2 counts
        lab[1] = 0x8000;
        lab[2] = 0x8000;
        return 1;
      },
      nullptr, 0);
  cmsPipelineInsertStage(way, cmsAT_END, table);
  cmsWriteTag(profile, cmsSigAToB0Tag, way);
  cmsWriteTag(profile, cmsSigAToB1Tag, way);
  cmsWriteTag(profile, cmsSigMediaWhitePointTag, cmsD50_XYZ());
  cmsPipelineFree(way);
  return saved(profile);
}

std::vector<double> on_screen(const Profile& profile, std::span<const std::uint16_t> samples) {
  cmsHPROFILE device =
      cmsOpenProfileFromMem(profile.data(), static_cast<cmsUInt32Number>(profile.size()));
  cmsHPROFILE screen = cmsCreate_sRGBProfile();
  cmsHTRANSFORM transform =
      cmsCreateTransform(device, TYPE_RGB_DBL, screen, TYPE_RGB_DBL, INTENT_RELATIVE_COLORIMETRIC,
                         cmsFLAGS_NOOPTIMIZE | cmsFLAGS_NOCACHE | cmsFLAGS_BLACKPOINTCOMPENSATION);
  std::vector<double> colours(samples.begin(), samples.end());
  for (double& colour : colours) {
    colour /= 16383.0;
  }
  std::vector<double> shown(colours.size());
  cmsDoTransform(transform, colours.data(), shown.data(),
                 static_cast<cmsUInt32Number>(colours.size() / 3));
  cmsDeleteTransform(transform);
  cmsCloseProfile(screen);
  cmsCloseProfile(device);
  for (double& colour : shown) {
    colour *= 255.0;
  }
  return shown;
}

}  // namespace profiles
