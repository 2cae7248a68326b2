// SPDX-License-Identifier: Apache-2.0
#include "conversion/sample_kernels.h"

#include <cstring>

#include "conversion/engine_sample.h"

#include "conversion/compiled_targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "conversion/sample_kernels.cpp"
#include "hwy/foreach_target.h"  // this file once more for each kind of processor
//
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

using Wide = hn::CappedTag<std::uint16_t, kLineMargin>;
using Numbers = hn::Vec<Wide>;
using Bytes = hn::Rebind<std::uint8_t, Wide>;
constexpr std::size_t kPixelBytes = 3 * sizeof(EngineSample);
constexpr std::size_t kBlock = 2 * kLineMargin;

#if HWY_TARGET == HWY_SCALAR

HWY_INLINE std::uint64_t Put(unsigned sample, unsigned char* samples, std::size_t place) {
  const auto engine = static_cast<EngineSample>(sample);
  std::memcpy(samples + sizeof engine * place, &engine, sizeof engine);
  return sample;
}

std::uint64_t JoinLine(const LinePlanes& line, std::size_t pixels, unsigned char* samples) {
  std::uint64_t sum = 0;
  for (std::size_t i = 0; i < 3 * pixels; ++i) {
    sum += Put(line[i % 3][i / 3], samples, i);
  }
  return sum;
}

std::uint64_t SamplesOfBytes(const unsigned char* rgb, std::size_t pixels, unsigned char* samples) {
  std::uint64_t sum = 0;
  for (std::size_t i = 0; i < 3 * pixels; ++i) {
    sum += Put((2U * rgb[i] * kEngineWhite + 255U) / 510U, samples, i);
  }
  return sum;
}

#else

using Sums = hn::RepartitionToWide<Wide>;

/// The sum of so many 16-bit numbers fits into 32 bits.
constexpr std::size_t kMostToAdd = 65536;

HWY_INLINE hn::Vec<Sums> AddTo(hn::Vec<Sums> sums, Numbers numbers) {
  const Sums d;
  const auto pairs = hn::BitCast(d, numbers);
  const auto lower = hn::And(pairs, hn::Set(d, 0xFFFFU));
  return hn::Add(sums, hn::Add(lower, hn::ShiftRight<16>(pairs)));
}

HWY_INLINE std::uint64_t SumOf(hn::Vec<Sums> sums) {
  return hn::GetLane(hn::SumOfLanes(Sums(), sums));
}

std::uint64_t JoinBlock(const LinePlanes& line, std::size_t first, std::size_t count,
                        unsigned char* samples) {
  const Wide d;
  EngineSample joined[3 * (kBlock + kLineMargin)];
  auto sums = hn::Zero(Sums());
  for (std::size_t i = 0; i < count; i += hn::Lanes(d)) {
    const auto wanted = hn::FirstN(d, count - i);
    const auto of = [&](std::size_t channel) HWY_ATTR {
      return hn::IfThenElseZero(wanted, hn::LoadU(d, line[channel] + first + i));
    };
    const auto red = of(0);
    const auto green = of(1);
    const auto blue = of(2);
    hn::StoreInterleaved3(red, green, blue, d, joined + 3 * i);
    sums = AddTo(sums, red);
    sums = AddTo(sums, green);
    sums = AddTo(sums, blue);
  }
  std::memcpy(samples, joined, kPixelBytes * count);
  return SumOf(sums);
}

std::uint64_t JoinLine(const LinePlanes& line, std::size_t pixels, unsigned char* samples) {
  std::uint64_t sum = 0;
  for (std::size_t x = 0; x < pixels; x += kBlock) {
    sum += JoinBlock(line, x, HWY_MIN(kBlock, pixels - x), samples + kPixelBytes * x);
  }
  return sum;
}

/// n / 255 rounded, for n in 0 … 16320.
HWY_INLINE Numbers Over255(Numbers n) {
  const auto biased = hn::Add(n, hn::Set(Wide(), std::uint16_t{128}));
  return hn::ShiftRight<8>(hn::Add(biased, hn::ShiftRight<8>(biased)));
}

/// round(n × 16383 / 255) is 64 n + round(63 n / 255). 255 is odd, so no quotient is a half.
HWY_INLINE Numbers SamplesOf(Numbers bytes) {
  return hn::Add(hn::ShiftLeft<6>(bytes), Over255(hn::Sub(hn::ShiftLeft<6>(bytes), bytes)));
}

std::uint64_t SamplesOfSome(const unsigned char* bytes, std::size_t count, unsigned char* samples) {
  const Wide d;
  const Bytes narrow;
  const hn::Repartition<std::uint8_t, Wide> stored;
  const std::size_t lanes = hn::Lanes(d);
  auto sums = hn::Zero(Sums());
  std::size_t i = 0;
  for (; i + lanes <= count; i += lanes) {
    const auto numbers = SamplesOf(hn::PromoteTo(d, hn::LoadU(narrow, bytes + i)));
    hn::StoreU(hn::BitCast(stored, numbers), stored, samples + 2 * i);
    sums = AddTo(sums, numbers);
  }
  if (i < count) {
    unsigned char rest[kLineMargin] = {};
    EngineSample last[kLineMargin];
    std::memcpy(rest, bytes + i, count - i);
    const auto numbers = SamplesOf(hn::PromoteTo(d, hn::LoadU(narrow, rest)));
    hn::StoreU(numbers, d, last);
    std::memcpy(samples + 2 * i, last, 2 * (count - i));
    sums = AddTo(sums, numbers);  // black adds nothing
  }
  return SumOf(sums);
}

std::uint64_t SamplesOfBytes(const unsigned char* rgb, std::size_t pixels, unsigned char* samples) {
  const std::size_t bytes = 3 * pixels;
  std::uint64_t sum = 0;
  for (std::size_t i = 0; i < bytes; i += kMostToAdd) {
    sum += SamplesOfSome(rgb + i, HWY_MIN(kMostToAdd, bytes - i), samples + 2 * i);
  }
  return sum;
}
#endif  // HWY_TARGET == HWY_SCALAR

}  // namespace HWY_NAMESPACE
}  // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "conversion/run_on_processor.h"

std::uint64_t join_line(const LinePlanes& line, std::size_t pixels, unsigned char* samples) {
  TQR7_RUN_ON_PROCESSOR(JoinLine(line, pixels, samples));
}

std::uint64_t samples_of_bytes(const unsigned char* rgb, std::size_t pixels,
                               unsigned char* samples) {
  TQR7_RUN_ON_PROCESSOR(SamplesOfBytes(rgb, pixels, samples));
}
#endif  // HWY_ONCE
