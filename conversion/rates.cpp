// SPDX-License-Identifier: Apache-2.0
#include "conversion/rates.h"

namespace {

/// 100 × part / whole to the nearest whole number, halves upwards.
unsigned char per_cent(std::uint64_t part, std::uint64_t whole) {
  return static_cast<unsigned char>((200 * part + whole) / (2 * whole));
}

}  // namespace

void add_samples(RateSum& sum, const EngineSample* samples, std::size_t count) {
  std::uint64_t total = 0;
  for (std::size_t i = 0; i < count; ++i) {
    total += samples[i];
  }
  sum.total += total;
  sum.count += count;
}

void add_bytes(RateSum& sum, const unsigned char* bytes, std::size_t count) {
  std::uint64_t total = 0;
  for (std::size_t i = 0; i < count; ++i) {
    total += bytes[i];
  }
  sum.total += total;
  sum.count += count;
}

unsigned char rgb_rate(const RateSum& samples) {
  const std::uint64_t white = samples.count * kEngineWhite;
  return per_cent(white - samples.total, white);
}

unsigned char op_rate(const RateSum& matte) {
  return per_cent(matte.total, matte.count * 255);
}
