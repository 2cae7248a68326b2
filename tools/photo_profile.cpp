// SPDX-License-Identifier: Apache-2.0
#include "tools/photo_profile.h"

#include <lcms2.h>

#include <array>
#include <cstdlib>
#include <memory>

#include "conversion/bounded_cms.h"

namespace tools {
namespace {

constexpr std::size_t kMemory = 64UL * 1024 * 1024;
constexpr char kUnusable[] = "unusable";

// Four levels of each colour, every mixture of them.
constexpr std::size_t kLevels = 4;
constexpr std::size_t kColours = kLevels * kLevels * kLevels;
using Colours = std::array<std::uint8_t, 3 * kColours>;

Colours test_colours() {
  constexpr std::size_t kStep = 85;
  Colours colours{};
  for (std::size_t i = 0; i < kColours; ++i) {
    colours.at(3 * i) = static_cast<std::uint8_t>(kStep * (i / (kLevels * kLevels)));
    colours.at(3 * i + 1) = static_cast<std::uint8_t>(kStep * (i / kLevels % kLevels));
    colours.at(3 * i + 2) = static_cast<std::uint8_t>(kStep * (i % kLevels));
  }
  return colours;
}

struct Work {
  std::span<const std::uint8_t> bytes;
  const Colours* from;
  Colours* to;
};

// All that is made belongs to the context and goes with it.
const char* convert(cmsContext context, void* argument) {
  const Work& work = *static_cast<const Work*>(argument);
  MemoryFile file(context, work.bytes);
  void* const photo = cmsOpenProfileFromIOhandlerTHR(context, file.handler());
  void* const screen = cmsCreate_sRGBProfileTHR(context);
  if (photo == nullptr || screen == nullptr || cmsGetColorSpace(photo) != cmsSigRgbData) {
    return kUnusable;
  }
  void* const way = cmsCreateTransformTHR(context, photo, TYPE_RGB_8, screen, TYPE_RGB_8,
                                          INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOOPTIMIZE);
  if (way == nullptr) {
    return kUnusable;
  }
  cmsDoTransform(way, work.from->data(), work.to->data(), kColours);
  return nullptr;
}

// Profiles called sRGB differ by a step or two of 8 bits.
bool much_the_same(const Colours& one, const Colours& other) {
  constexpr int kStepsMost = 4;
  for (std::size_t i = 0; i < one.size(); ++i) {
    if (std::abs(one.at(i) - other.at(i)) > kStepsMost) {
      return false;
    }
  }
  return true;
}

}  // namespace

PhotoProfile judge_photo_profile(std::span<const std::uint8_t> bytes) {
  const Colours from = test_colours();
  Colours to{};
  Work work{bytes, &from, &to};
  const auto engine = std::make_unique<BoundedCms>(kMemory);
  if (engine->run(convert, &work, kUnusable) != nullptr) {
    return PhotoProfile::Unreadable;
  }
  return much_the_same(from, to) ? PhotoProfile::Srgb : PhotoProfile::Other;
}

}  // namespace tools
