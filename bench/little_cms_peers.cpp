// SPDX-License-Identifier: Apache-2.0
#include "bench/little_cms_peers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdlib>

#include "bench/test_colours.h"

namespace bench {

namespace {

constexpr std::size_t kPoints = 33;
using Sample16 = std::array<std::uint16_t, 3>;
using Table = std::vector<Sample16>;

constexpr cmsUInt32Number kTableFlags =
    cmsFLAGS_FORCE_CLUT | cmsFLAGS_GRIDPOINTS(kPoints) | cmsFLAGS_BLACKPOINTCOMPENSATION;

Table table_of(const Transform& transform) {
  std::vector<Sample16> levels;
  const auto level = [](std::size_t point) {
    return static_cast<std::uint16_t>((point * 65535 + kPoints / 2) / (kPoints - 1));
  };
  for (std::size_t red = 0; red < kPoints; ++red) {
    for (std::size_t green = 0; green < kPoints; ++green) {
      for (std::size_t blue = 0; blue < kPoints; ++blue) {
        levels.push_back({level(red), level(green), level(blue)});
      }
    }
  }
  Table table(levels.size());
  cmsDoTransform(transform.get(), levels.data(), table.data(),
                 static_cast<cmsUInt32Number>(levels.size()));
  return table;
}

/// Tetrahedral interpolation: from the cell's lowest corner along the edges in the order of the
/// fractions, the largest first.
std::array<double, 3> interpolated(const Table& table, const Rgb8& colour) {
  constexpr std::array<std::size_t, 3> kStep = {kPoints * kPoints, kPoints, 1};
  std::array<double, 3> fraction{};
  std::size_t node = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    const double place = colour[i] / 255.0 * (kPoints - 1);
    const auto cell = std::min(static_cast<std::size_t>(place), kPoints - 2);
    fraction[i] = place - static_cast<double>(cell);
    node += cell * kStep[i];
  }
  std::array<std::size_t, 3> order = {0, 1, 2};
  std::sort(order.begin(), order.end(),
            [&fraction](std::size_t a, std::size_t b) { return fraction[a] > fraction[b]; });
  std::array<double, 3> result{};
  std::copy(table[node].begin(), table[node].end(), result.begin());
  for (const std::size_t axis : order) {
    const std::size_t next = node + kStep[axis];
    for (std::size_t channel = 0; channel < 3; ++channel) {
      result[channel] += fraction[axis] * (table[next][channel] - table[node][channel]);
    }
    node = next;
  }
  return result;
}

}  // namespace

LittleCmsPeer::LittleCmsPeer(std::span<const unsigned char> profile, cmsUInt32Number flags) {
  const Profile srgb = srgb_profile();
  const Profile printer = opened(profile);
  transform_ = transform_between(srgb, TYPE_RGB_8, printer, TYPE_RGB_16,
                                 INTENT_RELATIVE_COLORIMETRIC, flags);
  nodes_ = transform_between(srgb, TYPE_RGB_16, printer, TYPE_RGB_16, INTENT_RELATIVE_COLORIMETRIC,
                             flags);
}

LittleCmsPeer LittleCmsPeer::table(std::span<const unsigned char> profile) {
  return {profile, kTableFlags};
}

LittleCmsPeer LittleCmsPeer::matrix_and_curves(std::span<const unsigned char> profile) {
  return {profile, 0};
}

void LittleCmsPeer::run(const Picture& picture, std::span<std::uint16_t> samples) const {
  cmsDoTransform(transform_.get(), picture.pixels.data(), samples.data(),
                 static_cast<cmsUInt32Number>(picture.pixels.size()));
}

int LittleCmsPeer::distance_from_table() const {
  const Table table = table_of(nodes_);
  const Picture colours = row_of(random_colours(20000));
  std::vector<std::uint16_t> samples(3 * colours.pixels.size());
  run(colours, samples);
  double farthest = 0.0;
  for (std::size_t i = 0; i < colours.pixels.size(); ++i) {
    const std::array<double, 3> expected = interpolated(table, colours.pixels[i]);
    for (std::size_t channel = 0; channel < 3; ++channel) {
      farthest = std::max(farthest, std::abs(samples[3 * i + channel] - expected[channel]));
    }
  }
  return static_cast<int>(std::lround(farthest));
}

}  // namespace bench
