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
constexpr std::uint16_t kBlueStep = 1;
constexpr std::uint16_t kGreenStep = kGridPoints;
constexpr std::uint16_t kRedStep = kGridPoints * kGridPoints;
constexpr std::uint16_t kDiagonalStep = kRedStep + kGreenStep + kBlueStep;
constexpr int kCellShift = 9;
constexpr std::size_t kBlock = 2 * kLineMargin;
constexpr std::size_t kPixelBytes = 3 * sizeof(EngineSample);

/// Where a block's pixels lie in the table, and how much of each of their cell's corners they take.
/// The way from the black corner to the white one goes along the axis with the largest fraction
/// first: corner 0, corner 1 after that axis, corner 2 ahead of the axis with the smallest,
/// corner 3.
struct Block {
  alignas(64) std::uint16_t corner[kBlock];      ///< the cell's black corner
  alignas(64) std::uint16_t first[kBlock];       ///< from there to corner 1
  alignas(64) std::uint16_t second[kBlock];      ///< from there to corner 2
  alignas(64) std::uint16_t shares[2 * kBlock];  ///< of corners 0 and 1, in 1/512
  alignas(64) std::uint16_t rest[2 * kBlock];    ///< of corners 2 and 3
};

/// From a scale on which white is 16320 to one on which it is 16384, rounded: for n within 0 …
/// 16320 that is n + n / 255, and (n + 128 + (n + 128) / 256) / 256 is n / 255 to the nearest.
HWY_INLINE Numbers Widen(Numbers number) {
  const auto biased = hn::Add(number, hn::Set(Wide(), std::uint16_t{128}));
  return hn::Add(number, hn::ShiftRight<8>(hn::Add(biased, hn::ShiftRight<8>(biased))));
}

template <int kShift>
HWY_INLINE void PositionsOf(const LinePlanes& line, std::size_t pixels) {
  const Wide d;
  for (std::uint16_t* plane : line) {
    for (std::size_t x = 0; x < pixels; x += hn::Lanes(d)) {
      hn::StoreU(Widen(hn::ShiftLeft<kShift>(hn::LoadU(d, plane + x))), d, plane + x);
    }
  }
}

void PositionsOfFine(const LinePlanes& line, std::size_t pixels) {
  PositionsOf<2>(line, pixels);
}

void PositionsOfBytes(const LinePlanes& line, std::size_t pixels) {
  PositionsOf<6>(line, pixels);
}

/// The last grid point has no cell of its own: white is the far end of the last cell.
HWY_INLINE Numbers CellOf(Numbers position) {
  return hn::Min(hn::ShiftRight<kCellShift>(position),
                 hn::Set(Wide(), std::uint16_t{kGridPoints - 2}));
}

HWY_INLINE Numbers FractionOf(Numbers position, Numbers cell) {
  return hn::Sub(position, hn::ShiftLeft<kCellShift>(cell));
}

/// Of axes with equal fractions any may be taken for the largest or the smallest: the corner that
/// this decides on gets no share.
HWY_INLINE void LocateVector(const LinePlanes& positions, std::size_t x, Block& block,
                             std::size_t i) {
  const Wide d;
  const auto red = hn::LoadU(d, positions[0] + x);
  const auto green = hn::LoadU(d, positions[1] + x);
  const auto blue = hn::LoadU(d, positions[2] + x);
  const auto redCell = CellOf(red);
  const auto greenCell = CellOf(green);
  const auto blueCell = CellOf(blue);
  const auto redPart = FractionOf(red, redCell);
  const auto greenPart = FractionOf(green, greenCell);
  const auto bluePart = FractionOf(blue, blueCell);

  const auto perGreen = hn::Set(d, kGreenStep);
  const auto row = hn::Add(hn::Mul(redCell, perGreen), greenCell);
  hn::StoreU(hn::Add(hn::Mul(row, perGreen), blueCell), d, block.corner + i);

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
  hn::StoreU(first, d, block.first + i);
  hn::StoreU(hn::Sub(hn::Set(d, kDiagonalStep), last), d, block.second + i);

  const auto whole = hn::Set(d, static_cast<std::uint16_t>(kCellSteps));
  hn::StoreInterleaved2(hn::Sub(whole, largest), hn::Sub(largest, middle), d, block.shares + 2 * i);
  hn::StoreInterleaved2(hn::Sub(middle, smallest), smallest, d, block.rest + 2 * i);
}

#if HWY_TARGET == HWY_SCALAR

/// One pixel's samples, for a processor without vectors.
HWY_INLINE std::uint64_t MixPixel(const ColourTable& table, const Block& block, std::size_t i,
                                  unsigned char* samples) {
  const ColourNode* corner = &table.nodes[block.corner[i]];
  const ColourNode& first = corner[block.first[i]];
  const ColourNode& second = corner[block.second[i]];
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
                                  unsigned char* samples) {
  std::uint64_t sum = 0;
  for (std::size_t i = 0; i < count; ++i) {
    sum += MixPixel(table, block, i, samples + kPixelBytes * i);
  }
  return sum;
}

#else

using Pair = hn::Full128<std::int16_t>;  // two pixels' samples, four numbers each
using PairSums = hn::Full128<std::int32_t>;
using Node = hn::Full64<std::int16_t>;

/// a[0] × b[0] + a[1] × b[1], and so on for each two neighbours. Some processors add them up at
/// once, others leave a part in `rest`.
HWY_INLINE hn::Vec<PairSums> MultiplyNeighbours(hn::Vec<Pair> a, hn::Vec<Pair> b) {
  const PairSums d;
  auto rest = hn::Zero(d);
  const auto sums = hn::ReorderWidenMulAccumulate(d, a, b, hn::Zero(d), rest);
  return hn::RearrangeToOddPlusEven(sums, rest);
}

