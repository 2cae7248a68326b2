// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/conversion/test_page.h"

#include <algorithm>
#include <cstring>

TestBand::TestBand(std::size_t width, std::size_t height, std::size_t bytesPerPixel,
                   const BandLayout& layout)
    : width_(width),
      height_(height),
      bytesPerPixel_(bytesPerPixel),
      layout_(layout),
      bytes_(layout.bytesBefore + height * width * bytesPerPixel + (height - 1) * layout.padding,
             layout.canary) {
  bytes_.shrink_to_fit();
  const auto stride = static_cast<std::int64_t>(width * bytesPerPixel + layout.padding);
  record.pBits = bytes_.data() + layout.bytesBefore;
  record.lStride = layout.order == LineOrder::kTopDown ? -stride : stride;
  record.rcBand = {layout.left, layout.top, layout.left + static_cast<std::int64_t>(width),
                   layout.top + static_cast<std::int64_t>(height)};
}

const unsigned char* TestBand::row(std::size_t y) const {
  const std::size_t line = layout_.order == LineOrder::kTopDown ? y : height_ - 1 - y;
  return bytes_.data() + layout_.bytesBefore + line * (width_ * bytesPerPixel_ + layout_.padding);
}

unsigned char* TestBand::row(std::size_t y) {
  return const_cast<unsigned char*>(static_cast<const TestBand*>(this)->row(y));
}

std::uint16_t TestBand::sample(std::size_t x, std::size_t y, std::size_t channel) const {
  std::uint16_t value = 0;
  std::memcpy(&value, row(y) + 6 * x + 2 * channel, sizeof value);
  return value;
}

void TestBand::setRgb(std::size_t x, std::size_t y, std::array<unsigned char, 3> rgb) {
  std::copy(rgb.begin(), rgb.end(), row(y) + 3 * x);
}

std::vector<unsigned char> TestBand::pixels() const {
  std::vector<unsigned char> all;
  for (std::size_t y = 0; y < height_; ++y) {
    all.insert(all.end(), row(y), row(y) + width_ * bytesPerPixel_);
  }
  return all;
}

bool TestBand::surroundingsUntouched() const {
  std::vector<unsigned char> copy = bytes_;
  for (std::size_t y = 0; y < height_; ++y) {
    std::fill_n(copy.begin() + (row(y) - bytes_.data()), width_ * bytesPerPixel_, layout_.canary);
  }
  return std::all_of(copy.begin(), copy.end(),
                     [this](unsigned char byte) { return byte == layout_.canary; });
}

bool TestBand::untouched() const {
  return std::all_of(bytes_.begin(), bytes_.end(),
                     [this](unsigned char byte) { return byte == layout_.canary; });
}

tagMVChangeParams plain_params() {
  tagMVChangeParams params{};
  params.lParam0 = 101;
  params.nParam8 = 1;
  params.dwFlags = kChangeFlagsAlways;
  params.wParam32 = 1;
  params.byOption[2] = 5;
  return params;
}

Converted convert(std::size_t width, std::size_t height, const tagMVChangeParams& params,
                  const Picture& picture) {
  TestBand source(width, height, 3);
  TestBand destination(width, height, 6);
  for (std::size_t y = 0; y < height; ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      source.setRgb(x, y, picture(x, y));
    }
  }
  Converted result;
  result.code = MVChangeImage(&source.record, &params, &destination.record, nullptr,
                              &result.rgbRate, &result.opRate);
  for (std::size_t y = 0; y < height; ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      for (std::size_t channel = 0; channel < 3; ++channel) {
        result.samples.push_back(destination.sample(x, y, channel));
      }
    }
  }
  return result;
}

Converted convert_grey_ramp(const tagMVChangeParams& params) {
  return convert(256, 1, params, [](std::size_t x, std::size_t) {
    const auto value = static_cast<unsigned char>(x);
    return std::array<unsigned char, 3>{value, value, value};
  });
}

std::vector<std::uint16_t> channel_of(const std::vector<std::uint16_t>& samples,
                                      std::size_t channel) {
  std::vector<std::uint16_t> values;
  for (std::size_t i = channel; i < samples.size(); i += 3) {
    values.push_back(samples[i]);
  }
  return values;
}

std::array<unsigned char, 3> busy_picture(std::size_t x, std::size_t y) {
  return {static_cast<unsigned char>(x * 37 + y * 11), static_cast<unsigned char>(x * 5 + y * 91),
          static_cast<unsigned char>(x * y + 13)};
}
