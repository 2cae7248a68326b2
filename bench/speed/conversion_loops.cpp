// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/conversion_loops.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <numeric>

#include "conversion/builtin_table.h"
#include "conversion/colour_kernels.h"
#include "conversion/matte.h"
#include "conversion/photo_kernels.h"
#include "conversion/sample_kernels.h"

namespace bench {

namespace {

/// One line in so many of the page: the whole picture's colours, in a sixteenth of its bytes.
constexpr std::size_t kEveryLine = 16;
constexpr std::size_t kPlanesOfLine = 8;
constexpr std::size_t kMostBytesOfPixel = 12;
constexpr int kStrength = 4;

/// Reads all of the bytes, of which none is 0xFF, in the C library's widest steps.
std::uint64_t read_through(const unsigned char* bytes, std::size_t size) {
  return std::memchr(bytes, 0xFF, size) == nullptr ? 0 : 1;
}

void widen_line(const unsigned char* rgb, std::size_t pixels, unsigned char* samples) {
  for (std::size_t i = 0; i < 3 * pixels; ++i) {
    const auto sample = static_cast<std::uint16_t>(rgb[i] << 6U | rgb[i] >> 2U);
    std::memcpy(samples + sizeof sample * i, &sample, sizeof sample);
  }
}

}  // namespace

ConversionLoops::ConversionLoops(const Picture& page)
    : page_(page), lines_((page.height + kEveryLine - 1) / kEveryLine) {
  const std::size_t width = page.width;
  const tagMVChangeParams neutral{};
  if (!numbers_.reserve(lines_.size() * kPlanesOfLine, width) ||
      !sameTone_.make(neutral, kFineWhite, kFineWhite)) {
    throw std::bad_alloc();
  }
  samples_.resize(lines_.size() * width * 6);
  from_.resize(lines_.size() * width * kMostBytesOfPixel, 1);
  to_.resize(from_.size());
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const auto plane = [&](std::size_t k) { return numbers_.line(i * kPlanesOfLine + k); };
    lines_[i] = {page.row(i * kEveryLine),
                 {plane(0), plane(1), plane(2)},
                 {plane(3), plane(4), plane(5)},
                 plane(6),
                 plane(7),
                 &samples_[i * width * 6]};
    fill(lines_[i]);
  }
}

void ConversionLoops::fill(Line& line) {
  const std::size_t width = page_.width;
  luma_line(line.rgb, width, line.luma);
  blur_along(line.luma, width, line.blurred);
  sharpen_line(line.rgb, line.blurred, width, kStrength, line.fine);
}

template <typename Work>
std::function<void()> ConversionLoops::on_each_line(Work work) {
  return [this, work] {
    for (const Line& line : lines_) {
      work(line, page_.width);
    }
  };
}

std::vector<ConversionLoop> ConversionLoops::all() {
  return {{"bytes widened to samples, nothing else",
           {3, 6},
           false,
           on_each_line([](const Line& l, std::size_t n) { widen_line(l.rgb, n, l.samples); })},
          {"pixels taken apart", {3, 6}, true, on_each_line([](const Line& l, std::size_t n) {
             split_line(l.rgb, n, l.any);
           })},
          {"luma", {3, 2}, true, on_each_line([](const Line& l, std::size_t n) {
             luma_line(l.rgb, n, l.luma);
           })},
          {"blur along a line, once", {2, 2}, true, on_each_line([](const Line& l, std::size_t n) {
             blur_along(l.luma, n, l.blurred);
           })},
          {"blur across five lines, once",
           {10, 2},
           true,
           on_each_line([](const Line& l, std::size_t n) {
             blur_across({l.luma, l.fine[0], l.fine[1], l.fine[2], l.luma}, n, l.blurred);
           })},
          {"sharpening", {5, 6}, true, on_each_line([](const Line& l, std::size_t n) {
             sharpen_line(l.rgb, l.blurred, n, kStrength, l.any);
           })},
          {"tone tables", {6, 6}, false, on_each_line([this](const Line& l, std::size_t n) {
             sameTone_.apply(l.fine, n);
           })},
          {"colours by the printer's table",
           {6, 6},
           true,
           on_each_line([this](const Line& l, std::size_t n) {
             sink_ += interpolate_line(builtin_table(), l.fine, LineScale::kFine, n, l.samples);
           })},
          {"samples joined to pixels, conversion off",
           {6, 6},
           false,
           on_each_line(
               [this](const Line& l, std::size_t n) { sink_ += join_line(l.fine, n, l.samples); })},
          {"matte plane", {0, 1}, false, [this] {
             for (std::size_t y = 0; y < lines_.size(); ++y) {
               sink_ += lay_matte_row(y, lines_[y].samples, page_.width);
             }
           }}};
}

std::function<void()> ConversionLoops::floor(const Moved& moved) {
  const std::size_t read = static_cast<std::size_t>(moved.read) * page_.width;
  const std::size_t written = static_cast<std::size_t>(moved.written) * page_.width;
  const std::size_t copied = std::min(read, written);
  return [this, read, written, copied] {
    for (std::size_t y = 0; y < lines_.size(); ++y) {
      const unsigned char* from = from_.data() + y * read;
      unsigned char* to = to_.data() + y * written;
      std::memcpy(to, from, copied);
      std::memset(to + copied, 1, written - copied);
      sink_ += read_through(from + copied, read - copied);
    }
  };
}

}  // namespace bench
