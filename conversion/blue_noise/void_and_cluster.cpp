// SPDX-License-Identifier: Apache-2.0
#include "conversion/blue_noise/void_and_cluster.h"

#include <array>

namespace {

/// How many dots away a dot still has a weight. There the Gaussian of σ = 1.5 dots, which the
/// method's author found best, is a millionth.
constexpr std::size_t kReach = 8;
constexpr std::size_t kSpan = 2 * kReach + 1;
static_assert(kSpan == kLeastBlueNoiseSide);

/// The weight of a dot at its own place. The sum of all weights of a neighbourhood is below 2^31.
constexpr std::uint64_t kOwnWeight = std::uint64_t{1} << 27;
/// e^(−1 / 2σ²) of 2^32: from one squared distance to the next.
constexpr std::uint64_t kFalloff = 0xCCFD205E;
/// The share of dots in the pattern at which the ranking starts. The author uses a tenth.
constexpr std::size_t kStartingShare = 10;

using Weights = std::array<std::uint32_t, kSpan * kSpan>;

/// exp(−distance² / 2σ²), computed by repeated multiplication: the last bit of exp() differs
/// between systems.
constexpr Weights make_weights() {
  std::array<std::uint64_t, 2 * kReach * kReach + 1> ofSquare{kOwnWeight};
  for (std::size_t i = 1; i < ofSquare.size(); ++i) {
    ofSquare[i] = (ofSquare[i - 1] * kFalloff + (std::uint64_t{1} << 31)) >> 32;
  }
  Weights weights{};
  for (std::size_t y = 0; y < kSpan; ++y) {
    for (std::size_t x = 0; x < kSpan; ++x) {
      const std::size_t down = y < kReach ? kReach - y : y - kReach;
      const std::size_t across = x < kReach ? kReach - x : x - kReach;
      weights[y * kSpan + x] = static_cast<std::uint32_t>(ofSquare[down * down + across * across]);
    }
  }
  return weights;
}

constexpr Weights kWeights = make_weights();

/// Marsaglia's generator with 32 bits of state ("Xorshift RNGs", Journal of Statistical Software 8,
/// 2003): the same sequence everywhere.
class Xorshift {
 public:
  std::uint32_t next() {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 17;
    state_ ^= state_ << 5;
    return state_;
  }

 private:
  std::uint32_t state_ = 2463534242U;
};

/// A square of places, some with a dot, and for each place how crowded its neighbourhood is. Each
/// edge continues at the opposite one.
class DotPattern {
 public:
  DotPattern(std::size_t side, Xorshift& random)
      : side_(side), crowding_(side * side), dotted_(side * side), extremes_(side) {
    // Equal places get a random order, so that no direction is preferred. The random part is far
    // smaller than any real difference.
    for (std::uint32_t& crowding : crowding_) {
      crowding = random.next() >> 24;
    }
    for (std::size_t y = 0; y < side_; ++y) {
      find_extremes(y);
    }
  }

  bool dotted(std::size_t place) const { return dotted_[place] != 0; }
  std::uint32_t crowding(std::size_t place) const { return crowding_[place]; }

  /// Sets a dot where there is none, or removes the one that is there.
  void flip(std::size_t place) {
    dotted_[place] ^= 1U;
    // A value may wrap below 0 for a moment. The sum never is negative, so it comes back.
    const std::uint32_t sign = dotted_[place] != 0 ? 1U : ~std::uint32_t{0};
    const std::size_t top = place / side_ + side_ - kReach;
    const std::size_t left = place % side_ + side_ - kReach;
    for (std::size_t y = 0; y < kSpan; ++y) {
      const std::size_t row = (top + y) % side_;
      for (std::size_t x = 0; x < kSpan; ++x) {
        crowding_[row * side_ + (left + x) % side_] += sign * kWeights[y * kSpan + x];
      }
      find_extremes(row);
    }
  }

  /// The dot in the most crowded place; there must be one.
  std::size_t tightest_cluster() const {
    std::size_t best = kNone;
    for (const RowExtremes& row : extremes_) {
      if (row.cluster != kNone && (best == kNone || crowding_[row.cluster] > crowding_[best])) {
        best = row.cluster;
      }
    }
    return best;
  }

  /// The least crowded place without a dot; there must be one.
  std::size_t largest_void() const {
    std::size_t best = kNone;
    for (const RowExtremes& row : extremes_) {
      if (row.emptiest != kNone && (best == kNone || crowding_[row.emptiest] < crowding_[best])) {
        best = row.emptiest;
      }
    }
    return best;
  }

 private:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  /// The best places of a row, so that a search looks at one number a row.
  struct RowExtremes {
    std::size_t cluster = kNone;
    std::size_t emptiest = kNone;
  };

  void find_extremes(std::size_t row) {
    RowExtremes found;
    for (std::size_t place = row * side_; place < (row + 1) * side_; ++place) {
      std::size_t& best = dotted(place) ? found.cluster : found.emptiest;
      const bool better = best == kNone || (dotted(place) ? crowding_[place] > crowding_[best]
                                                          : crowding_[place] < crowding_[best]);
      best = better ? place : best;
    }
    extremes_[row] = found;
  }

  std::size_t side_;
  std::vector<std::uint32_t> crowding_;
  std::vector<unsigned char> dotted_;
  std::vector<RowExtremes> extremes_;
};

void scatter_dots(DotPattern& pattern, std::size_t places, std::size_t dots, Xorshift& random) {
  while (dots > 0) {
    const std::size_t place = random.next() % places;
    if (!pattern.dotted(place)) {
      pattern.flip(place);
      --dots;
    }
  }
}

/// Moves dots out of clusters into voids until no move makes a dot less crowded. This ends, because
/// each move lowers the sum of all crowding by a whole number.
void even_out(DotPattern& pattern) {
  for (;;) {
    const std::size_t from = pattern.tightest_cluster();
    pattern.flip(from);
    const std::size_t to = pattern.largest_void();
    if (pattern.crowding(to) >= pattern.crowding(from)) {
      pattern.flip(from);
      return;
    }
    pattern.flip(to);
  }
}

}  // namespace

std::vector<std::uint32_t> blue_noise_ranks(std::size_t side) {
  const std::size_t places = side * side;
  const std::size_t start = places / kStartingShare;
  Xorshift random;
  DotPattern pattern(side, random);
  scatter_dots(pattern, places, start, random);
  even_out(pattern);

  std::vector<std::uint32_t> ranks(places);
  DotPattern thinning = pattern;
  for (std::size_t rank = start; rank-- > 0;) {
    const std::size_t place = thinning.tightest_cluster();
    thinning.flip(place);
    ranks[place] = static_cast<std::uint32_t>(rank);
  }
  // From half of the square on, the method looks for clusters of empty places. In a square whose
  // edges are joined, the largest void is the tightest cluster of empty places: one rule does both.
  for (std::size_t rank = start; rank < places; ++rank) {
    const std::size_t place = pattern.largest_void();
    pattern.flip(place);
    ranks[place] = static_cast<std::uint32_t>(rank);
  }
  return ranks;
}
