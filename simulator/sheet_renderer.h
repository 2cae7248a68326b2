// SPDX-License-Identifier: Apache-2.0
//
// One sheet as a person would see it: the image at its place on white paper, in 8-bit RGB, under
// the matte texture.
//
// The colours come from a soft proof. Without one, a 14-bit value v is shown as round(v × 255 /
// 16383). With a matte plane, a matte byte m scales each of the dot's values by (1785 + m) / 2040:
// 0xFF, the full overcoat, does not change them, and 0x00 takes an eighth away. So the texture is a
// light grain, through which the colours can still be judged.
#ifndef TQR7_SIMULATOR_SHEET_RENDERER_H
#define TQR7_SIMULATOR_SHEET_RENDERER_H

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "decoder/command_listener.h"
#include "decoder/soft_proof.h"

namespace simulator {

/// Takes a finished row of the sheet, 3 bytes a dot.
using RowSink = std::function<void(std::span<const std::uint8_t>)>;

/// The 8-bit value that stands for a sample; samples above 14 bits count as white.
std::uint8_t sample_to_byte(std::uint16_t sample);

/// The 8-bit value under a matte byte.
std::uint8_t under_matte(std::uint8_t value, std::uint8_t matte);

/// Draws one sheet and hands its rows on, from top to bottom. A row can be handed on once nothing
/// can change it any more. Memory is that of the sheet's pixels.
class SheetRenderer {
 public:
  /// `sheet` must have passed the decoder's checks. `proof` must outlive the renderer; null shows
  /// the device values.
  SheetRenderer(const decoder::Sheet& sheet, const decoder::SoftProof* proof, RowSink sink);

  void ImageRow(std::uint32_t row, std::span<const std::uint16_t> samples);

  /// A matte plane has some rows more than its sheet, which are not shown.
  void MatteRow(std::uint32_t row, std::span<const std::uint8_t> bytes);

  /// Hands on the next row that nothing can change any more; false when there is none.
  bool HandOnRow();

  /// Hands on all rows that are left, white where nothing came.
  void Finish();

 private:
  std::span<std::uint8_t> Row(std::size_t row);

  decoder::Sheet sheet_;
  const decoder::SoftProof* proof_;
  RowSink sink_;
  std::vector<std::uint8_t> pixels_;
  std::size_t rowsDone_ = 0;  ///< from the top: nothing can change them any more
  std::size_t rowsOut_ = 0;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_SHEET_RENDERER_H
