// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/conversion/plain_kernels.h"

#include <algorithm>
#include <cstdlib>

namespace plain {
namespace {

/// The number at `index`, or the nearest end's.
template <typename Numbers>
const typename Numbers::value_type& at_or_end(const Numbers& numbers, long index) {
  const long last = static_cast<long>(numbers.size()) - 1;
  return numbers[static_cast<std::size_t>(std::clamp(index, 0L, last))];
}

Line blur_across(const std::vector<Line>& lines, long y) {
  Line blurred;
  for (std::size_t x = 0; x < lines[0].size(); ++x) {
    blurred.push_back(static_cast<std::uint16_t>(
        weigh(at_or_end(lines, y - 2)[x], at_or_end(lines, y - 1)[x], at_or_end(lines, y)[x],
              at_or_end(lines, y + 1)[x], at_or_end(lines, y + 2)[x])));
  }
  return blurred;
}

std::vector<Line> blur_all_across(const std::vector<Line>& lines) {
  std::vector<Line> blurred;
  for (std::size_t y = 0; y < lines.size(); ++y) {
    blurred.push_back(blur_across(lines, static_cast<long>(y)));
  }
  return blurred;
}

}  // namespace

int weigh(int a, int b, int c, int d, int e) {
  return (a + 4 * b + 6 * c + 4 * d + e + 8) / 16;
}

Line luma(const Bytes& rgb) {
  Line line;
  for (std::size_t i = 0; i < rgb.size(); i += 3) {
    line.push_back(
        static_cast<std::uint16_t>((54 * rgb[i] + 183 * rgb[i + 1] + 19 * rgb[i + 2] + 8) / 16));
  }
  return line;
}

Line blur_along(const Line& line) {
  Line blurred;
  for (long x = 0; x < static_cast<long>(line.size()); ++x) {
    blurred.push_back(static_cast<std::uint16_t>(
        weigh(at_or_end(line, x - 2), at_or_end(line, x - 1), at_or_end(line, x),
              at_or_end(line, x + 1), at_or_end(line, x + 2))));
  }
  return blurred;
}

Planes sharpen(const Bytes& rgb, const Line& blurred, int strength) {
  const Line lumas = luma(rgb);
  Planes fine;
  for (std::size_t x = 0; x < lumas.size(); ++x) {
    const int detail = lumas[x] - blurred[x];
    const int beyond = std::max(std::abs(detail) - 48, 0);
    const int amount = (beyond * strength + 4) / 8;
    for (std::size_t channel = 0; channel < 3; ++channel) {
      const int value = 16 * rgb[3 * x + channel] + (detail < 0 ? -amount : amount);
      fine[channel].push_back(static_cast<std::uint16_t>(std::clamp(value, 0, 4080)));
    }
  }
  return fine;
}

std::vector<Planes> sharpen_page(const std::vector<Bytes>& page, int strength) {
  std::vector<Line> lines;
  lines.reserve(page.size());
  for (const Bytes& row : page) {
    lines.push_back(blur_along(blur_along(luma(row))));
  }
  lines = blur_all_across(blur_all_across(lines));
  std::vector<Planes> sharpened;
  for (std::size_t y = 0; y < page.size(); ++y) {
    sharpened.push_back(sharpen(page[y], lines[y], strength));
  }
  return sharpened;
}

std::array<std::uint16_t, 3> interpolate(const ColourTable& table,
                                         const std::array<std::uint16_t, 3>& position) {
  constexpr std::array<std::size_t, 3> kSteps{1089, 33, 1};
  std::size_t node = 0;
  std::array<std::array<int, 2>, 3> parts{};  // how far along the axis, and which axis it is
  for (std::size_t axis = 0; axis < 3; ++axis) {
    const int cell = std::min(position[axis] / 512, 31);
    node += static_cast<std::size_t>(cell) * kSteps[axis];
    parts[axis] = {position[axis] - 512 * cell, static_cast<int>(axis)};
  }
  std::sort(parts.rbegin(), parts.rend());
  std::array<int, 3> mixed{};
  int left = 512;
  for (std::size_t step = 0; step <= 3; ++step) {
    const int share = step < 3 ? left - parts[step][0] : left;
    for (std::size_t channel = 0; channel < 3; ++channel) {
      mixed[channel] += share * table.nodes[node][channel];
    }
    if (step < 3) {
      left = parts[step][0];
      node += kSteps[static_cast<std::size_t>(parts[step][1])];
    }
  }
  std::array<std::uint16_t, 3> samples{};
  for (std::size_t channel = 0; channel < 3; ++channel) {
    const int rounded = (mixed[channel] + 256) >> 9;
    samples[channel] = static_cast<std::uint16_t>(std::clamp(rounded, 0, 16383));
  }
  return samples;
}

}  // namespace plain
