// SPDX-License-Identifier: Apache-2.0
#include "decoder/soft_proof.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>
#include <utility>
#include <vector>

#include "decoder/plane_reader.h"
#include "decoder/profile_light.h"
#include "decoder/screen_encoding.h"
#include "model/printer_model.h"

namespace decoder {
namespace {

constexpr std::size_t kChannels = 3;
constexpr std::size_t kLevels = std::size_t{kSampleMaximum} + 1;
// Pixels that go through Little CMS in one call.
constexpr std::uint32_t kPiece = 256;

// A sample on the scale of Little CMS: round(s × 65535 / 16383).
std::uint16_t on_16_bits(std::uint16_t sample) {
  const std::uint32_t inside = std::min(sample, kSampleMaximum);
  return static_cast<std::uint16_t>((inside * 65535U + kSampleMaximum / 2U) / kSampleMaximum);
}

// The fourth value is unused: the processor adds four at once.
struct alignas(16) Light {
  std::array<float, 4> rgb;
};

// What each level of one channel adds to the printer's black.
using Channel = std::vector<Light>;

Light light_of_black(const ProfileLight& profile) {
  const std::array<std::uint16_t, kChannels> device{};
  Light black{};
  profile.ToLight(device.data(), black.rgb.data(), 1);
  return black;
}

Channel light_of_channel(const ProfileLight& profile, std::size_t channel, const Light& black) {
  Channel levels(kLevels);
  constexpr std::size_t kPieceValues = kChannels * kPiece;
  std::array<std::uint16_t, kPieceValues> device{};
  std::array<float, kPieceValues> light{};
  static_assert(kLevels % kPiece == 0);
  for (std::size_t level = 0; level < kLevels; level += kPiece) {
    for (std::size_t i = 0; i < kPiece; ++i) {
      device[kChannels * i + channel] = on_16_bits(static_cast<std::uint16_t>(level + i));
    }
    profile.ToLight(device.data(), light.data(), kPiece);
    for (std::size_t i = 0; i < kPieceValues; ++i) {
      const std::size_t part = i % kChannels;
      levels[level + i / kChannels].rgb[part] = light[i] - black.rgb[part];
    }
  }
  return levels;
}

const Light& level_of(const Channel& channel, std::uint16_t sample) {
  return channel[std::min(sample, kSampleMaximum)];
}

}  // namespace

struct SoftProof::Way {
  explicit Way(std::unique_ptr<const ProfileLight> through) : profile(std::move(through)) {
    if (profile->ChannelsAdd()) {
      black = light_of_black(*profile);
      for (std::size_t i = 0; i < kChannels; ++i) {
        channels[i] = light_of_channel(*profile, i, black);
      }
    }
  }

  void ByAdding(const std::uint16_t* samples, std::uint8_t* rgb, std::size_t pixels) const {
    for (const std::uint16_t* const end = samples + kChannels * pixels; samples != end;
         samples += kChannels, rgb += kChannels) {
      const Light& red = level_of(channels[0], samples[0]);
      const Light& green = level_of(channels[1], samples[1]);
      const Light& blue = level_of(channels[2], samples[2]);
      for (std::size_t i = 0; i < kChannels; ++i) {
        rgb[i] = encode(black.rgb[i] + red.rgb[i] + green.rgb[i] + blue.rgb[i]);
      }
    }
  }

  void ByProfile(const std::uint16_t* samples, std::uint8_t* rgb, std::size_t pixels) const {
    std::array<std::uint16_t, kChannels * kPiece> device{};
    std::array<float, kChannels * kPiece> light{};
    while (pixels > 0) {
      const std::size_t piece = std::min<std::size_t>(pixels, kPiece);
      const std::size_t values = kChannels * piece;
      std::transform(samples, samples + values, device.begin(), on_16_bits);
      profile->ToLight(device.data(), light.data(), static_cast<std::uint32_t>(piece));
      std::transform(light.begin(), light.begin() + static_cast<std::ptrdiff_t>(values), rgb,
                     encode);
      samples += values;
      rgb += values;
      pixels -= piece;
    }
  }

  std::unique_ptr<const ProfileLight> profile;
  ScreenEncoding encode;
  // Only where the channels add up. The result is the same, and much faster.
  Light black{};
  std::array<Channel, kChannels> channels;
};

SoftProof::SoftProof(std::unique_ptr<const Way> way) : way_(std::move(way)) {}

SoftProof::~SoftProof() = default;

std::unique_ptr<SoftProof> SoftProof::Through(std::span<const std::uint8_t> profile,
                                              std::string& why) {
  std::unique_ptr<const ProfileLight> light = ProfileLight::Open(profile, why);
  if (light == nullptr) {
    return nullptr;
  }
  return std::unique_ptr<SoftProof>(new SoftProof(std::make_unique<const Way>(std::move(light))));
}

std::unique_ptr<SoftProof> SoftProof::ThroughPrinterModel() {
  std::string why;
  std::unique_ptr<SoftProof> proof = Through(printer_model_profile(), why);
  if (proof == nullptr) {
    throw std::runtime_error("the printer model: " + why);
  }
  return proof;
}

void SoftProof::ToScreen(std::span<const std::uint16_t> samples,
                         std::span<std::uint8_t> rgb) const {
  const std::size_t pixels = std::min(samples.size(), rgb.size()) / kChannels;
  if (way_->profile->ChannelsAdd()) {
    way_->ByAdding(samples.data(), rgb.data(), pixels);
  } else {
    way_->ByProfile(samples.data(), rgb.data(), pixels);
  }
}

}  // namespace decoder
