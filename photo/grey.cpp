// SPDX-License-Identifier: Apache-2.0
#include "photo/grey.h"

#include <strings.h>

#include <algorithm>

namespace photo {
namespace {

constexpr std::array kModes = {"monochrome", "auto-monochrome", "process-monochrome", "bi-level",
                               "process-bi-level"};
constexpr std::size_t kColours = 3;
constexpr double kHalf = 0.5;

}  // namespace

bool asks_for_grey(int count, cups_option_t* options) {
  const char* const asked = cupsGetOption("print-color-mode", count, options);
  return asked != nullptr && std::any_of(kModes.begin(), kModes.end(), [&](const char* mode) {
           return strcasecmp(asked, mode) == 0;
         });
}

void turn_grey(std::uint8_t* rgb, std::size_t pixels) {
  for (std::size_t i = 0; i < pixels; ++i, rgb += kColours) {
    const double bright = kLuma[0] * rgb[0] + kLuma[1] * rgb[1] + kLuma[2] * rgb[2];
    std::fill_n(rgb, kColours, static_cast<std::uint8_t>(bright + kHalf));
  }
}

}  // namespace photo
