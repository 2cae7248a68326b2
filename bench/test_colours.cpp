// SPDX-License-Identifier: Apache-2.0
#include "bench/test_colours.h"

#include <random>

namespace bench {

std::vector<Rgb8> colour_checker() {
  return {
      {115, 82, 68},   {194, 150, 130}, {98, 122, 157}, {87, 108, 67},   {133, 128, 177},
      {103, 189, 170}, {214, 126, 44},  {80, 91, 166},  {193, 90, 99},   {94, 60, 108},
      {157, 188, 64},  {224, 163, 46},  {56, 61, 150},  {70, 148, 73},   {175, 54, 60},
      {231, 199, 31},  {187, 86, 149},  {8, 133, 161},  {243, 243, 242}, {200, 200, 200},
      {160, 160, 160}, {122, 122, 121}, {85, 85, 85},   {52, 52, 52},
  };
}

std::vector<Rgb8> grey_ramp() {
  std::vector<Rgb8> greys;
  for (unsigned value = 0; value < 256; ++value) {
    const auto level = static_cast<unsigned char>(value);
    greys.push_back({level, level, level});
  }
  return greys;
}

std::vector<Rgb8> colour_grid(std::size_t steps) {
  const auto level = [steps](std::size_t step) {
    return static_cast<unsigned char>((step * 255 + (steps - 1) / 2) / (steps - 1));
  };
  std::vector<Rgb8> colours;
  for (std::size_t red = 0; red < steps; ++red) {
    for (std::size_t green = 0; green < steps; ++green) {
      for (std::size_t blue = 0; blue < steps; ++blue) {
        colours.push_back({level(red), level(green), level(blue)});
      }
    }
  }
  return colours;
}

std::vector<Rgb8> random_colours(std::size_t count) {
  // NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp): the figures are those of one set of colours
  std::mt19937 random(20240607);
  const auto byte = [&random] { return static_cast<unsigned char>(random() >> 24); };
  std::vector<Rgb8> colours(count);
  for (Rgb8& colour : colours) {
    colour = {byte(), byte(), byte()};
  }
  return colours;
}

}  // namespace bench
