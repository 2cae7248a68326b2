// SPDX-License-Identifier: Apache-2.0
#include "conversion/colour_kernels.h"

#include <cstring>

#include "conversion/engine_sample.h"

#include "conversion/compiled_targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "conversion/colour_kernels.cpp"
#include "hwy/foreach_target.h"  // this file once more for each kind of processor
//
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

using Wide = hn::CappedTag<std::uint16_t, kLineMargin>;
using Numbers = hn::Vec<Wide>;
constexpr std::uint16_t kBlueStep = 1;
constexpr std::uint16_t kGreenStep = kGridPoints;
constexpr std::uint16_t kRedStep = kGridPoints * kGridPoints;
constexpr std::uint16_t kDiagonalStep = kRedStep + kGreenStep + kBlueStep;
constexpr int kCellShift = 9;
constexpr std::size_t kBlock = 2 * kLineMargin;
constexpr std::size_t kPixelBytes = 3 * sizeof(EngineSample);

/// For each pixel of a block: its cell in the table, and the shares of four of the cell's corners.
/// They are on the way from the black corner (0) to the white one (3). The way first goes along the
/// axis with the largest fraction, to corner 1, and last along the one with the smallest, from
/// corner 2.
struct Block {
  alignas(64) std::uint16_t corner[kBlock];      ///< node of the cell's black corner
  alignas(64) std::uint16_t first[kBlock];       ///< node of corner 1
  alignas(64) std::uint16_t second[kBlock];      ///< node of corner 2
  alignas(64) std::uint16_t shares[2 * kBlock];  ///< of corners 0 and 1, in 1/512
  alignas(64) std::uint16_t rest[2 * kBlock];    ///< of corners 2 and 3
};

/// From a scale whose white is 16320 to one whose white is 16384, rounded. For n in 0 … 16320 this
/// is n + n / 255, and (n + 128 + (n + 128) / 256) / 256 is n / 255 rounded.
HWY_INLINE Numbers Widen(Numbers number) {
  const auto biased = hn::Add(number, hn::Set(Wide(), std::uint16_t{128}));
  return hn::Add(number, hn::ShiftRight<8>(hn::Add(biased, hn::ShiftRight<8>(biased))));
}

template <LineScale kScale>
HWY_INLINE Numbers PlacesAt(const std::uint16_t* numbers) {
  const auto read = hn::LoadU(Wide(), numbers);
  if constexpr (kScale == LineScale::kBytes) {
    return Widen(hn::ShiftLeft<6>(read));
  } else if constexpr (kScale == LineScale::kFine) {
    return Widen(hn::ShiftLeft<2>(read));
  } else {
    return read;
  }
}

/// No cell begins at the last grid point: white is the far end of the last cell.
HWY_INLINE Numbers CellOf(Numbers position) {
  return hn::Min(hn::ShiftRight<kCellShift>(position),
                 hn::Set(Wide(), std::uint16_t{kGridPoints - 2}));
}

HWY_INLINE Numbers FractionOf(Numbers position, Numbers cell) {
  return hn::Sub(position, hn::ShiftLeft<kCellShift>(cell));
}

/// Of axes with equal fractions any may count as the largest or the smallest: the corner that
/// depends on it gets no share.
template <LineScale kScale>
HWY_INLINE void LocateVector(const LinePlanes& line, std::size_t x, Block& block, std::size_t i) {
  const Wide d;
  const auto red = PlacesAt<kScale>(line[0] + x);
  const auto green = PlacesAt<kScale>(line[1] + x);
  const auto blue = PlacesAt<kScale>(line[2] + x);
  const auto redCell = CellOf(red);
  const auto greenCell = CellOf(green);
  const auto blueCell = CellOf(blue);
  const auto redPart = FractionOf(red, redCell);
  const auto greenPart = FractionOf(green, greenCell);
  const auto bluePart = FractionOf(blue, blueCell);

  const auto perGreen = hn::Set(d, kGreenStep);
  const auto row = hn::Add(hn::Mul(redCell, perGreen), greenCell);
  const auto corner = hn::Add(hn::Mul(row, perGreen), blueCell);
  hn::StoreU(corner, d, block.corner + i);

  const auto largest = hn::Max(hn::Max(redPart, greenPart), bluePart);
  const auto smallest = hn::Min(hn::Min(redPart, greenPart), bluePart);
  const auto middle =
      hn::Sub(hn::Add(hn::Add(redPart, greenPart), bluePart), hn::Add(largest, smallest));
  const auto redStep = hn::Set(d, kRedStep);
  const auto blueStep = hn::Set(d, kBlueStep);
  const auto first = hn::IfThenElse(hn::Eq(redPart, largest), redStep,
                                    hn::IfThenElse(hn::Eq(greenPart, largest), perGreen, blueStep));
  const auto last = hn::IfThenElse(hn::Eq(bluePart, smallest), blueStep,
                                   hn::IfThenElse(hn::Eq(greenPart, smallest), perGreen, redStep));
  hn::StoreU(hn::Add(corner, first), d, block.first + i);
  hn::StoreU(hn::Add(corner, hn::Sub(hn::Set(d, kDiagonalStep), last)), d, block.second + i);

  const auto whole = hn::Set(d, static_cast<std::uint16_t>(kCellSteps));
  hn::StoreInterleaved2(hn::Sub(whole, largest), hn::Sub(largest, middle), d, block.shares + 2 * i);
  hn::StoreInterleaved2(hn::Sub(middle, smallest), smallest, d, block.rest + 2 * i);
}

