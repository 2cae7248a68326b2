// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/profile_maker.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <memory>
#include <stdexcept>

#include "model/printer_model.h"

namespace {

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;

/// Closes the profile and gives its bytes.
ProfileBytes saved(cmsHPROFILE profile) {
  cmsUInt32Number size = 0;
  if (profile == nullptr || cmsSaveProfileToMem(profile, nullptr, &size) == 0) {
    throw std::runtime_error("a test's profile cannot be made");
  }
  ProfileBytes bytes(size);
  cmsSaveProfileToMem(profile, bytes.data(), &size);
  cmsCloseProfile(profile);
  return bytes;
}

Vector times(const Matrix& m, const Vector& v) {
  Vector result{};
  for (std::size_t i = 0; i < 3; ++i) {
    result[i] = m[i][0] * v[0] + m[i][1] * v[1] + m[i][2] * v[2];
  }
  return result;
}

Matrix inverse(const Matrix& m) {
  Matrix result{};
  double whole = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) {
      const Vector& a = m[(j + 1) % 3];
      const Vector& b = m[(j + 2) % 3];
      result[i][j] = a[(i + 1) % 3] * b[(i + 2) % 3] - a[(i + 2) % 3] * b[(i + 1) % 3];
    }
  }
  for (std::size_t j = 0; j < 3; ++j) {
    whole += m[0][j] * result[j][0];
  }
  for (Vector& row : result) {
    for (double& value : row) {
      value /= whole;
    }
  }
  return result;
}

/// How dense one unit of the cyan, magenta and yellow dye is to red, green and blue light.
constexpr Matrix kDyes = {{{0.85, 0.12, 0.03}, {0.15, 0.75, 0.10}, {0.05, 0.20, 0.75}}};
/// X Y Z of red, green and blue light, white D50.
constexpr Matrix kLights = {
    {{0.6000, 0.2200, 0.1442}, {0.3000, 0.6300, 0.0700}, {0.0200, 0.0700, 0.7349}}};

cmsCIELab lab_of_device(const DyeDevice& device, const Vector& values) {
  const Vector dyes = {1 - values[0], 1 - values[1], 1 - values[2]};
  Vector light = times(kDyes, dyes);
  for (double& part : light) {
    part = std::pow(10, -device.density * part);
  }
  const Vector xyz = times(kLights, light);
  const cmsCIEXYZ colour = {xyz[0], xyz[1], xyz[2]};
  cmsCIELab lab;
  cmsXYZ2Lab(nullptr, &lab, &colour);
  return lab;
}

/// The device values of a colour; false when the dyes cannot make it.
bool reach(const DyeDevice& device, const cmsCIELab& lab, Vector& values) {
  static const Matrix kToLights = inverse(kLights);
  static const Matrix kToDyes = inverse(kDyes);
  cmsCIEXYZ colour;
  cmsLab2XYZ(nullptr, &colour, &lab);
  Vector light = times(kToLights, {colour.X, colour.Y, colour.Z});
  bool reached = true;
  for (double& part : light) {
    reached = reached && part > 0;
    part = -std::log10(std::max(part, 1e-6)) / device.density;
  }
  const Vector dyes = times(kToDyes, light);
  for (std::size_t i = 0; i < 3; ++i) {
    reached = reached && dyes[i] > -1e-4 && dyes[i] < 1 + 1e-4;
    values[i] = std::clamp(1 - dyes[i], 0.0, 1.0);
  }
  return reached;
}

/// The device values of a colour, or of the nearest to it in chroma that the dyes can make.
Vector device_of_lab(const DyeDevice& device, cmsCIELab lab) {
  lab.L = std::clamp(lab.L, lab_of_device(device, {0, 0, 0}).L, 100.0);
  Vector values{};
  if (reach(device, lab, values)) {
    return values;
  }
  double inside = 0;
  double outside = 1;
  for (int step = 0; step < 14; ++step) {
    const double middle = (inside + outside) / 2;
    (reach(device, {lab.L, lab.a * middle, lab.b * middle}, values) ? inside : outside) = middle;
  }
  reach(device, {lab.L, lab.a * inside, lab.b * inside}, values);
  return values;
}

/// What a sampler needs to know.
struct Sampling {
  const DyeDevice* device;
  bool perceptual;
  bool oldLab;  ///< Lab as version 2 and tables of bytes encode it
};

cmsUInt16Number to_word(double level) {
  return static_cast<cmsUInt16Number>(std::lround(level * 65535));
}

int sample_forward(const cmsUInt16Number in[], cmsUInt16Number out[], void* cargo) {
  const auto& sampling = *static_cast<const Sampling*>(cargo);
  Vector values{};
  for (std::size_t i = 0; i < 3; ++i) {
    values[i] = in[i] / 65535.0;
    values[i] = sampling.device->turnedRound ? 1 - values[i] : values[i];
  }
  const cmsCIELab lab = lab_of_device(*sampling.device, values);
  sampling.oldLab ? cmsFloat2LabEncodedV2(out, &lab) : cmsFloat2LabEncoded(out, &lab);
  return 1;
}

