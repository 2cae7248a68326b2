// SPDX-License-Identifier: Apache-2.0
//
// A photo as phototopage prints it: upright, in sRGB, with all that its file says.
#ifndef TQR7_TOOLS_UPRIGHT_PHOTO_H
#define TQR7_TOOLS_UPRIGHT_PHOTO_H

#include <string>

#include "photo/layout.h"
#include "photo/photo_rows.h"
#include "tools/picture.h"

namespace tools {

struct UprightPhoto {
  Picture picture;
  std::string damage;       ///< what is wrong with a file that could be shown all the same
  photo::PhotoFacts facts;  ///< as the file has it, before it was turned
  photo::PhotoShape shape;  ///< of the upright picture
  bool converted;           ///< its colours were not those of sRGB
  bool profilePassedOver;   ///< its profile does not fit, or is broken
};

/// Reads a JPEG or PNG file. Throws std::runtime_error, which says why it cannot be read.
UprightPhoto read_upright_photo(const std::string& path);

}  // namespace tools

#endif  // TQR7_TOOLS_UPRIGHT_PHOTO_H
