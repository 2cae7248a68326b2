// SPDX-License-Identifier: Apache-2.0
//
// Lays a raster page of any size on the printer's page, and repairs its edges: the filters that
// draw documents round sizes to points, and leave a few rows or columns white at an edge.
#ifndef TQR7_PHOTO_PAGE_EDGES_H
#define TQR7_PHOTO_PAGE_EDGES_H

#include <cups/raster.h>

#include <cstddef>
#include <cstdint>
#include <vector>

#include "photo/job_page.h"

namespace photo {

/// The upper left corner of a raster page on the printer's page, in dots. It is negative where the
/// raster page begins left of or above the printer's.
struct Corner {
  long left;
  long top;
};

/// Dots that may be missing at an edge because a filter has rounded the page to whole points (a
/// point is 4.2 dots).
inline constexpr long kRoundedOff = 4;

/// The most rows or columns that a drawing filter leaves white by mistake at an edge.
inline constexpr std::size_t kBlankLines = 2;

/// Returns the corner that the header's bounding box says; without a box, the raster page comes to
/// the middle. The corner is moved so that a smaller raster page is all on the page, and a larger
/// one covers it; for one of the page's own size it is 0, 0.
Corner find_corner(const cups_page_header2_t& header, const JobPage& page);

/// A page of 8-bit RGB, white at first, that is filled with raster lines.
class PageSheet {
 public:
  PageSheet(std::size_t width, std::size_t height);

  /// Copies line `y` of a raster page, `width` pixels, to its place. What is beyond the page is
  /// lost.
  void Lay(const Corner& corner, std::size_t y, const std::uint8_t* rgb, std::size_t width);

  /// For each edge that a raster page of width x height misses by at most kRoundedOff: repeats the
  /// page's outermost row or column up to the edge.
  void CloseGaps(const Corner& corner, std::size_t width, std::size_t height);

  /// For each edge where at most kBlankLines rows or columns are white: repeats the next one, which
  /// is not white, up to the edge.
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
