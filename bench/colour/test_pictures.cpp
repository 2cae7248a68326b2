// SPDX-License-Identifier: Apache-2.0
#include "bench/colour/test_pictures.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

#include "demo/scene.h"

namespace bench {

namespace {

/// Numbers at random, the same in every run, so that figures can be compared.
class Grain {
 public:
  unsigned char byte() { return static_cast<unsigned char>(source_() >> 24); }

  /// A value and at most 2 more or less.
  unsigned char on(int value) {
    const int noise = static_cast<int>((source_() >> 8) % 5) - 2;
    return static_cast<unsigned char>(std::clamp(value + noise, 0, 255));
  }

 private:
  // NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp): the same grain in every run
  std::mt19937 source_{300};
};

}  // namespace

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

std::vector<Rgb8> random_colours(std::size_t count) {
  Grain grain;
  std::vector<Rgb8> colours(count);
  for (Rgb8& colour : colours) {
    colour = {grain.byte(), grain.byte(), grain.byte()};
  }
  return colours;
}

Picture photo(std::size_t width, std::size_t height) {
  Grain grain;
  return painted(width, height, [&](std::size_t x, std::size_t y) {
    const double across = (static_cast<double>(x) + 0.5) / static_cast<double>(width);
    const double down = (static_cast<double>(y) + 0.5) / static_cast<double>(height);
    const Colour colour = scene_at(across * kSceneWidth, down * kSceneHeight);
    return Rgb8{grain.on(screen_level(colour.red)), grain.on(screen_level(colour.green)),
                grain.on(screen_level(colour.blue))};
  });
}

Picture zone_plate(std::size_t side) {
  const double half = static_cast<double>(side) / 2.0;
  return painted(side, side, [half](std::size_t x, std::size_t y) {
    const double dx = static_cast<double>(x) + 0.5 - half;
    const double dy = static_cast<double>(y) + 0.5 - half;
    // The phase π r² / (2 half) runs π a pixel at r = half: a period of two pixels.
    const double wave = std::cos(std::numbers::pi * (dx * dx + dy * dy) / (2.0 * half));
    const auto grey = static_cast<unsigned char>(std::lround(127.5 + 127.5 * wave));
    return Rgb8{grey, grey, grey};
  });
}

Picture noisy_grey(std::size_t side, unsigned char grey) {
  Grain grain;
  return painted(side, side, [&](std::size_t, std::size_t) {
    const unsigned char value = grain.on(grey);
    return Rgb8{value, value, value};
  });
}

}  // namespace bench
