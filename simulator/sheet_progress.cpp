// SPDX-License-Identifier: Apache-2.0
#include "simulator/sheet_progress.h"

#include <string>

#include "simulator/event_log.h"

namespace simulator {

void SheetProgress::Begin(const decoder::Sheet& sheet) {
  rows_ = std::uint32_t{sheet.image.height} + sheet.image.matteHeight;
  rowsIn_ = 0;
}

void SheetProgress::Row() {
  constexpr std::uint32_t kWhole = 100;
  const std::uint32_t before = kWhole * rowsIn_ / rows_;
  ++rowsIn_;
  const std::uint32_t now = kWhole * rowsIn_ / rows_;
  if (now != before) {
    show_progress("sheet: " + std::to_string(now) + " %, " + std::to_string(rowsIn_) + " of " +
                  std::to_string(rows_) + " rows");
  }
}

}  // namespace simulator