#if HWY_TARGET == HWY_SCALAR

/// One pixel's samples, for a processor without vectors.
HWY_INLINE std::uint64_t MixPixel(const ColourTable& table, const Block& block, std::size_t i,
                                  unsigned char* samples) {
  const ColourNode* corner = &table.nodes[block.corner[i]];
  const ColourNode& first = table.nodes[block.first[i]];
  const ColourNode& second = table.nodes[block.second[i]];
  const ColourNode& opposite = corner[kDiagonalStep];
  std::uint64_t sum = 0;
  for (std::size_t channel = 0; channel < 3; ++channel) {
    const std::int32_t mixed =
        corner[0][channel] * block.shares[2 * i] + first[channel] * block.shares[2 * i + 1] +
        second[channel] * block.rest[2 * i] + opposite[channel] * block.rest[2 * i + 1];
    const std::int32_t rounded = (mixed + static_cast<std::int32_t>(kCellSteps / 2)) >> kCellShift;
    const auto sample =
        static_cast<std::uint16_t>(HWY_MIN(HWY_MAX(rounded, 0), std::int32_t{kEngineWhite}));
    std::memcpy(samples + channel * sizeof sample, &sample, sizeof sample);
    sum += sample;
  }
  return sum;
}

HWY_INLINE std::uint64_t MixBlock(const ColourTable& table, const Block& block, std::size_t count,
                                  std::size_t /*room*/, unsigned char* samples) {
  std::uint64_t sum = 0;
  for (std::size_t i = 0; i < count; ++i) {
    sum += MixPixel(table, block, i, samples + kPixelBytes * i);
  }
  return sum;
}

#else

using Pair = hn::Full128<std::int16_t>;  // two pixels' samples, four numbers each

/// a[0] × b[0] + a[1] × b[1], and so on for each two neighbours. Some processors add both products
/// at once, others leave a part in `rest`.
template <typename V>
HWY_INLINE auto MultiplyNeighbours(V a, V b) {
  const hn::RepartitionToWide<hn::DFromV<V> > d;
  auto rest = hn::Zero(d);
  const auto sums = hn::ReorderWidenMulAccumulate(d, a, b, hn::Zero(d), rest);
  return hn::RearrangeToOddPlusEven(sums, rest);
}

/// Samples from 512ths of samples, rounded.
template <typename V>
HWY_INLINE V Rounded(V sums) {
  const hn::DFromV<V> d;
  return hn::ShiftRight<kCellShift>(hn::Add(sums, hn::Set(d, std::int32_t{kCellSteps / 2})));
}

template <typename V>
HWY_INLINE V WithinScale(V samples) {
  const hn::DFromV<V> d;
  return hn::Min(hn::Max(samples, hn::Zero(d)),
                 hn::Set(d, static_cast<std::int16_t>(kEngineWhite)));
}

/// Drops each pixel's fourth number. The last four bytes of each half are of no use.
template <typename V>
HWY_INLINE auto Pack(V mixed) {
  alignas(16) static constexpr std::uint8_t kOrder[16] = {0,  1,  2,  3,  4, 5, 8, 9,
                                                          10, 11, 12, 13, 6, 7, 6, 7};
  const hn::Repartition<std::uint8_t, hn::DFromV<V> > d;
  return hn::TableLookupBytes(hn::BitCast(d, mixed), hn::LoadDup128(d, kOrder));
}

#if HWY_ARCH_X86 && HWY_MAX_BYTES >= 32

