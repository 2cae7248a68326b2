// SPDX-License-Identifier: Apache-2.0
//
// How far a sheet is, for the person at the terminal.
#ifndef TQR7_SIMULATOR_SHEET_PROGRESS_H
#define TQR7_SIMULATOR_SHEET_PROGRESS_H

#include <cstdint>

#include "decoder/command_listener.h"

namespace simulator {

/// Shows a sheet's per cent, each once.
class SheetProgress {
 public:
  void Begin(const decoder::Sheet& sheet);

  /// One more row of image or matte is in.
  void Row();

 private:
  std::uint32_t rows_ = 0;
  std::uint32_t rowsIn_ = 0;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_SHEET_PROGRESS_H
