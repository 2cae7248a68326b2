// SPDX-License-Identifier: Apache-2.0
//
// Seeds of rectangles, bands and conversions.
#include <cstdint>

#include "image/mv_change_image.h"
#include "tests/fuzz/seeds.h"

namespace fuzz {
namespace {

std::string edge(std::int64_t value) {
  return '\0' + bytes_of(value);
}

std::string rect(std::int64_t left, std::int64_t top, std::int64_t right, std::int64_t bottom) {
  return edge(left) + edge(top) + edge(right) + edge(bottom);
}

std::string origin(std::int64_t x, std::int64_t y) {
  return bytes_of(x) + bytes_of(y);
}

// Left and top beside the origin, width, height, gap, first byte.
std::string band(char left, char top, char width, char height, char gap) {
  return {left, top, width, height, gap, 1};
}

tagMVChangeParams params(std::uint64_t flags) {
  tagMVChangeParams params{};
  params.lParam0 = 101;
  params.nParam8 = 1;
  params.dwFlags = kChangeFlagsAlways | flags;
  params.wParam32 = 1;
  params.nTone[0] = 2;
  params.nTone[4] = -30;
  params.nTone[8] = 100;
  params.byOption[2] = (flags & kChangeFlagColorConversion) != 0 ? 1 : 5;
  params.nSharpness = 3;
  return params;
}

// Gap, misalignment, place, line order, first pixels.
std::string plane(char gap, char misaligned, char top_down) {
  return std::string{gap, misaligned} + origin(0, 0) + top_down + std::string(64, '\x77');
}

std::string conversion(std::uint64_t flags, char top_down, char gap, const std::string& bends) {
  return bytes_of(params(flags)) + std::string{19, 12} + plane(gap, 1, top_down) +
         plane(0, 2, top_down) + std::string(1, 19) + plane(gap, 0, 1) + std::string(1, 23) + bends;
}

}  // namespace

Seeds bands_seeds() {
  const std::string rectangles(1, 0);
  const std::string making(1, 1);
  const std::string copy(1, 2);
  const std::string fill(1, 3);
  const std::string sending(1, 4);
  const std::string moves = bytes_of(616) + bytes_of(-3);
  return {
      {"overlapping", rectangles + rect(0, 0, 10, 10) + rect(5, -5, 20, 5) + moves},
      {"widest", rectangles + rect(INT64_MIN, 0, INT64_MAX, 1) + rect(0, 0, 0, 0) + moves},
      {"made", making + rect(-3, 4, 30, 20) + '\x30' + bytes_of(-1)},
      {"made-wrapped", making + rect(INT64_MIN, 0, INT64_MAX, 1) + '\x30' + bytes_of(-1)},
      {"made-of-powers",
       making + rect(0, 0, INT64_C(1) << 31, INT64_C(1) << 31) + '\x20' + bytes_of(-1)},
      {"copied",
       copy + std::string{5, 1} + origin(0, 0) + band(0, 0, 20, 10, 0) + band(5, 3, 30, 20, 2)},
      {"copied-bottom-up",
       copy + std::string{5, 0} + origin(1, 2) + band(9, 9, 20, 10, 3) + band(5, 3, 30, 20, 0)},
      {"filled", fill + std::string{5, 1} + origin(0, 0) + band(0, 0, 20, 10, 4) + "abcdef"},
      {"image-sent", sending + std::string{0, 1} + origin(0, 0) + band(0, 0, 20, 10, 0)},
      {"matte-sent", sending + std::string{1, 0} + origin(0, 0) + band(0, 0, 20, 10, 5)},
  };
}

Seeds conversion_seeds() {
  const std::string gloss{0, 0, 0, 0, 0};
  const std::string matte{0, 0, 0, 1, 1};
  return {
      {"converted", conversion(kChangeFlagColorConversion, 1, 0, gloss)},
      {"sharpened", conversion(kChangeFlagColorConversion | kChangeFlagSharpness, 1, 0, matte)},
      {"as-it-is", conversion(0, 0, 3, gloss)},
      {"matte", conversion(kChangeFlagColorConversion, 1, 2, matte)},
      {"bent", conversion(kChangeFlagSharpness, 1, 0, std::string{0, 3, 0, 1, 0})},
  };
}

}  // namespace fuzz
