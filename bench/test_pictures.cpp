// SPDX-License-Identifier: Apache-2.0
#include "bench/test_pictures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <random>
#include <string_view>

#include "demo/scene.h"

namespace bench {

namespace {

// The same grain in every run, so that figures can be compared.
// NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp)
std::mt19937 grain_source() {
  // NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp): the same grain in every run
  return std::mt19937(300);
}

int grain(std::mt19937& source) {
  return static_cast<int>((source() >> 8) % 5) - 2;
}

unsigned char byte_of(double level) {
  return static_cast<unsigned char>(std::lround(std::clamp(level, 0.0, 1.0) * 255.0));
}

unsigned char moved(unsigned char value, int by) {
  return static_cast<unsigned char>(std::clamp(value + by, 0, 255));
}

struct Glyph {
  char letter;
  std::array<std::uint8_t, 7> rows;  // five bits, the left column in the highest
};

constexpr std::array<Glyph, 10> kGlyphs = {{
    {'A', {0x0E, 0x11, 0x11, 0x1F, 0x11, 0x11, 0x11}},
    {'E', {0x1F, 0x10, 0x10, 0x1E, 0x10, 0x10, 0x1F}},
    {'F', {0x1F, 0x10, 0x10, 0x1E, 0x10, 0x10, 0x10}},
    {'G', {0x0E, 0x11, 0x10, 0x17, 0x11, 0x11, 0x0E}},
    {'I', {0x0E, 0x04, 0x04, 0x04, 0x04, 0x04, 0x0E}},
    {'L', {0x10, 0x10, 0x10, 0x10, 0x10, 0x10, 0x1F}},
    {'N', {0x11, 0x19, 0x15, 0x13, 0x11, 0x11, 0x11}},
    {'O', {0x0E, 0x11, 0x11, 0x11, 0x11, 0x11, 0x0E}},
    {'S', {0x0F, 0x10, 0x10, 0x0E, 0x01, 0x01, 0x1E}},
    {'T', {0x1F, 0x04, 0x04, 0x04, 0x04, 0x04, 0x04}},
}};
constexpr std::string_view kWords = "FINE LETTERS ON A SIGN ";

bool inked(char letter, std::size_t column, std::size_t row) {
  const auto* glyph = std::find_if(kGlyphs.begin(), kGlyphs.end(),
                                   [letter](const Glyph& each) { return each.letter == letter; });
  return glyph != kGlyphs.end() && column < 5 && row < 7 &&
         (glyph->rows[row] >> (4 - column) & 1U) != 0;
}

}  // namespace

Picture photo(std::size_t width, std::size_t height) {
  std::mt19937 source = grain_source();
  const std::size_t shown = height > width ? (height + 1) / 2 : height;
  return painted(width, height, [&](std::size_t x, std::size_t y) {
    const double across = (static_cast<double>(x) + 0.5) / static_cast<double>(width);
    const double down = (static_cast<double>(y % shown) + 0.5) / static_cast<double>(shown);
    const Colour colour = scene_at(across * kSceneWidth, down * kSceneHeight);
    Rgb8 pixel{};
    const std::array<double, 3> light = {colour.red, colour.green, colour.blue};
    for (std::size_t channel = 0; channel < 3; ++channel) {
      pixel[channel] = moved(byte_of(level_of_light(light[channel])), grain(source));
    }
    return pixel;
  });
}

Picture zone_plate(std::size_t side) {
  const double half = static_cast<double>(side) / 2.0;
  return painted(side, side, [half](std::size_t x, std::size_t y) {
    const double dx = static_cast<double>(x) + 0.5 - half;
    const double dy = static_cast<double>(y) + 0.5 - half;
    // The phase π r² / (2 half) runs π a pixel at r = half: a period of two pixels.
    const double wave = std::cos(std::numbers::pi * (dx * dx + dy * dy) / (2.0 * half));
    const unsigned char grey = byte_of(0.5 + 0.5 * wave);
    return Rgb8{grey, grey, grey};
  });
}

Picture text() {
  constexpr std::size_t kLine = 50;
  return painted(400, 4 * kLine, [](std::size_t x, std::size_t y) {
    const std::size_t size = y / kLine + 1;
    const std::size_t column = x / size;
    const char letter = kWords[column / 6 % kWords.size()];
    const bool ink = inked(letter, column % 6, y % kLine / size);
    return ink ? Rgb8{0, 0, 0} : Rgb8{255, 255, 255};
  });
}

Picture noisy_grey(std::size_t side, unsigned char grey) {
  std::mt19937 source = grain_source();
  return painted(side, side, [&source, grey](std::size_t, std::size_t) {
    const unsigned char value = moved(grey, grain(source));
    return Rgb8{value, value, value};
  });
}

}  // namespace bench
