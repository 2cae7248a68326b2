// SPDX-License-Identifier: Apache-2.0
#include "bench/page_conversion.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "image/mv_change_image.h"

namespace bench {

namespace {

constexpr std::size_t kMatteExtraRows = 12;  // as the filter makes the plane

tagMVBandImageParams band_of(unsigned char* bytes, std::size_t width, std::size_t height,
                             std::size_t bytesPerPixel) {
  const auto columns = static_cast<std::int64_t>(width);
  return {bytes,
          -columns * static_cast<std::int64_t>(bytesPerPixel),
          {0, 0, columns, static_cast<std::int64_t>(height)}};
}

tagMVChangeParams params_of(const PrintSettings& settings) {
  tagMVChangeParams params{};
  params.lParam0 = 101;
  params.nParam8 = 1;
  params.dwFlags = kChangeFlagsAlways;
  if (settings.colourConversion) {
    params.dwFlags |= kChangeFlagColorConversion;
  }
  if (settings.sharpness != kSharpnessNone) {
    params.dwFlags |= kChangeFlagSharpness;
    params.nSharpness = static_cast<std::int16_t>(settings.sharpness);
  }
  params.pszModulePath = settings.moduleFolder.c_str();
  params.wParam32 = 1;
  std::copy(settings.tone.begin(), settings.tone.end(), params.nTone);
  params.byOption[2] = settings.colourConversion ? 1 : 5;
  return params;
}

/// Throws std::runtime_error when the library refuses the page.
void run_once(PageConversion& conversion) {
  if (const long code = conversion.run(); code != 0) {
    throw std::runtime_error("MVChangeImage() = " + std::to_string(code));
  }
}

}  // namespace

PageConversion::PageConversion(const Picture& picture, PrintSettings settings)
    : picture_(picture),
      settings_(std::move(settings)),
      samples_(3 * picture.pixels.size()),
      matte_(settings_.matte ? picture.width * (picture.height + kMatteExtraRows) : 0) {}

long PageConversion::run() {
  // The interface has no const buffers; the library only reads its source.
  auto* pixels = const_cast<unsigned char*>(picture_.row(0));
  const tagMVBandImageParams source = band_of(pixels, picture_.width, picture_.height, 3);
  tagMVBandImageParams destination = band_of(reinterpret_cast<unsigned char*>(samples_.data()),
                                             picture_.width, picture_.height, 6);
  tagMVBandImageParams matte =
      band_of(matte_.data(), picture_.width, picture_.height + kMatteExtraRows, 1);
  const tagMVChangeParams params = params_of(settings_);
  return MVChangeImage(&source, &params, &destination, settings_.matte ? &matte : nullptr,
                       &rgbRate_, &opRate_);
}

std::vector<std::uint16_t> converted(const Picture& picture, const PrintSettings& settings) {
  PageConversion conversion(picture, settings);
  run_once(conversion);
  return {conversion.samples().begin(), conversion.samples().end()};
}

std::vector<unsigned char> matte_plane(std::size_t width, std::size_t height) {
  const Picture white = painted(width, height, [](std::size_t, std::size_t) {
    return Rgb8{255, 255, 255};
  });
  PrintSettings settings;
  settings.colourConversion = false;
  settings.matte = true;
  PageConversion conversion(white, settings);
  run_once(conversion);
  return {conversion.matte().begin(), conversion.matte().end()};
}

}  // namespace bench
