// SPDX-License-Identifier: Apache-2.0
//
// A raster page of any size laid on the printer's page, and its edges made whole.
#ifndef TQR7_PHOTO_PAGE_EDGES_H
#define TQR7_PHOTO_PAGE_EDGES_H

#include <cups/raster.h>

#include <cstddef>
#include <cstdint>
#include <vector>

#include "photo/job_page.h"

namespace photo {

/// Where a raster page's left upper corner comes on the printer's page: dots, negative beyond it.
struct Corner {
  long left;
  long top;
};

/// Dots that rounding may cost at an edge: CUPS counts pages in points, and its filters keep whole
/// ones.
inline constexpr long kRoundedOff = 4;

/// Rows or columns that a drawing filter leaves white at an edge that it means to cover, at most.
inline constexpr std::size_t kBlankLines = 2;

/// The corner by the place that the header tells, inside the page as far as there is room. A raster
/// page of the page's own size lies on it.
Corner find_corner(const cups_page_header2_t& header, const JobPage& page);

/// A page of 8-bit RGB, white at first, that raster lines are laid on.
class PageSheet {
 public:
  PageSheet(std::size_t width, std::size_t height);

  /// Lays a line of `width` pixels, line `y` of its raster page.
  void Lay(const Corner& corner, std::size_t y, const std::uint8_t* rgb, std::size_t width);

  /// Repeats the outermost line of what was laid, width x height from the corner, towards an edge
  /// that it misses by no more than kRoundedOff.
  void CloseGaps(const Corner& corner, std::size_t width, std::size_t height);

  /// Where up to kBlankLines at an edge are white and the next line is not, repeats that one into
  /// them.
  void FillBlankLines();

  const std::uint8_t* Rows() const { return rgb_.data(); }

 private:
  std::uint8_t* Row(std::size_t y) { return &rgb_[y * stride_]; }
  bool IsWhiteRow(std::size_t y);
  bool IsWhiteColumn(std::size_t x);
  void CopyRow(std::size_t from, std::size_t to);
  void CopyColumn(std::size_t from, std::size_t to);

  std::size_t width_;
  std::size_t height_;
  std::size_t stride_;
  std::vector<std::uint8_t> rgb_;
};

}  // namespace photo

#endif  // TQR7_PHOTO_PAGE_EDGES_H
