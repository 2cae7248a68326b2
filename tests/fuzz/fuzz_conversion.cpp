// SPDX-License-Identifier: Apache-2.0
//
// Fuzzes the conversion library with any geometry, strides, settings and pixels, on every kind of
// processor that this computer can play: all must give the same bytes. The bands lie in buffers
// that hold exactly what their geometry promises, so the sanitizer sees every step beyond.
//
// Input: the conversion's settings, the page's size, three bands (line gap, misalignment, place,
// line order, first pixels), three bends, whether there is a matte plane, which folder.
#include <algorithm>
#include <cstdint>
#include <iterator>
#include <memory>
#include <vector>

#include "conversion/processor.h"
#include "image/mv_change_image.h"
#include "tests/fuzz/input.h"

namespace {

using fuzz::Input;
using fuzz::require;

// A band in a heap block that begins up to 15 bytes before the first pixel and ends with the last.
struct Band {
  tagMVBandImageParams params{};
  std::unique_ptr<unsigned char[]> block;
  std::size_t size = 0;

  std::vector<unsigned char> Bytes() const { return {block.get(), block.get() + size}; }
  void Set(const std::vector<unsigned char>& bytes) {
    std::copy(bytes.begin(), bytes.end(), block.get());
  }
};

// A band whose edges and stride may be bent later: a bent one keeps its small buffer, and the
// library must refuse it by its numbers.
Band make_band(Input& input, std::int64_t width, std::int64_t height, std::int64_t depth) {
  Band band;
  const std::int64_t gap = input.Take<std::uint8_t>() % 40;
  const std::int64_t misaligned = input.Take<std::uint8_t>() % 16;
  const std::int64_t stride = width * depth + gap;
  band.size = static_cast<std::size_t>(misaligned + stride * height - gap);
  band.block = std::make_unique<unsigned char[]>(band.size);
  const auto left = input.Take<std::int64_t>() >> 8;  // far out, but with room for the other edge
  const auto top = input.Take<std::int64_t>() >> 8;
  const bool top_down = (input.Take<std::uint8_t>() & 1U) != 0;
  band.params = {band.block.get() + misaligned,
                 top_down ? -stride : stride,
                 {left, top, left + width, top + height}};
  for (std::size_t i = 0; i < band.size; ++i) {
    band.block[i] = i < 64 ? input.Take<std::uint8_t>() : static_cast<unsigned char>(i * 37);
  }
  return band;
}

// An inverted or empty rectangle, or a stride that holds no line.
void bend(tagMVBandImageParams& band, std::uint8_t how) {
  switch (how % 16U) {
    case 1:
      band.rcBand.right = band.rcBand.left;
      break;
    case 2:
      band.rcBand.bottom = INT64_MIN;
      break;
    case 3:
      band.rcBand.right = INT64_MAX;
      break;
    case 4:
      band.lStride = 0;
      break;
    case 5:
      band.lStride = INT64_MIN;
      break;
    case 6:
      band.pBits = nullptr;
      break;
    case 7:
      band.lStride = band.lStride < 0 ? -1 : 1;
      break;
    case 8:
      --band.rcBand.right;
      break;
    case 9:
      band.rcBand = {INT64_MIN, INT64_MIN, INT64_MAX, INT64_MAX};
      break;
    default:
      break;
  }
}

// One call: it sets both rates and all pixels, or leaves everything as it was.
long convert(const Band& source, const tagMVChangeParams& params, Band& destination,
             tagMVBandImageParams* matte) {
  const std::vector<unsigned char> before = destination.Bytes();
  unsigned char rgb_rate = 201;
  unsigned char op_rate = 202;
  const long code =
      MVChangeImage(&source.params, &params, &destination.params, matte, &rgb_rate, &op_rate);
  if (code == 0) {
    require(rgb_rate <= 100 && op_rate <= 100);
  } else {
    require(rgb_rate == 201 && op_rate == 202 && destination.Bytes() == before);
  }
  return code;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr const char* kFolders[] = {nullptr, "", "/nowhere/", "\xFF%s"};
  Input input(data, size);
  auto params = input.Take<tagMVChangeParams>();
  const std::int64_t width = 1 + input.Take<std::uint8_t>() % 40;
  const std::int64_t height = 1 + input.Take<std::uint8_t>() % 40;
  Band source = make_band(input, width, height, 3);
  Band destination = make_band(input, width, height, 6);
  const std::int64_t matte_width = 1 + input.Take<std::uint8_t>() % 48;
  Band matte = make_band(input, matte_width, 1 + input.Take<std::uint8_t>() % 48, 1);
  bend(source.params, input.Take<std::uint8_t>());
  bend(destination.params, input.Take<std::uint8_t>());
  bend(matte.params, input.Take<std::uint8_t>());
  const bool with_matte = (input.Take<std::uint8_t>() & 1U) != 0;
  params.pszModulePath = kFolders[input.Take<std::uint8_t>() % std::size(kFolders)];

  const std::vector<unsigned char> pixels = destination.Bytes();
  const std::vector<unsigned char> plane = matte.Bytes();
  std::vector<std::vector<unsigned char>> results;
  for (const std::int64_t processor : usable_targets()) {
    use_target(processor);
    destination.Set(pixels);
    matte.Set(plane);
    const long code = convert(source, params, destination, with_matte ? &matte.params : nullptr);
    results.push_back(destination.Bytes());
    results.back().push_back(static_cast<unsigned char>(code));
    const std::vector<unsigned char> drawn = matte.Bytes();
    results.back().insert(results.back().end(), drawn.begin(), drawn.end());
    require(results.back() == results.front());
  }
  return 0;
}