// Four pixels at a time: pixels 0 and 2 in the halves of one vector, 1 and 3 in those of another.
// Joined half by half, they are in order.
constexpr std::size_t kAtOnce = 4;
using Four = hn::FixedTag<std::int16_t, 16>;
using FourBytes = hn::Repartition<std::uint8_t, Four>;

/// Where among the shares of four pixels (two each, of two bytes) those of pixels 0 and 2 are, and
/// those of 1 and 3: each pixel's four times over.
alignas(32) constexpr std::uint8_t kSharesOfEven[32] = {0,  1,  2, 3, 0,  1,  2, 3,  0,  1, 2,
                                                        3,  0,  1, 2, 3,  8,  9, 10, 11, 8, 9,
                                                        10, 11, 8, 9, 10, 11, 8, 9,  10, 11};
alignas(32) constexpr std::uint8_t kSharesOfOdd[32] = {4,  5,  6,  7,  4,  5,  6,  7,  4,  5,  6,
                                                       7,  4,  5,  6,  7,  12, 13, 14, 15, 12, 13,
                                                       14, 15, 12, 13, 14, 15, 12, 13, 14, 15};

// A node is read together with the eight bytes after it. After the last node the table is padded.
static_assert(sizeof(ColourTable) >= sizeof(ColourTable::nodes) + sizeof(ColourNode));

/// Pixel i's node in the lower half, pixel i + 2's in the upper.
HWY_INLINE hn::Vec<Four> NodesOf(const ColourNode* table, const std::uint16_t* numbers,
                                 std::size_t i) {
  const Pair half;
  return hn::Combine(Four(), hn::LoadU(half, table[numbers[i + 2]].data()),
                     hn::LoadU(half, table[numbers[i]].data()));
}

HWY_INLINE hn::Vec<Four> SharesOf(const std::uint16_t* shares, const std::uint8_t* places) {
  const hn::Repartition<std::uint16_t, Four> d;
  const FourBytes bytes;
  const auto all = hn::BitCast(bytes, hn::LoadDup128(d, shares));
  return hn::BitCast(Four(), hn::TableLookupBytes(all, hn::Load(bytes, places)));
}

/// Pixels i + kOdd and i + 2 + kOdd.
template <std::size_t kOdd>
HWY_INLINE auto MixEachOther(const ColourTable& table, const Block& block, std::size_t i) {
  const Four d;
  const ColourNode* nodes = table.nodes.data();
  const auto* places = kOdd != 0 ? kSharesOfOdd : kSharesOfEven;
  const auto near = hn::InterleaveLower(d, NodesOf(nodes, block.corner, i + kOdd),
                                        NodesOf(nodes, block.first, i + kOdd));
  const auto far = hn::InterleaveLower(d, NodesOf(nodes, block.second, i + kOdd),
                                       NodesOf(nodes + kDiagonalStep, block.corner, i + kOdd));
  return Rounded(hn::Add(MultiplyNeighbours(near, SharesOf(block.shares + 2 * i, places)),
                         MultiplyNeighbours(far, SharesOf(block.rest + 2 * i, places))));
}

HWY_INLINE hn::Vec<Four> Mix(const ColourTable& table, const Block& block, std::size_t i) {
  return WithinScale(hn::ReorderDemote2To(Four(), MixEachOther<0>(table, block, i),
                                          MixEachOther<1>(table, block, i)));
}

HWY_INLINE void StoreMixed(hn::Vec<Four> mixed, unsigned char* samples) {
  const hn::Half<FourBytes> half;
  const auto packed = Pack(mixed);
  hn::StoreU(hn::LowerHalf(packed), half, samples);
  hn::StoreU(hn::UpperHalf(half, packed), half, samples + 2 * kPixelBytes);
}

#else

constexpr std::size_t kAtOnce = 2;

HWY_INLINE hn::Vec<Pair> TwoNodes(const ColourNode& a, const ColourNode& b) {
  const hn::Full64<std::int16_t> half;
  const Pair d;
  return hn::InterleaveLower(d, hn::ZeroExtendVector(d, hn::LoadU(half, a.data())),
                             hn::ZeroExtendVector(d, hn::LoadU(half, b.data())));
}

/// Two neighbouring 16-bit shares, four times over.
HWY_INLINE hn::Vec<Pair> SharesOf(const std::uint16_t* shares) {
  std::int32_t both = 0;
  std::memcpy(&both, shares, sizeof both);
  return hn::BitCast(Pair(), hn::Set(hn::Full128<std::int32_t>(), both));
}

