// SPDX-License-Identifier: Apache-2.0
#include "bench/colour/page_conversion.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "image/mv_change_image.h"

namespace bench {

namespace {

constexpr std::size_t kMatteExtraRows = 12;  // as the filter makes the plane

tagMVBandImageParams band_of(unsigned char* bytes, std::size_t width, std::size_t height,
                             std::int64_t bytes_per_pixel) {
  const auto columns = static_cast<std::int64_t>(width);
  return {bytes, -columns * bytes_per_pixel, {0, 0, columns, static_cast<std::int64_t>(height)}};
}

tagMVChangeParams params_of(const PrintSettings& settings) {
  tagMVChangeParams params{};
  params.lParam0 = 101;
  params.nParam8 = 1;
  params.dwFlags = kChangeFlagsAlways;
  if (settings.colour_conversion) {
    params.dwFlags |= kChangeFlagColorConversion;
  }
  if (settings.sharpness != kSharpnessNone) {
    params.dwFlags |= kChangeFlagSharpness;
    params.nSharpness = static_cast<std::int16_t>(settings.sharpness);
  }
  params.pszModulePath = settings.module_folder.c_str();
  params.wParam32 = 1;
  std::copy(settings.tone.begin(), settings.tone.end(), params.nTone);
  params.byOption[2] = settings.colour_conversion ? 1 : 5;
  return params;
}

}  // namespace

PageConversion::PageConversion(Picture picture, PrintSettings settings)
    : picture_(std::move(picture)),
      settings_(std::move(settings)),
      samples_(3 * picture_.pixels.size()),
      matte_(settings_.matte ? picture_.width * (picture_.height + kMatteExtraRows) : 0) {}

void PageConversion::run() {
  const tagMVBandImageParams source = band_of(picture_.bytes(), picture_.width, picture_.height, 3);
  tagMVBandImageParams destination = band_of(reinterpret_cast<unsigned char*>(samples_.data()),
                                             picture_.width, picture_.height, 6);
  tagMVBandImageParams matte =
      band_of(matte_.data(), picture_.width, picture_.height + kMatteExtraRows, 1);
  const tagMVChangeParams params = params_of(settings_);
  unsigned char rates[2] = {};
  const long code = MVChangeImage(&source, &params, &destination,
                                  settings_.matte ? &matte : nullptr, &rates[0], &rates[1]);
  if (code != 0) {
    throw std::runtime_error("MVChangeImage() = " + std::to_string(code));
  }
}

std::vector<std::uint16_t> converted(const Picture& picture, const PrintSettings& settings) {
  PageConversion conversion(picture, settings);
  conversion.run();
  return conversion.samples();
}

}  // namespace bench
