// SPDX-License-Identifier: Apache-2.0
#include "bench/table_profile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <memory>
#include <stdexcept>

#include "bench/colour_space.h"

namespace bench {

namespace {

using Vector = std::array<double, 3>;

// Density of each dye in its own band at full amount, and how much of it falls into the two others.
constexpr double kDensity = 1.9;
constexpr double kBeside = 0.13;
// Dye amount over 1 − device value.
constexpr double kCurve = 1.4;

struct StageList {
  struct Freer {
    void operator()(cmsPipeline* stages) const { cmsPipelineFree(stages); }
  };
  std::unique_ptr<cmsPipeline, Freer> pipeline{cmsPipelineAlloc(nullptr, 3, 3)};

  void add(cmsStage* stage) const {
    if (stage == nullptr || cmsPipelineInsertStage(pipeline.get(), cmsAT_END, stage) == 0) {
      throw std::runtime_error("Little CMS cannot make a table");
    }
  }
};

/// The light that the bands reflect, as linear sRGB; each band takes the dyes' densities.
Vector light_of_device(const Vector& device) {
  Vector dye{};
  for (std::size_t i = 0; i < 3; ++i) {
    dye[i] = std::pow(1.0 - device[i], kCurve);
  }
  const double all = dye[0] + dye[1] + dye[2];
  Vector light{};
  for (std::size_t i = 0; i < 3; ++i) {
    light[i] = std::pow(10.0, -kDensity * (dye[i] + kBeside * (all - dye[i])));
  }
  return light;
}

/// The way back. A band that should be darker than all dyes make it is taken to be that dark, and
/// amounts that no dye has become the nearest that it has.
Vector device_of_light(const Vector& light) {
  const double darkest = std::pow(10.0, -kDensity * (1.0 + 2.0 * kBeside));
  Vector density{};
  for (std::size_t i = 0; i < 3; ++i) {
    density[i] = -std::log10(std::max(light[i], darkest)) / kDensity;
  }
  const double all = (density[0] + density[1] + density[2]) / (1.0 + 2.0 * kBeside);
  Vector device{};
  for (std::size_t i = 0; i < 3; ++i) {
    const double dye = (density[i] - kBeside * all) / (1.0 - kBeside);
    device[i] = 1.0 - std::pow(std::clamp(dye, 0.0, 1.0), 1.0 / kCurve);
  }
  return device;
}

cmsInt32Number print_of_node(const cmsUInt16Number* in, cmsUInt16Number* out, void* /*cargo*/) {
  const Vector light = light_of_device({in[0] / 65535.0, in[1] / 65535.0, in[2] / 65535.0});
  const Lab lab =
      lab_of_levels({level_of_light(light[0]), level_of_light(light[1]), level_of_light(light[2])});
  const cmsCIELab colour{lab.lightness, lab.a, lab.b};
  cmsFloat2LabEncoded(out, &colour);
  return 1;
}

cmsInt32Number device_of_node(const cmsUInt16Number* in, cmsUInt16Number* out, void* /*cargo*/) {
  cmsCIELab colour;
  cmsLabEncoded2Float(&colour, in);
  const Vector levels = levels_of({colour.L, colour.a, colour.b});
  const Vector device = device_of_light(
      {light_of_level(levels[0]), light_of_level(levels[1]), light_of_level(levels[2])});
  for (std::size_t i = 0; i < 3; ++i) {
    out[i] = static_cast<cmsUInt16Number>(std::lround(device[i] * 65535.0));
  }
  return 1;
}

/// Curves that change nothing, the table, and such curves again: the parts that the tag must have.
StageList sampled(cmsSAMPLER16 sampler) {
  constexpr cmsUInt32Number kPoints = 33;
  StageList stages;
  stages.add(cmsStageAllocToneCurves(nullptr, 3, nullptr));
  cmsStage* table = cmsStageAllocCLut16bit(nullptr, kPoints, 3, 3, nullptr);
  stages.add(table);
  stages.add(cmsStageAllocToneCurves(nullptr, 3, nullptr));
  if (cmsStageSampleCLut16bit(table, sampler, nullptr, 0) == 0) {
    throw std::runtime_error("Little CMS cannot fill a table");
  }
  return stages;
}

}  // namespace

ProfileBytes table_profile() {
  const Profile profile(cmsCreateProfilePlaceholder(nullptr));
  cmsSetProfileVersion(profile.get(), 4.3);
  cmsSetDeviceClass(profile.get(), cmsSigOutputClass);
  cmsSetColorSpace(profile.get(), cmsSigRgbData);
  cmsSetPCS(profile.get(), cmsSigLabData);
  const StageList print = sampled(print_of_node);
  const StageList device = sampled(device_of_node);
  const bool written = cmsWriteTag(profile.get(), cmsSigMediaWhitePointTag, cmsD50_XYZ()) != 0 &&
                       cmsWriteTag(profile.get(), cmsSigAToB0Tag, print.pipeline.get()) != 0 &&
                       cmsLinkTag(profile.get(), cmsSigAToB1Tag, cmsSigAToB0Tag) != 0 &&
                       cmsWriteTag(profile.get(), cmsSigBToA0Tag, device.pipeline.get()) != 0 &&
                       cmsLinkTag(profile.get(), cmsSigBToA1Tag, cmsSigBToA0Tag) != 0;
  if (!written) {
    throw std::runtime_error("Little CMS cannot write the table profile");
  }
  return saved(profile);
}

}  // namespace bench
