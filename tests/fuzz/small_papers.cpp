// SPDX-License-Identifier: Apache-2.0
#include "tests/fuzz/small_papers.h"

#include <vector>

namespace fuzz {
namespace {

constexpr std::uint32_t kSplit = 616;  // the only one that the printer knows, on small sheets too

}  // namespace

tagPRINTSETTING settings_of(const SmallPaper& paper) {
  const decoder::ImagePlace place =
      paper.border ? decoder::bordered_image(paper.sheet) : decoder::full_image(paper.sheet);
  tagPRINTSETTING settings{};
  settings.nPaperWidth = paper.sheet.width;
  settings.nPaperHeight = paper.sheet.height;
  settings.nImageWidth = place.width;
  settings.nImageHeight = paper.joined ? place.height / 2 : place.height;
  settings.nImageLeft = place.left;
  settings.nImageTop = place.top;
  settings.byTwoUpMode = paper.joined ? 1 : 0;
  settings.nTwoUpSplit = paper.joined ? kSplit : 0;
  settings.byTwoUpOption = paper.joined ? 1 : 0;
  settings.nJoinPages = paper.joined ? 1 : 0;
  settings.bySharpness = 4;
  settings.byColorConversion = 1;
  settings.byWaitNextImage = 1;
  settings.byWaitTime = 5;
  return settings;
}

}  // namespace fuzz

namespace decoder {
namespace {

std::vector<SheetSize> all_sheets() {
  std::vector<SheetSize> sheets{
      {1550, 1082, 84, 74, false}, {1852, 1232, 84, 74, true}, {1852, 631, 0, 0, false}};
  for (const fuzz::SmallPaper& paper : fuzz::kSmallPapers) {
    sheets.push_back(paper.sheet);
  }
  return sheets;
}

}  // namespace

std::span<const SheetSize> sheet_sizes() {
  static const std::vector<SheetSize> sheets = all_sheets();
  return sheets;
}

}  // namespace decoder
