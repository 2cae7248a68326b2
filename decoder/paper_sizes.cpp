// SPDX-License-Identifier: Apache-2.0
#include "decoder/paper_sizes.h"

#include <algorithm>
#include <vector>

#include "job/paper_table.h"

namespace decoder {
namespace {

void add_sheet(const tagPAPERINFO& paper, std::vector<SheetSize>& sheets) {
  const auto width = static_cast<std::uint16_t>(paper.nPaperWidth);
  const auto height = static_cast<std::uint16_t>(paper.nPaperHeight);
  auto found = std::find_if(sheets.begin(), sheets.end(), [=](const SheetSize& sheet) {
    return sheet.width == width && sheet.height == height;
  });
  if (found == sheets.end()) {
    found = sheets.insert(found, {width, height, 0, 0, false});
  }
  if (paper.nImageLeft != 0) {
    found->borderSide = static_cast<std::uint16_t>(paper.nImageLeft);
    found->borderTop = static_cast<std::uint16_t>(paper.nImageTop);
  }
  found->twoUp = found->twoUp || paper.byTwoUpMode != 0;
}

std::vector<SheetSize> sheets_of_papers() {
  std::vector<SheetSize> sheets;
#define PAPER(name, record, ...) add_sheet(record, sheets);
#include "job/paper_list.def"
  return sheets;
}

}  // namespace

std::span<const SheetSize> sheet_sizes() {
  static const std::vector<SheetSize> sheets = sheets_of_papers();
  return sheets;
}

}  // namespace decoder
