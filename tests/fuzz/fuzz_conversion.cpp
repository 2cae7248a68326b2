// SPDX-License-Identifier: Apache-2.0
//
// Fuzzes the conversion library with any geometry, strides, settings and pixels, on every kind of
// processor that this computer can play: all must give the same bytes. The bands lie in buffers
// that hold exactly what their geometry promises, so the sanitizer sees every step beyond.

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "conversion/processor.h"
#include "image/mv_change_image.h"

namespace {

// Takes numbers off the input's front; zero once it is used up.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : data_(data), left_(size) {}

  template <typename Number>
  Number Take() {
    Number value{};
    const std::size_t count = left_ < sizeof value ? left_ : sizeof value;
    std::memcpy(&value, data_, count);
    data_ += count;
    left_ -= count;
    return value;
  }

 private:
  const std::uint8_t* data_;
  std::size_t left_;
};

struct Band {
  tagMVBandImageParams params{};
  std::vector<unsigned char> bytes;
};

// A band of up to 40 × 40 pixels whose edges and stride may be bent: a bent one keeps its small
// buffer, and the library must refuse it by its numbers.
Band make_band(Input& input, std::int64_t width, std::int64_t height, std::int64_t depth) {
  Band band;
  const std::int64_t padding = input.Take<std::uint8_t>() % 5;
  const std::int64_t stride = width * depth + padding;
  band.bytes.assign(static_cast<std::size_t>(stride * height - padding), 0x5A);
  const auto left = input.Take<std::int16_t>();
  const auto top = input.Take<std::int16_t>();
  const bool top_down = (input.Take<std::uint8_t>() & 1U) != 0;
  band.params = {
      band.bytes.data(), top_down ? -stride : stride, {left, top, left + width, top + height}};
  for (std::size_t i = 0; i < band.bytes.size() && i < 64; ++i) {
    band.bytes[i] = input.Take<std::uint8_t>();
  }
  return band;
}

// An inverted or empty rectangle, or a stride that holds no line.
void bend(tagMVBandImageParams& band, std::uint8_t how) {
  switch (how & 7U) {
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
    default:
      break;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  auto params = input.Take<tagMVChangeParams>();
  params.pszModulePath = nullptr;
  const std::int64_t width = 1 + input.Take<std::uint8_t>() % 40;
  const std::int64_t height = 1 + input.Take<std::uint8_t>() % 40;
  Band source = make_band(input, width, height, 3);
  Band destination = make_band(input, width, height, 6);
  Band matte = make_band(input, 1 + input.Take<std::uint8_t>() % 40, height, 1);
  bend(source.params, input.Take<std::uint8_t>());
  bend(destination.params, input.Take<std::uint8_t>());
  bend(matte.params, input.Take<std::uint8_t>());
  const bool with_matte = (input.Take<std::uint8_t>() & 1U) != 0;
  const std::vector<unsigned char> before = destination.bytes;

  std::vector<unsigned char> first;
  for (const std::int64_t processor : usable_targets()) {
    use_target(processor);
    destination.bytes = before;
    unsigned char rgb_rate = 201;
    unsigned char op_rate = 202;
    const long code = MVChangeImage(&source.params, &params, &destination.params,
                                    with_matte ? &matte.params : nullptr, &rgb_rate, &op_rate);
    const bool refused_cleanly = rgb_rate == 201 && op_rate == 202 && destination.bytes == before;
    if (code == 0 ? rgb_rate > 100 || op_rate > 100 : !refused_cleanly) {
      std::abort();
    }
    if (first.empty()) {
      first = destination.bytes;
    } else if (destination.bytes != first) {
      std::abort();
    }
  }
  return 0;
}
