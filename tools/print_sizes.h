// SPDX-License-Identifier: Apache-2.0
//
// The papers under the names that people give them, and how prints lie on them.
#ifndef TQR7_TOOLS_PRINT_SIZES_H
#define TQR7_TOOLS_PRINT_SIZES_H

#include <string_view>

#include "job/paper_table.h"

namespace tools {

/// The first paper that people call so, in any case: "RQ_10x15", "10x15", "4x6" or "102x152mm".
/// Null when there is none.
const NamedPaper* find_paper(std::string_view name);

/// A raster page is one of two prints on the sheet.
inline bool is_half_sheet(const NamedPaper& size) {
  return size.paper->nJoinPages != 0;
}

/// Two prints lie on one page, and the printer cuts the sheet between them.
inline bool has_two_on_one_page(const NamedPaper& size) {
  return size.paper->byTwoUpMode != 0 && !is_half_sheet(size);
}

}  // namespace tools

#endif  // TQR7_TOOLS_PRINT_SIZES_H