HWY_INLINE hn::Vec<Pair> TwoNodes(const ColourNode& a, const ColourNode& b) {
  const Node half;
  const Pair d;
  return hn::InterleaveLower(d, hn::ZeroExtendVector(d, hn::LoadU(half, a.data())),
                             hn::ZeroExtendVector(d, hn::LoadU(half, b.data())));
}

/// Two neighbouring 16-bit shares, four times over.
HWY_INLINE hn::Vec<Pair> SharesOf(const std::uint16_t* shares) {
  std::int32_t both = 0;
  std::memcpy(&both, shares, sizeof both);
  return hn::BitCast(Pair(), hn::Set(PairSums(), both));
}

/// The samples of a block's pixel i, times kCellSteps and with a half for rounding.
HWY_INLINE hn::Vec<PairSums> MixPixel(const ColourTable& table, const Block& block, std::size_t i) {
  const ColourNode* corner = &table.nodes[block.corner[i]];
  const auto near = MultiplyNeighbours(TwoNodes(corner[0], corner[block.first[i]]),
                                       SharesOf(block.shares + 2 * i));
  const auto far = MultiplyNeighbours(TwoNodes(corner[block.second[i]], corner[kDiagonalStep]),
                                      SharesOf(block.rest + 2 * i));
  const auto half = hn::Set(PairSums(), static_cast<std::int32_t>(kCellSteps / 2));
  return hn::ShiftRight<kCellShift>(hn::Add(hn::Add(near, far), half));
}

HWY_INLINE hn::Vec<Pair> MixTwoPixels(const ColourTable& table, const Block& block, std::size_t i) {
  const Pair d;
  const hn::Half<Pair> half;
  const auto both = hn::Combine(d, hn::DemoteTo(half, MixPixel(table, block, i + 1)),
                                hn::DemoteTo(half, MixPixel(table, block, i)));
  return hn::Min(hn::Max(both, hn::Zero(d)), hn::Set(d, static_cast<std::int16_t>(kEngineWhite)));
}

/// Leaves out each pixel's fourth number.
HWY_INLINE hn::Vec<hn::Full128<std::uint8_t> > Pack(hn::Vec<Pair> both) {
  alignas(16) static constexpr std::uint8_t kOrder[16] = {0,  1,  2,  3,  4, 5, 8, 9,
                                                          10, 11, 12, 13, 6, 7, 6, 7};
  const hn::Full128<std::uint8_t> d;
  return hn::TableLookupBytes(hn::BitCast(d, both), hn::Load(d, kOrder));
}

/// Writes the block's `count` pixels and returns their sum. Sixteen bytes are written for each two
/// pixels, so the last two go by way of a buffer.
HWY_INLINE std::uint64_t MixBlock(const ColourTable& table, const Block& block, std::size_t count,
                                  unsigned char* samples) {
  const hn::Full128<std::uint8_t> bytes;
  const auto ones = hn::Set(Pair(), std::int16_t{1});
  auto sums = hn::Zero(PairSums());
  std::size_t i = 0;
  for (; i + 2 < count; i += 2) {
    const auto both = MixTwoPixels(table, block, i);
    sums = hn::Add(sums, MultiplyNeighbours(both, ones));
    hn::StoreU(Pack(both), bytes, samples + kPixelBytes * i);
  }
  auto both = MixTwoPixels(table, block, i);
  if (count - i == 1) {
    both = hn::ZeroExtendVector(Pair(), hn::LowerHalf(both));
  }
  sums = hn::Add(sums, MultiplyNeighbours(both, ones));
  unsigned char last[16];
  hn::StoreU(Pack(both), bytes, last);
  std::memcpy(samples + kPixelBytes * i, last, kPixelBytes * (count - i));
  return static_cast<std::uint64_t>(hn::GetLane(hn::SumOfLanes(PairSums(), sums)));
}

#endif  // HWY_TARGET == HWY_SCALAR

std::uint64_t InterpolateLine(const ColourTable& table, const LinePlanes& positions,
                              std::size_t pixels, unsigned char* samples) {
  const std::size_t lanes = hn::Lanes(Wide());
  Block block;
  std::uint64_t sum = 0;
  for (std::size_t x = 0; x < pixels; x += kBlock) {
    const std::size_t count = HWY_MIN(kBlock, pixels - x);
    for (std::size_t i = 0; i < count; i += lanes) {
      LocateVector(positions, x + i, block, i);
    }
    sum += MixBlock(table, block, count, samples + kPixelBytes * x);
  }
  return sum;
}

}  // namespace HWY_NAMESPACE
}  // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "conversion/run_on_processor.h"

void positions_of_fine(const LinePlanes& line, std::size_t pixels) {
  TQR7_RUN_ON_PROCESSOR(PositionsOfFine(line, pixels));
}

void positions_of_bytes(const LinePlanes& line, std::size_t pixels) {
  TQR7_RUN_ON_PROCESSOR(PositionsOfBytes(line, pixels));
}

std::uint64_t interpolate_line(const ColourTable& table, const LinePlanes& positions,
                               std::size_t pixels, unsigned char* samples) {
  TQR7_RUN_ON_PROCESSOR(InterpolateLine(table, positions, pixels, samples));
}

std::uint64_t join_line(const LinePlanes& line, std::size_t pixels, unsigned char* samples) {
  std::uint64_t sum = 0;
  for (std::size_t x = 0; x < pixels; ++x) {
    const EngineSample pixel[3] = {line[0][x], line[1][x], line[2][x]};
    std::memcpy(samples + sizeof pixel * x, pixel, sizeof pixel);
    sum += std::uint64_t{pixel[0]} + pixel[1] + pixel[2];
  }
  return sum;
}
#endif  // HWY_ONCE
