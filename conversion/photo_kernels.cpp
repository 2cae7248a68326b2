// SPDX-License-Identifier: Apache-2.0
#include "conversion/photo_kernels.h"

#include <algorithm>
#include <cstring>

#include "conversion/compiled_targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "conversion/photo_kernels.cpp"
#include "hwy/foreach_target.h"  // this file once more for each kind of processor
//
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

using Wide = hn::CappedTag<std::uint16_t, kLineMargin>;
using WideSigned = hn::RebindToSigned<Wide>;
using Bytes = hn::Rebind<std::uint8_t, Wide>;
using Numbers = hn::Vec<Wide>;

/// The channels of one vector of pixels.
struct Pixels {
  Numbers red, green, blue;
};

HWY_INLINE Pixels LoadPixels(const unsigned char* rgb) {
  const Bytes bytes;
  hn::Vec<Bytes> red;
  hn::Vec<Bytes> green;
  hn::Vec<Bytes> blue;
  hn::LoadInterleaved3(bytes, rgb, red, green, blue);
  const Wide d;
  return {hn::PromoteTo(d, red), hn::PromoteTo(d, green), hn::PromoteTo(d, blue)};
}

/// Calls body(x, pixels) for each vector of a line. The last one is padded with black.
template <typename Body>
HWY_INLINE void ForEachVector(const unsigned char* rgb, std::size_t pixels, Body body) {
  const std::size_t lanes = hn::Lanes(Wide());
  std::size_t x = 0;
  for (; x + lanes <= pixels; x += lanes) {
    body(x, LoadPixels(rgb + 3 * x));
  }
  if (x < pixels) {
    unsigned char rest[3 * kLineMargin] = {};
    std::memcpy(rest, rgb + 3 * x, 3 * (pixels - x));
    body(x, LoadPixels(rest));
  }
}

void SplitLine(const unsigned char* rgb, std::size_t pixels, const LinePlanes& line) {
  ForEachVector(rgb, pixels, [&line](std::size_t x, const Pixels& pixel) HWY_ATTR {
    const Wide d;
    hn::StoreU(pixel.red, d, line[0] + x);
    hn::StoreU(pixel.green, d, line[1] + x);
    hn::StoreU(pixel.blue, d, line[2] + x);
  });
}

HWY_INLINE Numbers LumaOf(const Pixels& pixel) {
  const Wide d;
  const auto red = hn::Mul(pixel.red, hn::Set(d, std::uint16_t{54}));
  const auto green = hn::Mul(pixel.green, hn::Set(d, std::uint16_t{183}));
  const auto blue = hn::Mul(pixel.blue, hn::Set(d, std::uint16_t{19}));
  const auto sum = hn::Add(hn::Add(red, green), hn::Add(blue, hn::Set(d, std::uint16_t{8})));
  return hn::ShiftRight<4>(sum);
}

void LumaLine(const unsigned char* rgb, std::size_t pixels, std::uint16_t* luma) {
  ForEachVector(rgb, pixels, [luma](std::size_t x, const Pixels& pixel) HWY_ATTR {
    hn::StoreU(LumaOf(pixel), Wide(), luma + x);
  });
}

/// At most 16 × kFineWhite and a half, which just fits into 16 bits.
HWY_INLINE Numbers Weigh(Numbers a, Numbers b, Numbers c, Numbers d, Numbers e) {
  const auto outer = hn::Add(a, e);
  const auto inner = hn::ShiftLeft<2>(hn::Add(hn::Add(b, d), c));
  const auto centre = hn::Add(c, c);
  const auto half = hn::Set(Wide(), std::uint16_t{8});
  return hn::ShiftRight<4>(hn::Add(hn::Add(outer, inner), hn::Add(centre, half)));
}

void BlurAlong(const std::uint16_t* line, std::size_t pixels, std::uint16_t* blurred) {
  const Wide d;
  for (std::size_t x = 0; x < pixels; x += hn::Lanes(d)) {
    const std::uint16_t* here = line + x;
    hn::StoreU(Weigh(hn::LoadU(d, here - 2), hn::LoadU(d, here - 1), hn::LoadU(d, here),
                     hn::LoadU(d, here + 1), hn::LoadU(d, here + 2)),
               d, blurred + x);
  }
}

