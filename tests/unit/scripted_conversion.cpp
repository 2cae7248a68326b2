// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/scripted_conversion.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "tests/unit/stand_in.h"

namespace {

std::vector<ConversionCall>& Calls() {
  static std::vector<ConversionCall> calls;
  return calls;
}

const bool conversion_restored = AfterEachTest(ResetConversions);

/// Bytes of a band's buffer.
std::size_t BufferSize(const tagMVBandImageParams& band) {
  return static_cast<std::size_t>(std::llabs(band.lStride) *
                                  (band.rcBand.bottom - band.rcBand.top));
}

}  // namespace

std::deque<Conversion>& NextConversions() {
  static std::deque<Conversion> conversions;
  return conversions;
}

const std::vector<ConversionCall>& ConversionCalls() {
  return Calls();
}

void ResetConversions() {
  NextConversions().clear();
  Calls().clear();
}

extern "C" long MVChangeImage(const tagMVBandImageParams* source, const tagMVChangeParams* params,
                              tagMVBandImageParams* destination, tagMVBandImageParams* matte,
                              unsigned char* rgbRate, unsigned char* opRate) {
  Conversion conversion;
  if (!NextConversions().empty()) {
    conversion = NextConversions().front();
    NextConversions().pop_front();
  }
  const std::size_t size = BufferSize(*destination);
  ConversionCall call = {};
  call.source = *source;
  call.params = *params;
  call.destination = *destination;
  call.matte_record = matte;
  call.rgb_rate_before = *rgbRate;
  call.op_rate_before = *opRate;
  call.module_path = params->pszModulePath;
  if (source->pBits != nullptr) {
    call.first_source_line.assign(reinterpret_cast<const char*>(source->pBits),
                                  static_cast<std::size_t>(std::llabs(source->lStride)));
  }
  call.destination_was_white = std::all_of(destination->pBits, destination->pBits + size,
                                           [](unsigned char byte) { return byte == 0xFF; });
  std::memset(destination->pBits, conversion.paint, size);
  if (matte != nullptr) {
    call.matte = *matte;
    std::memset(matte->pBits, conversion.matte_paint, BufferSize(*matte));
  }
  *rgbRate = conversion.rgb_rate;
  *opRate = conversion.op_rate;
  Calls().push_back(call);
  return conversion.result;
}
