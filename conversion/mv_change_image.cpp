// SPDX-License-Identifier: Apache-2.0
//
// The library's one operation: checks the request, allocates all memory, then converts the page and
// writes the matte texture.
#include "image/mv_change_image.h"

#include "conversion/band_rows.h"
#include "conversion/change_codes.h"
#include "conversion/matte.h"
#include "conversion/page_converter.h"
#include "conversion/rates.h"
#include "conversion/request_check.h"

namespace {

RateSum lay_matte(const BandRows& matte) {
  RateSum sum;
  for (std::size_t y = 0; y < matte.height; ++y) {
    sum.total += lay_matte_row(y, matte.row(y), matte.width);
    sum.count += matte.width;
  }
  return sum;
}

}  // namespace

extern "C" __attribute__((visibility("default"))) long MVChangeImage(
    const tagMVBandImageParams* source, const tagMVChangeParams* params,
    tagMVBandImageParams* destination, tagMVBandImageParams* matte, unsigned char* rgbRate,
    unsigned char* opRate) {
  const ChangeCode code = check_request(source, params, destination, matte, rgbRate, opRate);
  if (code != kChangeDone) {
    return code;
  }
  const BandRows from = rows_of(*source);
  PageConverter converter;
  if (!converter.prepare(*params, from.width)) {
    return kChangeNoMemory;
  }
  *rgbRate = rgb_rate(converter.convert(from, rows_of(*destination)));
  *opRate = matte == nullptr ? kFullOvercoat : op_rate(lay_matte(rows_of(*matte)));
  return kChangeDone;
}
