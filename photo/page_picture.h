// SPDX-License-Identifier: Apache-2.0
//
// From a photo's file to its pages, in two steps: plan_pages reads what the file says and lays the
// photo out, make_page makes one of the pages. phototopage prints them; tqr7 check judges and draws
// the same.
#ifndef TQR7_PHOTO_PAGE_PICTURE_H
#define TQR7_PHOTO_PAGE_PICTURE_H

#include <cstdio>
#include <string>

#include "photo/job_wishes.h"
#include "photo/layout.h"
#include "photo/photo_rows.h"
#include "photo/picture.h"

namespace photo {

/// What is known of a photo before its pixels are read.
struct PlannedPhoto {
  PhotoFacts facts;
  PhotoShape shape;  ///< of the upright photo
  Layout layout;     ///< has a page at least
};

/// Reads what the file says about its picture, and lays the photo out on pages of this many dots.
/// Returns why the photo cannot be printed, or nothing.
std::string plan_pages(std::FILE* file, std::size_t pageWidth, std::size_t pageHeight,
                       const JobWishes& wishes, PlannedPhoto& plan);

/// A page as it lies on the sheet, and what happened to the photo's colours.
struct PagePicture {
  Picture picture;
  bool coloursConverted = false;   ///< they were not those of sRGB
  bool profilePassedOver = false;  ///< it is broken, or does not fit the photo
};

/// Makes page `number`, counted from 0, of the layout. Reads the file again from its beginning.
/// Returns why the page cannot be made, or nothing.
std::string make_page(std::FILE* file, const Layout& layout, std::size_t number,
                      const JobWishes& wishes, PagePicture& page);

}  // namespace photo

#endif  // TQR7_PHOTO_PAGE_PICTURE_H
