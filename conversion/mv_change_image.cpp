// SPDX-License-Identifier: Apache-2.0
//
// The library's one operation: checks the request, takes the memory it needs, then converts the
// page line by line and lays the matte texture.
#include "image/mv_change_image.h"

#include <cstring>
#include <memory>
#include <new>

#include "conversion/band_rows.h"
#include "conversion/change_codes.h"
#include "conversion/colour.h"
#include "conversion/matte.h"
#include "conversion/rates.h"
#include "conversion/request_check.h"
#include "conversion/sharpening.h"

namespace {

/// All memory of one call, taken before the first byte is written: a page is converted whole or
/// not touched.
struct WorkingMemory {
  std::unique_ptr<EngineSample[]> line;  ///< one line as it goes into the destination
  Sharpener sharpener;
};

bool reserve(WorkingMemory& memory, std::size_t pageWidth, bool sharpen) {
  memory.line.reset(new (std::nothrow) EngineSample[3 * pageWidth]);
  return memory.line != nullptr && (!sharpen || memory.sharpener.reserve(pageWidth));
}

/// The destination's lines may begin at any byte, so samples go there as bytes.
void put_line(const BandRows& destination, std::size_t y, const EngineSample* samples,
              RateSum& sum) {
  const std::size_t count = 3 * destination.width;
  std::memcpy(destination.row(y), samples, count * sizeof(EngineSample));
  add_samples(sum, samples, count);
}

RateSum convert_plainly(const BandRows& source, const BandRows& destination,
                        const ColourMapping& mapping, EngineSample* line) {
  RateSum sum;
  for (std::size_t y = 0; y < source.height; ++y) {
    map_line(mapping, source.row(y), source.width, line);
    put_line(destination, y, line, sum);
  }
  return sum;
}

RateSum convert_sharpened(const BandRows& source, const BandRows& destination,
                          const ColourMapping& mapping, int amount, WorkingMemory& memory) {
  RateSum sum;
  for (std::size_t next = 0; next < source.height + kSharpeningReach; ++next) {
    if (next < source.height) {
      map_line(mapping, source.row(next), source.width, memory.sharpener.line(next));
      memory.sharpener.take_line(next);
    }
    if (next >= kSharpeningReach) {
      const std::size_t y = next - kSharpeningReach;
      memory.sharpener.sharpen_line(y, source.height, amount, memory.line.get());
      put_line(destination, y, memory.line.get(), sum);
    }
  }
  return sum;
}

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
  const BandRows to = rows_of(*destination);
  const bool sharpen = (params->dwFlags & kChangeFlagSharpness) != 0;
  WorkingMemory memory;
  if (!reserve(memory, from.width, sharpen)) {
    return kChangeNoMemory;
  }
  const ColourMapping mapping = make_colour_mapping(*params);
  const RateSum samples =
      sharpen ? convert_sharpened(from, to, mapping, sharpening_amount(params->nSharpness), memory)
              : convert_plainly(from, to, mapping, memory.line.get());
  const unsigned char overcoat =
      matte == nullptr ? kFullOvercoat : op_rate(lay_matte(rows_of(*matte)));
  *rgbRate = rgb_rate(samples);
  *opRate = overcoat;
  return kChangeDone;
}
