// SPDX-License-Identifier: Apache-2.0
#include "decoder/profile_light.h"

#include <lcms2.h>
#include <lcms2_plugin.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include "model/little_cms_handles.h"

namespace decoder {
namespace {

// More than the tables of the largest profile need in memory. A profile that asks for more is
// wrong.
constexpr std::size_t kAllocationMost = std::size_t{64} << 20U;

void* limited_malloc(cmsContext /*context*/, cmsUInt32Number size) {
  return size <= kAllocationMost ? std::malloc(size) : nullptr;
}

void* limited_realloc(cmsContext /*context*/, void* block, cmsUInt32Number size) {
  return size <= kAllocationMost ? std::realloc(block, size) : nullptr;
}

void limited_free(cmsContext /*context*/, void* block) {
  std::free(block);
}

// Little CMS derives the functions that are left empty from these.
cmsPluginMemHandler limited_memory() {
  cmsPluginMemHandler handler{};
  handler.base = {cmsPluginMagicNumber, 2000, cmsPluginMemHandlerSig, nullptr};
  handler.MallocPtr = limited_malloc;
  handler.FreePtr = limited_free;
  handler.ReallocPtr = limited_realloc;
  return handler;
}

// Keeps the first thing that Little CMS says of a profile. Nothing goes to standard error.
void keep_first_words(cmsContext context, cmsUInt32Number /*code*/, const char* text) {
  auto* const words = static_cast<std::string*>(cmsGetContextUserData(context));
  if (words->empty()) {
    *words = text;
  }
}

using cms::Profile;

// A screen without its encoding: the primaries and the white of sRGB.
Profile linear_screen(cmsContext context) {
  const cmsCIExyY white = {0.3127, 0.3290, 1.0};
  const cmsCIExyYTRIPLE primaries = {{0.64, 0.33, 1.0}, {0.30, 0.60, 1.0}, {0.15, 0.06, 1.0}};
  const cms::Curve line(cmsBuildGamma(context, 1.0));
  const std::array<cmsToneCurve*, 3> curves = {line.get(), line.get(), line.get()};
  return Profile(cmsCreateRGBProfileTHR(context, &white, &primaries, curves.data()));
}

template <std::size_t N>
bool has_any(cmsHPROFILE profile, const std::array<cmsTagSignature, N>& tags) {
  return std::any_of(tags.begin(), tags.end(),
                     [profile](cmsTagSignature tag) { return cmsIsTag(profile, tag) != 0; });
}

// They can be chains of elements as long as the file, so that the time for a proof has no limit.
constexpr std::array kElementTags = {cmsSigDToB0Tag, cmsSigDToB1Tag, cmsSigDToB2Tag,
                                     cmsSigDToB3Tag};

// Tables, which Little CMS prefers to matrix and curves.
constexpr std::array kTableTags = {cmsSigAToB0Tag, cmsSigAToB1Tag, cmsSigAToB2Tag};

bool is_matrix(cmsHPROFILE profile) {
  return cmsIsMatrixShaper(profile) != 0 && !has_any(profile, kTableTags);
}

// Why a profile that can be read is not a printer's, or null.
const char* unfitness(cmsHPROFILE profile) {
  if (cmsGetColorSpace(profile) != cmsSigRgbData) {
    return "not the profile of an RGB device";
  }
  const cmsProfileClassSignature kind = cmsGetDeviceClass(profile);
  if (kind != cmsSigOutputClass && kind != cmsSigDisplayClass) {
    return "not the profile of a printer or a display";
  }
  if (has_any(profile, kElementTags)) {
    return "it holds multi-process elements, which are not supported";
  }
  return nullptr;
}

}  // namespace

struct ProfileLight::Engine {
  Engine() = default;
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;
  ~Engine() {
    if (transform != nullptr) {
      cmsDeleteTransform(transform);
    }
    if (context != nullptr) {
      cmsDeleteContext(context);
    }
  }

  /// Why the profile cannot be used; empty when it can.
  std::string Begin(std::span<const std::uint8_t> bytes) {
    if (bytes.size() > kProfileBytesMost) {
      return "larger than 4 MiB, which no printer's profile is";
    }
    cmsPluginMemHandler memory = limited_memory();
    context = cmsCreateContext(&memory, &words);
    if (context == nullptr) {
      return "no memory for Little CMS";
    }
    cmsSetLogErrorHandlerTHR(context, keep_first_words);
    const Profile device(cmsOpenProfileFromMemTHR(context, bytes.data(),
                                                  static_cast<cmsUInt32Number>(bytes.size())));
    if (device == nullptr) {
      return WithWords("not an ICC profile");
    }
    if (const char* why = unfitness(device.get())) {
      return why;
    }
    const Profile screen = linear_screen(context);
    if (screen == nullptr) {
      return "no memory for Little CMS";
    }
    // In floating point and without optimization: the tables that Little CMS would make to be
    // faster are wrong by up to 14 of 255 in the shadows.
    transform = cmsCreateTransformTHR(context, device.get(), TYPE_RGB_16, screen.get(),
                                      TYPE_RGB_FLT, INTENT_RELATIVE_COLORIMETRIC,
                                      cmsFLAGS_NOOPTIMIZE | cmsFLAGS_BLACKPOINTCOMPENSATION);
    if (transform == nullptr) {
      return WithWords("no way from its device values to colours");
    }
    channelsAdd = is_matrix(device.get());
    return {};
  }

  std::string WithWords(const std::string& what) const {
    return words.empty() ? what : what + " (" + words + ")";
  }

  cmsContext context = nullptr;
  cmsHTRANSFORM transform = nullptr;
  bool channelsAdd = false;
  std::string words;
};

ProfileLight::ProfileLight(std::unique_ptr<Engine> engine) : engine_(std::move(engine)) {}

ProfileLight::~ProfileLight() = default;

std::unique_ptr<ProfileLight> ProfileLight::Open(std::span<const std::uint8_t> profile,
                                                 std::string& why) {
  auto engine = std::make_unique<Engine>();
  why = engine->Begin(profile);
  if (!why.empty()) {
    return nullptr;
  }
  return std::unique_ptr<ProfileLight>(new ProfileLight(std::move(engine)));
}

bool ProfileLight::ChannelsAdd() const {
  return engine_->channelsAdd;
}

void ProfileLight::ToLight(const std::uint16_t* device, float* light, std::uint32_t pixels) const {
  cmsDoTransform(engine_->transform, device, light, pixels);
}

}  // namespace decoder
