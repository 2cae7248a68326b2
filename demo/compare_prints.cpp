// SPDX-License-Identifier: Apache-2.0
// Puts a photo and its print beside each other, to be looked at:
//
//   compare-prints PHOTO SHEET.png OUT.png WIDTH HEIGHT LEFT TOP
//
// The photo, JPEG or PNG, is on the left: on white paper of the sheet's size, in the area given in
// dots, as phototopage lays a photo that fills it. Both are sRGB.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <string>
#include <utility>

#include "image/file_handle.h"
#include "photo/page_picture.h"

namespace {

using photo::DotArea;
using photo::Picture;

constexpr std::size_t kGap = 40;
constexpr unsigned char kGapGrey = 0x80;

// The picture of a file, on a page of these dots that it fills; without an area, as large as it is.
Picture read_picture(const char* path, const DotArea* area = nullptr) {
  const FileHandle file(std::fopen(path, "rbe"));
  photo::JobWishes wishes;
  wishes.scaling = photo::Scaling::Fill;
  photo::PlannedPhoto plan;
  photo::PagePicture page;
  std::string why = "it cannot be opened";
  if (file != nullptr) {
    why = photo::plan_pages(file.get(), 1, 1, wishes, plan);
  }
  if (why.empty()) {
    plan.layout = photo::lay_out(plan.shape, area != nullptr ? area->width : plan.shape.width,
                                 area != nullptr ? area->height : plan.shape.height, wishes);
    why = photo::make_page(file.get(), plan.layout, 0, wishes, page);
  }
  if (!why.empty()) {
    throw std::runtime_error(std::string(path) + ": " + why);
  }
  return std::move(page.picture);
}

Picture side_by_side(const Picture& photo, const Picture& sheet, const DotArea& area) {
  Picture out(2 * sheet.width + kGap, sheet.height);
  for (std::size_t y = 0; y < area.height; ++y) {
    std::copy_n(photo.At(0, y), 3 * area.width, out.At(area.left, area.top + y));
  }
  for (std::size_t y = 0; y < sheet.height; ++y) {
    std::fill_n(out.At(sheet.width, y), 3 * kGap, kGapGrey);
    std::copy_n(sheet.At(0, y), 3 * sheet.width, out.At(sheet.width + kGap, y));
  }
  return out;
}

// The area that the command line names.
DotArea area_in(const Picture& sheet, char** numbers) {
  const DotArea area = {
      std::strtoul(numbers[2], nullptr, 10), std::strtoul(numbers[3], nullptr, 10),
      std::strtoul(numbers[0], nullptr, 10), std::strtoul(numbers[1], nullptr, 10)};
  if (area.width == 0 || area.height == 0 || area.left >= sheet.width || area.top >= sheet.height ||
      area.width > sheet.width - area.left || area.height > sheet.height - area.top) {
    throw std::runtime_error("the sheet has no such area");
  }
  return area;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 8) {
    std::fprintf(stderr, "usage: compare-prints PHOTO SHEET.png OUT.png WIDTH HEIGHT LEFT TOP\n");
    return 2;
  }
  try {
    const Picture sheet = read_picture(argv[2]);
    const DotArea area = area_in(sheet, argv + 4);
    const Picture both = side_by_side(read_picture(argv[1], &area), sheet, area);
    if (const std::string why = photo::write_picture(argv[3], both); !why.empty()) {
      throw std::runtime_error(std::string(argv[3]) + ": " + why);
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "compare-prints: %s\n", error.what());
    return 1;
  }
  return 0;
}
