// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/filter_loops.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>
#include <stdexcept>

#include "protocol/plane_transfer.h"

namespace bench {

namespace {

constexpr int kTopDown = -1;
constexpr std::size_t kStagingSize = 0x30000;  // as the printer's stream has it

tagMVBandImageParams made_band(const MV_TYPEDEF::tagRECT& rect, int depth) {
  tagMVBandImageParams band{};
  if (!CImageUtility::CreateBandImage(&band, rect, depth, kTopDown)) {
    throw std::bad_alloc();
  }
  return band;
}

/// Writes the bytes by way of a staging buffer of its own, as few instructions as that takes.
void gather_and_write(const unsigned char* bytes, std::size_t size, std::FILE* out) {
  const std::unique_ptr<unsigned char[]> staging(new unsigned char[kStagingSize]);
  for (std::size_t sent = 0; sent < size;) {
    const std::size_t block = std::min(kStagingSize, size - sent);
    std::memcpy(staging.get(), bytes + sent, block);
    if (std::fwrite(staging.get(), block, 1, out) != 1) {
      throw std::runtime_error("/dev/null takes nothing");
    }
    sent += block;
  }
}

}  // namespace

FilterLoops::FilterLoops(const Picture& page)
    : page_(page),
      imageBytes_(6 * page.pixels.size()),
      pageBuffer_(3 * page.pixels.size()),
      nowhere_(std::fopen("/dev/null", "wb")) {
  if (nowhere_ == nullptr) {
    throw std::runtime_error("there is no /dev/null");
  }
  const auto width = static_cast<std::int64_t>(page.width);
  const auto height = static_cast<std::int64_t>(page.height);
  image_ = made_band({0, 0, width, height}, kImageDepth);
  sheet_ = made_band({0, 0, width, height}, kImageDepth);
  matte_ = made_band({0, 0, width, height}, kMatteDepth);
}

FilterLoops::~FilterLoops() {
  CImageUtility::DeleteBandImage(&image_);
  CImageUtility::DeleteBandImage(&sheet_);
  CImageUtility::DeleteBandImage(&matte_);
  std::fclose(nowhere_);
}

std::vector<FilterLoop> FilterLoops::all() {
  return {line_copy(),  white_band(),     white_sheet(),
          sheet_copy(), image_transfer(), matte_transfer()};
}

FilterLoop FilterLoops::line_copy() {
  const std::size_t step = 3 * page_.width;
  return {"lines copied into the page buffer",
          "memcpy of the page",
          {3, 3},
          [this, step] {
            for (std::size_t y = 0; y < page_.height; ++y) {
              std::memcpy(&pageBuffer_[y * step], page_.row(y), step);
            }
          },
          [this] { std::memcpy(pageBuffer_.data(), page_.row(0), pageBuffer_.size()); }};
}

FilterLoop FilterLoops::white_band() {
  return {"a 48-bit band made, white, and released",
          "new, memset, delete",
          {0, 6},
          [this] {
            tagMVBandImageParams band = made_band(image_.rcBand, kImageDepth);
            CImageUtility::DeleteBandImage(&band);
          },
          [this] {
            const std::unique_ptr<unsigned char[]> band(new unsigned char[imageBytes_]);
            std::memset(band.get(), 0xFF, imageBytes_);
            benchmark::DoNotOptimize(band.get());
          }};
}

FilterLoop FilterLoops::white_sheet() {
  return {"a joined sheet filled with white pixels",
          "memset of the sheet",
          {0, 6},
          [this] {
            unsigned char white[] = {0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F};
            CImageUtility::FillBandImage(&sheet_, kImageDepth, white);
          },
          [this] { std::memset(sheet_.pBits, 0x3F, imageBytes_); }};
}

FilterLoop FilterLoops::sheet_copy() {
  return {"a page copied into a sheet",
          "memcpy of the page",
          {6, 6},
          [this] { CImageUtility::CopyBandImage(&sheet_, &image_, kImageDepth); },
          [this] { std::memcpy(sheet_.pBits, image_.pBits, imageBytes_); }};
}

FilterLoop FilterLoops::image_transfer() {
  return {"an image staged and written to /dev/null",
          "memcpy by 196,608, and fwrite",
          {6, 6},
          [this] { send_image_data(nowhere_, &image_); },
          [this] { gather_and_write(image_.pBits, imageBytes_, nowhere_); }};
}

FilterLoop FilterLoops::matte_transfer() {
  return {"a matte plane staged and written to /dev/null",
          "memcpy by 196,608, and fwrite",
          {1, 1},
          [this] { send_matte_data(nowhere_, &matte_); },
          [this] { gather_and_write(matte_.pBits, page_.pixels.size(), nowhere_); }};
}

}  // namespace bench
