// SPDX-License-Identifier: Apache-2.0
//
// A small picture of a sheet: each dot is the average of a square of the sheet's dots.
#ifndef TQR7_SIMULATOR_THUMBNAIL_H
#define TQR7_SIMULATOR_THUMBNAIL_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace simulator {

/// The longer side of a thumbnail, at most.
inline constexpr std::size_t kThumbnailSide = 320;

/// Takes a sheet's rows, 3 bytes a dot, from top to bottom.
class Thumbnail {
 public:
  /// Width and height of the sheet, above 0.
  Thumbnail(std::size_t width, std::size_t height);

  void AddRow(std::span<const std::uint8_t> row);

  std::size_t Width() const { return width_; }
  std::size_t Height() const { return height_; }

  /// A row of the thumbnail, 3 bytes a dot. Only after all rows of the sheet.
  std::span<const std::uint8_t> Row(std::size_t row) const;

 private:
  void FinishRow();

  std::size_t sheetWidth_;
  std::size_t sheetHeight_;
  std::size_t scale_;
  std::size_t width_;
  std::size_t height_;
  std::size_t rowsIn_ = 0;
  std::vector<std::uint32_t> sums_;
  std::vector<std::uint8_t> pixels_;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_THUMBNAIL_H
