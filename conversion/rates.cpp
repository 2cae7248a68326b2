// SPDX-License-Identifier: Apache-2.0
#include "conversion/rates.h"

#include "conversion/engine_sample.h"

namespace {

/// 100 × part / whole, rounded to the nearest whole number; halves are rounded up.
unsigned char per_cent(std::uint64_t part, std::uint64_t whole) {
  return static_cast<unsigned char>((200 * part + whole) / (2 * whole));
}

}  // namespace

unsigned char rgb_rate(const RateSum& samples) {
  const std::uint64_t white = samples.count * kEngineWhite;
  return per_cent(white - samples.total, white);
}

unsigned char op_rate(const RateSum& matte) {
  return per_cent(matte.total, matte.count * 255);
}