int sample_back(const cmsUInt16Number in[], cmsUInt16Number out[], void* cargo) {
  const auto& sampling = *static_cast<const Sampling*>(cargo);
  const DyeDevice& device = *sampling.device;
  cmsCIELab lab;
  sampling.oldLab ? cmsLabEncoded2FloatV2(&lab, in) : cmsLabEncoded2Float(&lab, in);
  if (sampling.perceptual) {
    const double black = lab_of_device(device, {0, 0, 0}).L;
    lab.L = black + (100 - black) * lab.L / 100;
    lab.a *= device.chromaKept;
    lab.b *= device.chromaKept;
  }
  const Vector values = device.oneColour ? Vector{1, 1, 1} : device_of_lab(device, lab);
  for (std::size_t i = 0; i < 3; ++i) {
    out[i] = to_word(device.turnedRound ? 1 - values[i] : values[i]);
  }
  return 1;
}

cmsStage* identity_curves() {
  cmsToneCurve* curve = cmsBuildGamma(nullptr, 1);
  const std::array<cmsToneCurve*, 3> curves = {curve, curve, curve};
  cmsStage* stage = cmsStageAllocToneCurves(nullptr, 3, curves.data());
  cmsFreeToneCurve(curve);
  return stage;
}

void write_table(cmsHPROFILE profile, cmsTagSignature tag, cmsSAMPLER16 sampler,
                 Sampling& sampling) {
  cmsPipeline* table = cmsPipelineAlloc(nullptr, 3, 3);
  cmsStage* grid = cmsStageAllocCLut16bit(nullptr, sampling.device->grid, 3, 3, nullptr);
  cmsStageSampleCLut16bit(grid, sampler, &sampling, 0);
  cmsPipelineInsertStage(table, cmsAT_END, identity_curves());
  cmsPipelineInsertStage(table, cmsAT_END, grid);
  cmsPipelineInsertStage(table, cmsAT_END, identity_curves());
  cmsPipelineSetSaveAs8bitsFlag(table, sampling.device->eightBits ? 1 : 0);
  const bool written = cmsWriteTag(profile, tag, table) != 0;
  cmsPipelineFree(table);
  if (!written) {
    throw std::runtime_error("a test's table cannot be written");
  }
}

cmsHPROFILE new_profile(cmsProfileClassSignature kind, cmsColorSpaceSignature device,
                        cmsColorSpaceSignature connection, double version) {
  cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
  cmsSetProfileVersion(profile, version);
  cmsSetDeviceClass(profile, kind);
  cmsSetColorSpace(profile, device);
  cmsSetPCS(profile, connection);
  cmsWriteTag(profile, cmsSigMediaWhitePointTag, cmsD50_XYZ());
  return profile;
}

}  // namespace

ProfileBytes matrix_profile(const MatrixDevice& device) {
  const cmsCIExyY white = {0.3127, 0.3290, 1};
  cmsToneCurve* curve = cmsBuildGamma(nullptr, device.gamma);
  const std::array<cmsToneCurve*, 3> curves = {curve, curve, curve};
  cmsHPROFILE profile = cmsCreateRGBProfile(&white, &device.primaries, curves.data());
  cmsFreeToneCurve(curve);
  cmsSetProfileVersion(profile, device.version);
  cmsSetDeviceClass(profile, device.kind);
  return saved(profile);
}

ProfileBytes dye_profile(const DyeDevice& device) {
  cmsHPROFILE profile =
      new_profile(cmsSigOutputClass, cmsSigRgbData, cmsSigLabData, device.version);
  Sampling perceptual = {&device, true, device.version < 4};
  Sampling colorimetric = {&device, false, device.version < 4};
  write_table(profile, cmsSigAToB0Tag, sample_forward, colorimetric);
  if (device.backToDevice) {
    write_table(profile, cmsSigBToA0Tag, sample_back, perceptual);
  }
  if (device.bothIntents) {
    write_table(profile, cmsSigAToB1Tag, sample_forward, colorimetric);
    if (device.backToDevice) {
      write_table(profile, cmsSigBToA1Tag, sample_back, colorimetric);
    }
  }
  return saved(profile);
}

ProfileBytes model_bytes() {
  const auto bytes = printer_model_profile();
  return {bytes.begin(), bytes.end()};
}

ProfileBytes gray_profile() {
  cmsToneCurve* curve = cmsBuildGamma(nullptr, 2.2);
  cmsHPROFILE profile = cmsCreateGrayProfile(cmsD50_xyY(), curve);
  cmsFreeToneCurve(curve);
  return saved(profile);
}

ProfileBytes cmyk_profile() {
  return saved(new_profile(cmsSigOutputClass, cmsSigCmykData, cmsSigLabData, 4.3));
}

ProfileBytes device_link_profile() {
  return saved(cmsCreateInkLimitingDeviceLink(cmsSigCmykData, 300));
}

ProfileBytes abstract_profile() {
  return saved(cmsCreateBCHSWabstractProfile(9, 10, 1, 0, 1, 5000, 5000));
}

ProfileBytes with_header_word(ProfileBytes profile, std::size_t offset, cmsUInt32Number word) {
  for (std::size_t i = 0; i < 4; ++i) {
    profile.at(offset + i) = static_cast<unsigned char>(word >> (24 - 8 * i));
  }
  return profile;
}
