// SPDX-License-Identifier: Apache-2.0
//
// The two formats that picture files come in. For tools/picture.cpp alone.
#ifndef TQR7_TOOLS_PICTURE_FORMATS_H
#define TQR7_TOOLS_PICTURE_FORMATS_H

#include <cstddef>
#include <cstdio>
#include <string>

#include "tools/picture.h"

namespace tools {

/// A hundred megapixels, more than cameras have: what claims to be larger is not read.
inline constexpr std::size_t kPixelsMost = 100'000'000;

/// Reads the file from its beginning. Returns why it cannot be read, or nothing.
std::string read_jpeg(std::FILE* file, PictureFile& result);
std::string read_png(std::FILE* file, PictureFile& result);

/// Why no picture of this size is read; empty when it is.
std::string refuse_size(std::size_t width, std::size_t height);

}  // namespace tools

#endif  // TQR7_TOOLS_PICTURE_FORMATS_H
