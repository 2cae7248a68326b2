// SPDX-License-Identifier: Apache-2.0
#include "decoder/screen_encoding.h"

#include <cmath>

namespace decoder {
namespace {

constexpr int kWhite = 255;
constexpr float kNoStep = 2.0F;

// Light of an encoded value, IEC 61966-2-1.
double light_of(double encoded) {
  return encoded <= 0.04045 ? encoded / 12.92 : std::pow((encoded + 0.055) / 1.055, 2.4);
}

}  // namespace

ScreenEncoding::ScreenEncoding() {
  int value = 0;
  float step = static_cast<float>(light_of(0.5 / kWhite));
  for (std::size_t i = 0; i < bins_.size(); ++i) {
    const float end = static_cast<float>(i + 1) / kBins;
    if (value == kWhite || step >= end) {
      bins_[i] = {kNoStep, static_cast<std::uint8_t>(value)};
      continue;
    }
    bins_[i] = {step, static_cast<std::uint8_t>(value)};
    ++value;
    step = static_cast<float>(light_of((value + 0.5) / kWhite));
  }
}

}  // namespace decoder
