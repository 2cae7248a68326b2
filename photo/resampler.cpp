// SPDX-License-Identifier: Apache-2.0
#include "photo/resampler.h"

#include <zimg.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

#include "language/messages.h"
#include "photo/light_tables.h"
#include "photo/photo_rows.h"

namespace photo {
namespace {

constexpr std::size_t kPlanes = 3;
constexpr std::size_t kAlignment = 64;   ///< bytes; enough for zimg on every processor
constexpr std::size_t kStripDots = 128;  ///< rows of the result that are made at a time
constexpr double kStripMemory =
    48.0 * 1024 * 1024;  ///< bytes; only a strip of a single row may take more
constexpr double kMemoryMost = 256.0 * 1024 * 1024;  ///< bytes; a photo that needs more is refused
constexpr double kFilterRadius = 3;                  ///< rows that the filter reads on each side

struct FreeMemory {
  void operator()(void* memory) const { std::free(memory); }
};
struct FreeGraph {
  void operator()(zimg_filter_graph* graph) const { zimg_filter_graph_free(graph); }
};
using Memory = std::unique_ptr<std::uint16_t, FreeMemory>;
using Graph = std::unique_ptr<zimg_filter_graph, FreeGraph>;

Memory allocate(std::size_t bytes) {
  const std::size_t whole = (bytes + kAlignment - 1) / kAlignment * kAlignment;
  return Memory(static_cast<std::uint16_t*>(std::aligned_alloc(kAlignment, whole)));
}

// Three planes of 16-bit samples.
class Planes {
 public:
  bool Take(std::size_t width, std::size_t rows) {
    stride_ = (width * sizeof(std::uint16_t) + kAlignment - 1) / kAlignment * kAlignment /
              sizeof(std::uint16_t);
    rows_ = rows;
    memory_ = allocate(kPlanes * stride_ * rows * sizeof(std::uint16_t));
    return memory_ != nullptr;
  }

  std::uint16_t* Row(std::size_t plane, std::size_t row) const {
    return memory_.get() + (plane * rows_ + row) * stride_;
  }

  std::size_t StrideBytes() const { return stride_ * sizeof(std::uint16_t); }

  // Moves `count` rows to the beginning.
  void KeepFrom(std::size_t first, std::size_t count) const {
    for (std::size_t plane = 0; plane < kPlanes && first > 0; ++plane) {
      std::memmove(Row(plane, 0), Row(plane, first), count * StrideBytes());
    }
  }

 private:
  Memory memory_;
  std::size_t stride_ = 0;
  std::size_t rows_ = 0;
};

// A strip of the result, and the rows of the picture that it is made from.
struct Strip {
  std::size_t firstDot;
  std::size_t dots;
  double top;     ///< of the strip, in rows of the picture
  double height;  ///< the same
  std::size_t firstRow;
  std::size_t endRow;
};

class Resampling {
 public:
  Resampling(std::size_t width, std::size_t height, const PictureArea& area, const NextRow& next,
             Picture& result)
      : width_(width),
        height_(height),
        area_(area),
        next_(next),
        result_(result),
        tables_(make_light_tables(area.width * area.height >
                                  static_cast<double>(result.width * result.height))) {
    stripDots_ = static_cast<std::size_t>(std::clamp(
        (kStripMemory / RowBytes() - 2 * Reach()) / Step(), 1.0, static_cast<double>(kStripDots)));
  }

  std::string Run();

 private:
  double RowBytes() const { return static_cast<double>(kPlanes * sizeof(std::uint16_t) * width_); }
  /// Rows of the picture to a row of the result.
  double Step() const { return area_.height / static_cast<double>(result_.height); }
  /// Rows of the picture that a strip needs above its top and below its bottom.
  double Reach() const { return kFilterRadius * std::max(1.0, Step()) + 1; }
  Strip StripAt(std::size_t firstDot) const;
  std::string Fill(const Strip& strip);
  std::string MakeGraph(const Strip& strip, Graph& graph) const;
  std::string Make(const Strip& strip);
  void Unpack(std::size_t row);
  void Pack(const Strip& strip) const;

