// SPDX-License-Identifier: Apache-2.0
//
// Draws the sheet with a photo on it, as it will be printed. What is cut off is shown dimmed
// outside the sheet's edge, and what stays white is white.
#ifndef TQR7_TOOLS_SHEET_PREVIEW_H
#define TQR7_TOOLS_SHEET_PREVIEW_H

#include <cstddef>
#include <cstdio>
#include <string>

#include "tools/photo_check.h"

namespace tools {

inline constexpr std::size_t kPreviewLongest = 1000;  ///< pixels of the longer side

/// Draws the sheet, or the half of it that the page takes, on grey, with a line around it. Reads
/// the photo again from its beginning. Returns why it cannot be drawn, or nothing.
std::string draw_preview(std::FILE* file, const PhotoJob& job, const PhotoCheck& check,
                         photo::Picture& preview);

}  // namespace tools

#endif  // TQR7_TOOLS_SHEET_PREVIEW_H
