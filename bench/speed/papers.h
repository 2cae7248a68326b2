// SPDX-License-Identifier: Apache-2.0
//
// The printer's papers, from the smallest raster page to the largest.
#ifndef TQR7_BENCH_SPEED_PAPERS_H
#define TQR7_BENCH_SPEED_PAPERS_H

#include <cstdint>
#include <vector>

#include "job/paper_table.h"

namespace bench {

struct Paper {
  const char* name;  ///< as PageSize has it
  const tagPAPERINFO* info;

  int pages_of_sheet() const;          ///< raster pages
  std::uint64_t image_pixels() const;  ///< of one raster page
  double image_megapixels() const;     ///< of one raster page
  /// Dots of the sheet, and of so many rows more.
  std::uint64_t sheet_dots(std::uint64_t moreRows = 0) const;
};

/// Rows of a matte plane beyond the sheet.
inline constexpr std::uint64_t kMatteExtraRows = 12;

/// All 13.
const std::vector<Paper>& papers();

/// The paper that people print most.
const Paper& usual_paper();

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_PAPERS_H
