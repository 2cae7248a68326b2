// SPDX-License-Identifier: Apache-2.0
//
// Lines drawn into a proof: where a sheet of two prints is cut, and where the white border begins.
// They are two dots wide, in dashes of magenta and black, one of which is visible on any picture.
#ifndef TQR7_SIMULATOR_SHEET_MARKS_H
#define TQR7_SIMULATOR_SHEET_MARKS_H

#include <cstddef>
#include <cstdint>
#include <span>

#include "decoder/command_listener.h"

namespace simulator {

/// The marks of one sheet.
class SheetMarks {
 public:
  explicit SheetMarks(const decoder::Sheet& sheet) : sheet_(sheet) {}

  /// Draws the marks that lie in this row of the sheet. The cut takes the last line of the first
  /// print and the first line of the second. The outline lies in the white border, so that it hides
  /// no dot of the picture.
  void Draw(std::size_t row, std::span<std::uint8_t> dots) const;

 private:
  void DrawOutline(std::size_t row, std::span<std::uint8_t> dots) const;

  decoder::Sheet sheet_;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_SHEET_MARKS_H
