// SPDX-License-Identifier: Apache-2.0
//
// A conversion library that only widens each byte, in the place of the real one: what the filter
// then takes is its own. A matte plane is filled with one value.
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "bench/speed/widening.h"
#include "image/mv_change_image.h"

namespace {

constexpr unsigned char kRate = 50;  // per cent
constexpr int kMatteByte = 0x80;

std::size_t pixels_of(const tagMVBandImageParams& band) {
  return static_cast<std::size_t>((band.rcBand.right - band.rcBand.left) *
                                  (band.rcBand.bottom - band.rcBand.top));
}

}  // namespace

// The filter makes all bands with the top row first and without gaps.
long MVChangeImage(const tagMVBandImageParams* source, const tagMVChangeParams* /*params*/,
                   tagMVBandImageParams* destination, tagMVBandImageParams* matte,
                   unsigned char* rgbRate, unsigned char* opRate) {
  bench::widen(source->pBits, reinterpret_cast<std::uint16_t*>(destination->pBits),
               3 * pixels_of(*source));
  if (matte != nullptr) {
    std::memset(matte->pBits, kMatteByte, pixels_of(*matte));
  }
  *rgbRate = kRate;
  *opRate = kRate;
  return 0;
}
