// SPDX-License-Identifier: Apache-2.0
//
// The interface of the image-conversion library: one operation that turns a page of 8-bit RGB into
// the print engine's 16-bit channels and, for a matte finish, a matte plane.
#ifndef TQR7_IMAGE_MV_CHANGE_IMAGE_H
#define TQR7_IMAGE_MV_CHANGE_IMAGE_H

#include <cstddef>
#include <cstdint>

#include "image/band_image.h"

/// The settings of one conversion.
struct tagMVChangeParams {
  std::int64_t lParam0;          ///< always 101
  std::int32_t nParam8;          ///< always 1
  std::int32_t nReserved12;      ///< unused
  std::uint64_t dwFlags;         ///< see the flag constants below
  const char* pszModulePath;     ///< the module directory, ending in "/"
  std::int16_t wParam32;         ///< always 1
  std::int16_t nTone[9];         ///< gamma R, G, B, contrast R, G, B, brightness R, G, B
  std::uint8_t byOption[4];      ///< 0, 0, then 1 with colour conversion or 5 without, 0
  std::int16_t nSharpness;       ///< level 0 … 6, meant only when its flag is set
  std::uint8_t byReserved58[6];  ///< unused
};

// The conversion library may be the printer maker's own: this layout is its binary interface.
static_assert(sizeof(tagMVChangeParams) == 64 && alignof(tagMVChangeParams) == 8);
static_assert(offsetof(tagMVChangeParams, lParam0) == 0);
static_assert(offsetof(tagMVChangeParams, nParam8) == 8);
static_assert(offsetof(tagMVChangeParams, nReserved12) == 12);
static_assert(offsetof(tagMVChangeParams, dwFlags) == 16);
static_assert(offsetof(tagMVChangeParams, pszModulePath) == 24);
static_assert(offsetof(tagMVChangeParams, wParam32) == 32);
static_assert(offsetof(tagMVChangeParams, nTone) == 34);
static_assert(offsetof(tagMVChangeParams, byOption) == 52);
static_assert(offsetof(tagMVChangeParams, nSharpness) == 56);
static_assert(offsetof(tagMVChangeParams, byReserved58) == 58);

inline constexpr std::uint64_t kChangeFlagsAlways = 0x10002;
inline constexpr std::uint64_t kChangeFlagColorConversion = 0x1;
inline constexpr std::uint64_t kChangeFlagSharpness = 0x4;

/// Converts one page. `source` holds 24-bit RGB; `destination`, of the same size, receives three
/// 16-bit channels a pixel (white 0x3FFF); `matte`, 8 bits a pixel, is null unless the page begins
/// a sheet with a matte finish. Both rates are set, in per cent. Returns 0, or a library's own
/// code for a page that it did not convert.
extern "C" long MVChangeImage(const tagMVBandImageParams* source, const tagMVChangeParams* params,
                              tagMVBandImageParams* destination, tagMVBandImageParams* matte,
                              unsigned char* rgbRate, unsigned char* opRate);

#endif  // TQR7_IMAGE_MV_CHANGE_IMAGE_H
