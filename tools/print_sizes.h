// SPDX-License-Identifier: Apache-2.0
//
// The paper sizes under the names that people give them, and the page that each gives a picture.
#ifndef TQR7_TOOLS_PRINT_SIZES_H
#define TQR7_TOOLS_PRINT_SIZES_H

#include <cstdint>
#include <span>
#include <string_view>

#include "job/paper_table.h"

namespace tools {

/// One PageSize of the PPD.
struct PrintSize {
  const char* name;  ///< "RQ_10x15"
  const tagPAPERINFO* paper;

  /// A raster page is one of two prints on the sheet.
  bool HalfSheet() const { return paper->nJoinPages != 0; }
  /// Two prints lie on one page, and the printer cuts the sheet between them.
  bool TwoOnOnePage() const { return paper->byTwoUpMode != 0 && !HalfSheet(); }
};

/// All 13 sizes, in the order of the PPD.
std::span<const PrintSize> print_sizes();

/// The size of this name, with or without "RQ_", in any case; null when there is none.
const PrintSize* find_print_size(std::string_view name);

}  // namespace tools

#endif  // TQR7_TOOLS_PRINT_SIZES_H
