// SPDX-License-Identifier: Apache-2.0
#include "photo/to_srgb.h"

#include <lcms2.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "conversion/bounded_cms.h"

namespace photo {
namespace {

constexpr std::size_t kMemory = 64UL * 1024 * 1024;
constexpr char kUnusable[] = "unusable";
constexpr std::size_t kColours = 3;
constexpr std::size_t kInks = 4;
constexpr unsigned kFull = 255;

// What a transform is made from, and the transform.
struct Making {
  const PhotoFacts* facts;
  void* transform;  ///< null where the samples are sRGB already
};

cmsUInt32Number format_of(Samples samples) {
  switch (samples) {
    case Samples::Grey:
      return TYPE_GRAY_8;
    case Samples::Cmyk:
      return TYPE_CMYK_8;
    case Samples::CmykInverted:
      return TYPE_CMYK_8_REV;
    default:
      return TYPE_RGB_8;
  }
}

// Files that say sRGB in numbers round them: gamma to 45455/100000, chromaticities to thousandths.
bool is_near(double one, double other, double most) {
  return std::abs(one - other) <= most;
}

constexpr Primaries kSrgb = {{0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}, {0.3127, 0.3290}};
constexpr Primaries kAdobeRgb = {{0.64, 0.33}, {0.21, 0.71}, {0.15, 0.06}, {0.3127, 0.3290}};
constexpr double kAdobeGamma = 563.0 / 256;  // of Adobe RGB (1998)
constexpr double kUsualGamma = 2.2;

bool is_near(const Primaries& one, const Primaries& other) {
  constexpr double kMost = 0.005;
  for (int i = 0; i < 2; ++i) {
    if (!is_near(one.red[i], other.red[i], kMost) ||
        !is_near(one.green[i], other.green[i], kMost) ||
        !is_near(one.blue[i], other.blue[i], kMost) ||
        !is_near(one.white[i], other.white[i], kMost)) {
      return false;
    }
  }
  return true;
}

void* make_rgb_profile(cmsContext context, const Primaries& primaries, double gamma) {
  const cmsCIExyY white = {primaries.white[0], primaries.white[1], 1};
  const cmsCIExyYTRIPLE rgb = {{primaries.red[0], primaries.red[1], 1},
                               {primaries.green[0], primaries.green[1], 1},
                               {primaries.blue[0], primaries.blue[1], 1}};
  cmsToneCurve* const curve = cmsBuildGamma(context, gamma);
  cmsToneCurve* const curves[] = {curve, curve, curve};
  return curve != nullptr ? cmsCreateRGBProfileTHR(context, &white, &rgb, curves) : nullptr;
}

// Returns a profile of the file's marks and numbers; null when it has none, or they say sRGB.
void* profile_of_marks(cmsContext context, const PhotoFacts& facts) {
  if (facts.samples != Samples::Rgb && facts.samples != Samples::Grey) {
    return nullptr;
  }
  if (facts.adobeRgb) {
    return make_rgb_profile(context, kAdobeRgb, kAdobeGamma);
  }
  constexpr double kGammaLeast = 0.2;
  constexpr double kGammaMost = 6;
  constexpr double kRounding = 0.05;
  const bool known = facts.gamma >= kGammaLeast && facts.gamma <= kGammaMost;
  const Primaries& primaries = facts.hasPrimaries ? facts.primaries : kSrgb;
  const bool usual = !known || is_near(facts.gamma, kUsualGamma, kRounding);
  if (usual && is_near(primaries, kSrgb)) {
    return nullptr;
  }
  if (facts.samples == Samples::Grey) {
    const cmsCIExyY white = {primaries.white[0], primaries.white[1], 1};
    cmsToneCurve* const curve = cmsBuildGamma(context, known ? facts.gamma : kUsualGamma);
    return curve != nullptr ? cmsCreateGrayProfileTHR(context, &white, curve) : nullptr;
  }
  return make_rgb_profile(context, primaries, known ? facts.gamma : kUsualGamma);
}

// All mixtures of four levels of each colour.
constexpr std::size_t kLevels = 4;
constexpr std::size_t kTests = kLevels * kLevels * kLevels;

// Whether the transform is as good as none: profiles of the same name differ as much.
bool changes_nothing(void* transform) {
  constexpr std::size_t kStep = 85;
  constexpr int kStepsMost = 2;
  std::array<std::uint8_t, kColours * kTests> from{};
  std::array<std::uint8_t, kColours * kTests> to{};
  for (std::size_t i = 0; i < kTests; ++i) {
    from.at(kColours * i) = static_cast<std::uint8_t>(kStep * (i / (kLevels * kLevels)));
    from.at(kColours * i + 1) = static_cast<std::uint8_t>(kStep * (i / kLevels % kLevels));
    from.at(kColours * i + 2) = static_cast<std::uint8_t>(kStep * (i % kLevels));
  }
  cmsDoTransform(transform, from.data(), to.data(), kTests);
  for (std::size_t i = 0; i < from.size(); ++i) {
    if (std::abs(from.at(i) - to.at(i)) > kStepsMost) {
      return false;
    }
  }
  return true;
}

void* make_transform(cmsContext context, void* profile, Samples samples) {
  void* const screen = cmsCreate_sRGBProfileTHR(context);
  if (profile == nullptr || screen == nullptr) {
    return nullptr;
  }
  // Fails when the profile is for another kind of samples.
  return cmsCreateTransformTHR(context, profile, format_of(samples), screen, TYPE_RGB_8,
                               INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_BLACKPOINTCOMPENSATION);
}

// All that these make belongs to the context and is freed with it.
const char* make_from_profile(cmsContext context, void* argument) {
  Making& making = *static_cast<Making*>(argument);
  const PhotoFacts& facts = *making.facts;
  MemoryFile file(context, facts.profile);
  void* const profile = cmsOpenProfileFromIOhandlerTHR(context, file.handler());
  making.transform = make_transform(context, profile, facts.samples);
  if (making.transform == nullptr) {
    return kUnusable;
  }
  cmsCloseProfile(profile);
  if (facts.samples == Samples::Rgb && changes_nothing(making.transform)) {
    making.transform = nullptr;
  }
  return nullptr;
}

const char* make_from_marks(cmsContext context, void* argument) {
  Making& making = *static_cast<Making*>(argument);
  void* const profile = profile_of_marks(context, *making.facts);
  if (profile == nullptr) {
    return nullptr;
  }
  making.transform = make_transform(context, profile, making.facts->samples);
  return nullptr;
}

// Ink without a profile: the light that is left when it passes through all inks.
void inks_to_rgb(const std::uint8_t* samples, std::uint8_t* rgb, std::size_t pixels,
                 bool inverted) {
  for (std::size_t x = 0; x < pixels; ++x, samples += kInks, rgb += kColours) {
    const auto light = [&](std::size_t i) { return inverted ? samples[i] : kFull - samples[i]; };
    const unsigned black = light(kColours);
    for (std::size_t i = 0; i < kColours; ++i) {
      rgb[i] = static_cast<std::uint8_t>(light(i) * black / kFull);
    }
  }
}

void grey_to_rgb(const std::uint8_t* samples, std::uint8_t* rgb, std::size_t pixels) {
  for (std::size_t x = 0; x < pixels; ++x) {
    std::memset(rgb + kColours * x, samples[x], kColours);
  }
}

}  // namespace

ToSrgb::ToSrgb(const PhotoFacts& facts)
    : samples_(facts.samples), engine_(std::make_unique<BoundedCms>(kMemory)) {
  Making making{&facts, nullptr};
  if (!facts.profile.empty()) {
    if (engine_->run(make_from_profile, &making, kUnusable) == nullptr) {
      transform_ = making.transform;
      return;
    }
    profilePassedOver_ = true;
    making = {&facts, nullptr};
  }
  if (engine_->run(make_from_marks, &making, kUnusable) == nullptr) {
    transform_ = making.transform;
  }
}

ToSrgb::~ToSrgb() = default;

void ToSrgb::Convert(const std::uint8_t* samples, std::uint8_t* rgb, std::size_t pixels) const {
  if (transform_ != nullptr) {
    cmsDoTransform(transform_, samples, rgb, static_cast<cmsUInt32Number>(pixels));
  } else if (samples_ == Samples::Grey) {
    grey_to_rgb(samples, rgb, pixels);
  } else if (samples_ == Samples::Rgb) {
    std::memcpy(rgb, samples, kColours * pixels);
  } else {
    inks_to_rgb(samples, rgb, pixels, samples_ == Samples::CmykInverted);
  }
}

}  // namespace photo
