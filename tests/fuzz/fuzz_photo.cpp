// SPDX-License-Identifier: Apache-2.0
//
// Fuzzes the way of a photo with any bytes as its file: a page of the size asked for, or a reason,
// and the same both times. The first two bytes are the job's wishes.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "image/file_handle.h"
#include "photo/page_picture.h"

namespace {

constexpr std::size_t kPageWidth = 60;
constexpr std::size_t kPageHeight = 40;
constexpr std::size_t kPixelsMost = 1'000'000;  ///< so that an input takes no second

photo::JobWishes wishes_of(std::uint8_t first, std::uint8_t second) {
  photo::JobWishes wishes;
  wishes.scaling = static_cast<photo::Scaling>(first & 3U);
  wishes.orientation = (first >> 2U) % 7;
  wishes.mirror = (first & 0x80U) != 0;
  wishes.percent = 1 + second;
  wishes.ofFitted = (second & 1U) != 0;
  wishes.saturation = (second & 2U) != 0 ? 50 : 100;
  wishes.position.across = second % 3 - 1;
  return wishes;
}

// Pages or reasons, one behind the other.
std::string print(std::FILE* file, const photo::JobWishes& wishes) {
  photo::PlannedPhoto plan;
  if (std::string why = photo::plan_pages(file, kPageWidth, kPageHeight, wishes, plan);
      !why.empty()) {
    return why;
  }
  const photo::PhotoFacts& facts = plan.facts;
  if (facts.width == 0 || facts.height == 0 || facts.orientation < 1 || facts.orientation > 8) {
    std::abort();
  }
  if (facts.width > kPixelsMost / facts.height) {
    return "large";
  }
  std::string all;
  for (std::size_t i = 0; i < plan.layout.pages.size() && i < 3; ++i) {
    photo::PagePicture page;
    const std::string why = photo::make_page(file, plan.layout, i, wishes, page);
    const photo::Picture& picture = page.picture;
    if (why.empty() && (picture.width != kPageWidth || picture.height != kPageHeight)) {
      std::abort();
    }
    all += why.empty() ? std::string(picture.rgb.begin(), picture.rgb.end()) : why;
  }
  return all;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 3) {
    return 0;
  }
  const photo::JobWishes wishes = wishes_of(data[0], data[1]);
  std::string bytes(data + 2, data + size);
  const FileHandle file(fmemopen(bytes.data(), bytes.size(), "rb"));
  if (file == nullptr) {
    std::abort();
  }
  const std::string once = print(file.get(), wishes);
  if (print(file.get(), wishes) != once) {
    std::abort();
  }
  return 0;
}