void BlurAcross(const std::array<const std::uint16_t*, 5>& lines, std::size_t pixels,
                std::uint16_t* blurred) {
  const Wide d;
  for (std::size_t x = 0; x < pixels; x += hn::Lanes(d)) {
    hn::StoreU(
        Weigh(hn::LoadU(d, lines[0] + x), hn::LoadU(d, lines[1] + x), hn::LoadU(d, lines[2] + x),
              hn::LoadU(d, lines[3] + x), hn::LoadU(d, lines[4] + x)),
        d, blurred + x);
  }
}

HWY_INLINE Numbers AddWithin(Numbers channel, hn::Vec<WideSigned> difference) {
  const WideSigned d;
  const auto sum = hn::Add(hn::BitCast(d, hn::ShiftLeft<4>(channel)), difference);
  const auto white = hn::Set(d, static_cast<std::int16_t>(kFineWhite));
  return hn::BitCast(Wide(), hn::Min(hn::Max(sum, hn::Zero(d)), white));
}

void SharpenLine(const unsigned char* rgb, const std::uint16_t* blurred, std::size_t pixels,
                 std::uint16_t strength, const LinePlanes& fine) {
  const Wide d;
  const WideSigned ds;
  const auto threshold = hn::Set(d, kSharpeningThreshold);
  const auto times = hn::Set(d, strength);
  const auto half = hn::Set(d, std::uint16_t{4});
  ForEachVector(rgb, pixels, [&](std::size_t x, const Pixels& pixel) HWY_ATTR {
    const auto luma = LumaOf(pixel);
    const auto around = hn::LoadU(d, blurred + x);
    const auto detail = hn::Sub(hn::BitCast(ds, luma), hn::BitCast(ds, around));
    const auto size = hn::BitCast(d, hn::Abs(detail));
    const auto beyond = hn::SaturatedSub(size, threshold);
    const auto amount = hn::ShiftRight<3>(hn::Add(hn::Mul(beyond, times), half));
    const auto sign = hn::BroadcastSignBit(detail);
    const auto difference = hn::Sub(hn::Xor(hn::BitCast(ds, amount), sign), sign);
    hn::StoreU(AddWithin(pixel.red, difference), d, fine[0] + x);
    hn::StoreU(AddWithin(pixel.green, difference), d, fine[1] + x);
    hn::StoreU(AddWithin(pixel.blue, difference), d, fine[2] + x);
  });
}

}  // namespace HWY_NAMESPACE
}  // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "conversion/run_on_processor.h"

void split_line(const unsigned char* rgb, std::size_t pixels, const LinePlanes& line) {
  TQR7_RUN_ON_PROCESSOR(SplitLine(rgb, pixels, line));
}

void luma_line(const unsigned char* rgb, std::size_t pixels, std::uint16_t* luma) {
  TQR7_RUN_ON_PROCESSOR(LumaLine(rgb, pixels, luma));
}

void blur_along(std::uint16_t* line, std::size_t pixels, std::uint16_t* blurred) {
  std::fill_n(line - 2, 2, line[0]);
  std::fill_n(line + pixels, 2, line[pixels - 1]);
  TQR7_RUN_ON_PROCESSOR(BlurAlong(line, pixels, blurred));
}

void blur_across(const std::array<const std::uint16_t*, 5>& lines, std::size_t pixels,
                 std::uint16_t* blurred) {
  TQR7_RUN_ON_PROCESSOR(BlurAcross(lines, pixels, blurred));
}

void sharpen_line(const unsigned char* rgb, const std::uint16_t* blurred, std::size_t pixels,
                  int strength, const LinePlanes& fine) {
  TQR7_RUN_ON_PROCESSOR(
      SharpenLine(rgb, blurred, pixels, static_cast<std::uint16_t>(strength), fine));
}
#endif  // HWY_ONCE