  std::size_t width_;
  std::size_t height_;
  PictureArea area_;
  const NextRow& next_;
  Picture& result_;
  LightTables tables_;
  std::size_t stripDots_ = kStripDots;
  std::vector<std::uint8_t> rgb_;  ///< a row of the picture
  Planes from_;
  Planes to_;
  std::size_t firstRow_ = 0;  ///< the first row of the picture that is in from_
  std::size_t endRow_ = 0;    ///< the next row to be read
};

Strip Resampling::StripAt(std::size_t firstDot) const {
  Strip strip{};
  strip.firstDot = firstDot;
  strip.dots = std::min(stripDots_, result_.height - firstDot);
  strip.top = area_.top + static_cast<double>(firstDot) * Step();
  strip.height = static_cast<double>(strip.dots) * Step();
  const double end = std::ceil(strip.top + strip.height + Reach());
  strip.firstRow = static_cast<std::size_t>(std::max(0.0, std::floor(strip.top - Reach())));
  strip.endRow = std::min(height_, static_cast<std::size_t>(std::max(1.0, end)));
  return strip;
}

void Resampling::Unpack(std::size_t row) {
  for (std::size_t plane = 0; plane < kPlanes; ++plane) {
    std::uint16_t* const to = from_.Row(plane, row);
    const std::uint8_t* from = rgb_.data() + plane;
    for (std::size_t x = 0; x < width_; ++x, from += kPlanes) {
      to[x] = tables_.toSample[*from];
    }
    // zimg reads whole vectors, and weighs what lies beyond the row with 0.
    std::fill(to + width_, to + from_.StrideBytes() / sizeof(std::uint16_t), std::uint16_t{0});
  }
}

// Drops the rows that the strip does not need any more, and reads those that it needs besides.
std::string Resampling::Fill(const Strip& strip) {
  const std::size_t gone = std::min(strip.firstRow, endRow_) - firstRow_;
  from_.KeepFrom(gone, endRow_ - firstRow_ - gone);
  firstRow_ += gone;
  for (; endRow_ < strip.endRow; ++endRow_) {
    if (std::string why = next_(rgb_.data()); !why.empty()) {
      return why;
    }
    if (endRow_ < strip.firstRow) {
      ++firstRow_;
    } else {
      Unpack(endRow_ - firstRow_);
    }
  }
  return {};
}

std::string Resampling::MakeGraph(const Strip& strip, Graph& graph) const {
  zimg_image_format from;
  zimg_image_format_default(&from, ZIMG_API_VERSION);
  from.width = static_cast<unsigned>(width_);
  from.height = static_cast<unsigned>(endRow_ - firstRow_);
  from.pixel_type = ZIMG_PIXEL_WORD;
  from.color_family = ZIMG_COLOR_RGB;
  from.matrix_coefficients = ZIMG_MATRIX_RGB;
  from.pixel_range = ZIMG_RANGE_FULL;
  zimg_image_format to = from;
  from.active_region.left = area_.left;
  from.active_region.width = area_.width;
  from.active_region.top = strip.top - static_cast<double>(firstRow_);
  from.active_region.height = strip.height;
  to.width = static_cast<unsigned>(result_.width);
  to.height = static_cast<unsigned>(strip.dots);
  zimg_graph_builder_params params;
  zimg_graph_builder_params_default(&params, ZIMG_API_VERSION);
  params.resample_filter = ZIMG_RESIZE_SPLINE36;
  graph.reset(zimg_filter_graph_build(&from, &to, &params));
  if (graph == nullptr) {
    char text[200];
    zimg_get_last_error(text, sizeof(text));
    return text;
  }
  return {};
}

std::string Resampling::Make(const Strip& strip) {
  Graph graph;
  if (std::string why = MakeGraph(strip, graph); !why.empty()) {
    return why;
  }
  std::size_t scratch = 0;
  zimg_filter_graph_get_tmp_size(graph.get(), &scratch);
  const Memory memory = allocate(std::max(scratch, kAlignment));
  if (memory == nullptr) {
    return kNoMemory;
  }
  zimg_image_buffer_const from{};
  zimg_image_buffer to{};
  from.version = ZIMG_API_VERSION;
  to.version = ZIMG_API_VERSION;
  for (std::size_t plane = 0; plane < kPlanes; ++plane) {
    from.plane[plane] = {from_.Row(plane, 0), static_cast<std::ptrdiff_t>(from_.StrideBytes()),
                         ZIMG_BUFFER_MAX};
    to.plane[plane] = {to_.Row(plane, 0), static_cast<std::ptrdiff_t>(to_.StrideBytes()),
                       ZIMG_BUFFER_MAX};
  }
  if (zimg_filter_graph_process(graph.get(), &from, &to, memory.get(), nullptr, nullptr, nullptr,
                                nullptr) != ZIMG_ERROR_SUCCESS) {
    return "it cannot be brought to the page's size";
  }
  Pack(strip);
  return {};
}

void Resampling::Pack(const Strip& strip) const {
  for (std::size_t y = 0; y < strip.dots; ++y) {
    for (std::size_t plane = 0; plane < kPlanes; ++plane) {
      const std::uint16_t* const from = to_.Row(plane, y);
      std::uint8_t* to = result_.At(0, strip.firstDot + y) + plane;
      for (std::size_t x = 0; x < result_.width; ++x, to += kPlanes) {
        *to = tables_.toNumber[from[x]];
      }
    }
  }
}

std::string Resampling::Run() {
  std::size_t rows = 0;
  for (std::size_t y = 0; y < result_.height; y += stripDots_) {
    const Strip strip = StripAt(y);
    rows = std::max(rows, strip.endRow - strip.firstRow);
  }
  if (static_cast<double>(rows) * RowBytes() > kMemoryMost) {
    return language::_("it is too large to be printed so small");
  }
  rgb_.resize(kPlanes * width_);
  if (!from_.Take(width_, rows) || !to_.Take(result_.width, stripDots_)) {
    return kNoMemory;
  }
  for (std::size_t y = 0; y < result_.height; y += stripDots_) {
    const Strip strip = StripAt(y);
    std::string why = Fill(strip);
    if (why.empty()) {
      why = Make(strip);
    }
    if (!why.empty()) {
      return why;
    }
  }
  return {};
}

}  // namespace

std::string resample(std::size_t width, std::size_t height, const PictureArea& area,
                     const NextRow& next, Picture& result) {
  return Resampling(width, height, area, next, result).Run();
}

}  // namespace photo
