// SPDX-License-Identifier: Apache-2.0
#include "commands/canvas.h"

#include <algorithm>

namespace {

constexpr std::ptrdiff_t kBytesPerPixel = 3;

}  // namespace

Canvas::Canvas(unsigned char* pixels, int width, int height)
    : pixels_(pixels),
      width_(std::max(width, 0)),
      height_(std::max(height, 0)),
      stride_(kBytesPerPixel * width_) {}

Box Canvas::clip(const Box& box) const {
  // The sum must not overflow when an edge is far outside.
  const auto cut = [](std::int64_t edge, int limit) {
    return static_cast<int>(std::clamp<std::int64_t>(edge, 0, limit));
  };
  const int left = cut(box.left, width_);
  const int top = cut(box.top, height_);
  const int right = cut(std::int64_t{box.left} + box.width, width_);
  const int bottom = cut(std::int64_t{box.top} + box.height, height_);
  return {left, top, std::max(right - left, 0), std::max(bottom - top, 0)};
}

Canvas Canvas::part(const Box& box) const {
  const Box inside = clip(box);
  Canvas result = *this;
  result.pixels_ += stride_ * inside.top + kBytesPerPixel * inside.left;
  result.width_ = inside.width;
  result.height_ = inside.height;
  return result;
}

void Canvas::fill(const Box& box, Colour colour) const {
  const Box inside = clip(box);
  for (int y = inside.top; y < inside.top + inside.height; ++y) {
    unsigned char* pixel = pixels_ + stride_ * y + kBytesPerPixel * inside.left;
    for (int x = 0; x < inside.width; ++x) {
      *pixel++ = colour.red;
      *pixel++ = colour.green;
      *pixel++ = colour.blue;
    }
  }
}
