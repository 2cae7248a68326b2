// SPDX-License-Identifier: Apache-2.0
//
// A photo's pages: the file read, its colours made sRGB, turned, brought to size and laid on white.
#ifndef TQR7_PHOTO_PAGE_PICTURE_H
#define TQR7_PHOTO_PAGE_PICTURE_H

#include <cstdio>
#include <string>

#include "photo/job_wishes.h"
#include "photo/layout.h"
#include "tools/picture.h"

namespace photo {

/// Makes page `number`, counted from 0, of the layout, as it lies on the sheet. Reads the file from
/// its beginning. Says why not, or nothing.
std::string make_page(std::FILE* file, const Layout& layout, std::size_t number,
                      const JobWishes& wishes, tools::Picture& page);

}  // namespace photo

#endif  // TQR7_PHOTO_PAGE_PICTURE_H
