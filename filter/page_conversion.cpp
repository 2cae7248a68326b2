// SPDX-License-Identifier: Apache-2.0
#include "filter/page_conversion.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "image/mv_change_image.h"
#include "job/job_state.h"

namespace {

constexpr int kTopDown = -1;
constexpr int kMatteExtraRows = 12;  // the overcoat runs past the sheet's end

// The library's levels start at 0 for the weakest sharpening; none at all is a flag of its own.
std::int16_t sharpness_level(std::uint8_t sharpness) {
  if (sharpness == 0) {
    return 0;
  }
  return sharpness <= 7 ? static_cast<std::int16_t>(sharpness - 1) : std::int16_t{4};
}

tagMVChangeParams change_params(const tagPRINTSETTING* settings, const char* module_path) {
  const bool color_conversion = (settings->byColorConversion & 1U) != 0;
  tagMVChangeParams params{};
  params.lParam0 = 101;
  params.nParam8 = 1;
  params.dwFlags = kChangeFlagsAlways;
  if (color_conversion) {
    params.dwFlags |= kChangeFlagColorConversion;
  }
  if (settings->bySharpness != 0) {
    params.dwFlags |= kChangeFlagSharpness;
  }
  params.pszModulePath = module_path;
  params.wParam32 = 1;
  std::copy(std::begin(settings->nGamma), std::end(settings->nGamma), params.nTone);
  std::copy(std::begin(settings->nContrast), std::end(settings->nContrast), params.nTone + 3);
  std::copy(std::begin(settings->nBrightness), std::end(settings->nBrightness), params.nTone + 6);
  params.byOption[2] = color_conversion ? 1 : 5;
  params.nSharpness = sharpness_level(settings->bySharpness);
  return params;
}

void log_params(const tagMVChangeParams& params) {
  const std::int16_t* tone = params.nTone;
  const std::uint8_t* option = params.byOption;
  std::fprintf(stderr, "DEBUG: Params=0x%08lx (%d:%d:%d, %d:%d:%d, %d:%d:%d) (%d,%d,%d,%d) %d\n",
               static_cast<unsigned long>(params.dwFlags), tone[0], tone[1], tone[2], tone[3],
               tone[4], tone[5], tone[6], tone[7], tone[8], option[0], option[1], option[2],
               option[3], params.nSharpness);
}

// The first page of a sheet resets the sheet's rates and, for a matte finish, makes its matte
// plane.
bool begin_sheet(const tagPRINTSETTING* settings, tagMVBandImageParams** matte) {
  gRgbRate = 0;
  gOpRate = 0;
  if (settings->byPrintFinish != kFinishMatte) {
    return true;
  }
  // The previous sheet's plane could be read until here. It goes first, so that memory never holds
  // two.
  CImageUtility::DeleteBandImage(&gMatteImage);
  const MV_TYPEDEF::tagRECT plane{0, 0, settings->nPaperWidth,
                                  std::int64_t{settings->nPaperHeight} + kMatteExtraRows};
  const bool made = CImageUtility::CreateBandImage(&gMatteImage, plane, kMatteDepth, kTopDown);
  if (made) {
    *matte = &gMatteImage;
  }
  return made;
}

// The printer takes one pair of rates for a sheet. The RGB rates of joined pages add up; the first
// page's OP rate stands for both, doubled unless the matte plane covers the whole sheet.
void count_rates(const tagPRINTSETTING* settings, std::uint8_t rgb_rate, std::uint8_t op_rate) {
  gRgbRate = static_cast<std::uint8_t>(gRgbRate + rgb_rate);
  if (gImageCount == 0) {
    gOpRate = op_rate;
    if (settings->nJoinPages == 1 && settings->byPrintFinish != kFinishMatte) {
      gOpRate = static_cast<std::uint8_t>(gOpRate + op_rate);
    }
  }
  std::fprintf(stderr, "DEBUG: RgbRate=%d final=%d\n", rgb_rate, gRgbRate);
  std::fprintf(stderr, "DEBUG: OpRate=%d final=%d\n", op_rate, gOpRate);
}

}  // namespace

bool convert_page(const tagPRINTSETTING* settings, const char* module_path,
                  tagMVBandImageParams* converted) {
  const tagMVBandImageParams source{
      Planes[1],
      -3 * std::int64_t{settings->nImageWidth},
      {0, 0, settings->nImageWidth, settings->nImageHeight},
  };
  const tagMVChangeParams params = change_params(settings, module_path);
  log_params(params);
  *converted = {};
  if (!CImageUtility::CreateBandImage(converted, source.rcBand, kImageDepth, kTopDown)) {
    return false;
  }
  tagMVBandImageParams* matte = nullptr;
  if (gImageCount == 0 && !begin_sheet(settings, &matte)) {
    return false;
  }
  unsigned char rgb_rate = 0;
  unsigned char op_rate = 0;
  const long result = MVChangeImage(&source, &params, converted, matte, &rgb_rate, &op_rate);
  std::fprintf(stderr, "DEBUG: MVChangeImage()=%ld\n", result);
  if (result != 0) {
    std::fprintf(stderr, "ERROR: Unable to convert image (%ld)\n", result);
    return false;
  }
  count_rates(settings, rgb_rate, op_rate);
  return true;
}
