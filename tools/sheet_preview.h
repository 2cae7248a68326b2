// SPDX-License-Identifier: Apache-2.0
//
// The sheet with a photo laid on it, to be looked at before it is printed: what is cut off shows
// dimmed outside the sheet's edge, what stays white shows white.
#ifndef TQR7_TOOLS_SHEET_PREVIEW_H
#define TQR7_TOOLS_SHEET_PREVIEW_H

#include <cstddef>

#include "tools/picture.h"
#include "tools/placement.h"
#include "tools/print_sizes.h"

namespace tools {

inline constexpr std::size_t kPreviewLongest = 1000;  ///< pixels of the longer side

/// Draws the sheet, or the half of it that the page takes, on grey, with a line around it.
Picture draw_preview(const Picture& photo, const PrintSize& size, const Placement& placement);

}  // namespace tools

#endif  // TQR7_TOOLS_SHEET_PREVIEW_H