HWY_INLINE hn::Vec<hn::Full128<std::int32_t> > MixPixel(const ColourTable& table,
                                                        const Block& block, std::size_t i) {
  const ColourNode* corner = &table.nodes[block.corner[i]];
  const auto near = MultiplyNeighbours(TwoNodes(corner[0], table.nodes[block.first[i]]),
                                       SharesOf(block.shares + 2 * i));
  const auto far = MultiplyNeighbours(TwoNodes(table.nodes[block.second[i]], corner[kDiagonalStep]),
                                      SharesOf(block.rest + 2 * i));
  return Rounded(hn::Add(near, far));
}

HWY_INLINE hn::Vec<Pair> Mix(const ColourTable& table, const Block& block, std::size_t i) {
  const hn::Half<Pair> half;
  return WithinScale(hn::Combine(Pair(), hn::DemoteTo(half, MixPixel(table, block, i + 1)),
                                 hn::DemoteTo(half, MixPixel(table, block, i))));
}

HWY_INLINE void StoreMixed(hn::Vec<Pair> mixed, unsigned char* samples) {
  hn::StoreU(Pack(mixed), hn::Full128<std::uint8_t>(), samples);
}

#endif  // HWY_ARCH_X86 && HWY_MAX_BYTES >= 32

/// Writes the block's `count` pixels and returns their sum. `samples` has room for `room` pixels. A
/// write may reach past its pixels, so the last ones go through a buffer.
HWY_INLINE std::uint64_t MixBlock(const ColourTable& table, const Block& block, std::size_t count,
                                  std::size_t room, unsigned char* samples) {
  using Mixed = hn::DFromV<decltype(Mix(table, block, 0))>;
  const auto ones = hn::Set(Mixed(), std::int16_t{1});
  auto sums = hn::Zero(hn::RepartitionToWide<Mixed>());
  std::size_t i = 0;
  for (; i + kAtOnce <= count && i + kAtOnce < room; i += kAtOnce) {
    const auto mixed = Mix(table, block, i);
    sums = hn::Add(sums, MultiplyNeighbours(mixed, ones));
    StoreMixed(mixed, samples + kPixelBytes * i);
  }
  if (i < count) {
    const std::size_t left = count - i;
    const auto mixed = hn::IfThenElseZero(hn::FirstN(Mixed(), 4 * left), Mix(table, block, i));
    sums = hn::Add(sums, MultiplyNeighbours(mixed, ones));
    unsigned char last[kAtOnce * kPixelBytes + 4];
    StoreMixed(mixed, last);
    std::memcpy(samples + kPixelBytes * i, last, kPixelBytes * left);
  }
  return static_cast<std::uint64_t>(
      hn::GetLane(hn::SumOfLanes(hn::RepartitionToWide<Mixed>(), sums)));
}

#endif  // HWY_TARGET == HWY_SCALAR

template <LineScale kScale>
std::uint64_t Interpolate(const ColourTable& table, const LinePlanes& line, std::size_t pixels,
                          unsigned char* samples) {
  const std::size_t lanes = hn::Lanes(Wide());
  Block block;
  std::uint64_t sum = 0;
  for (std::size_t x = 0; x < pixels; x += kBlock) {
    const std::size_t count = HWY_MIN(kBlock, pixels - x);
    for (std::size_t i = 0; i < count; i += lanes) {
      LocateVector<kScale>(line, x + i, block, i);
    }
    sum += MixBlock(table, block, count, pixels - x, samples + kPixelBytes * x);
  }
  return sum;
}

std::uint64_t InterpolateLine(const ColourTable& table, const LinePlanes& line, LineScale scale,
                              std::size_t pixels, unsigned char* samples) {
  switch (scale) {
    case LineScale::kBytes:
      return Interpolate<LineScale::kBytes>(table, line, pixels, samples);
    case LineScale::kFine:
      return Interpolate<LineScale::kFine>(table, line, pixels, samples);
    default:
      return Interpolate<LineScale::kPlaces>(table, line, pixels, samples);
  }
}

}  // namespace HWY_NAMESPACE
}  // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "conversion/run_on_processor.h"

std::uint64_t interpolate_line(const ColourTable& table, const LinePlanes& line, LineScale scale,
                               std::size_t pixels, unsigned char* samples) {
  TQR7_RUN_ON_PROCESSOR(InterpolateLine(table, line, scale, pixels, samples));
}
#endif  // HWY_ONCE
