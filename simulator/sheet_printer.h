// SPDX-License-Identifier: Apache-2.0
//
// Makes a sheet's PNG and its line in the list from its rows.
#ifndef TQR7_SIMULATOR_SHEET_PRINTER_H
#define TQR7_SIMULATOR_SHEET_PRINTER_H

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "decoder/command_listener.h"
#include "decoder/soft_proof.h"
#include "simulator/png_writer.h"
#include "simulator/sheet_folder.h"
#include "simulator/sheet_marks.h"
#include "simulator/sheet_renderer.h"
#include "simulator/thumbnail.h"

namespace simulator {

/// What became of a sheet.
struct SheetResult {
  std::uint64_t number;
  std::filesystem::path path;  ///< of the PNG
  std::string error;           ///< why there is no PNG; empty when there is one
  std::string listError;       ///< why it is not in the list; empty when it is
  std::string thumbnailError;  ///< why there is no thumbnail though one was asked for
};

/// What is made of a sheet besides the plain picture.
struct SheetExtras {
  bool marks = false;       ///< lines where it is cut and where its border begins
  bool thumbnails = false;  ///< a small picture of each sheet
};

/// Prints one sheet after another into a folder, and keeps one sheet in memory at most.
class SheetPrinter {
 public:
  /// Draws sheets through `proof`; shows the device values when it is null. Folder and proof must
  /// outlive the printer.
  SheetPrinter(SheetFolder& folder, const decoder::SoftProof* proof, SheetExtras extras = {})
      : folder_(folder), proof_(proof), extras_(extras) {}

  /// Whether a sheet has begun, and has neither ended nor been cut.
  bool Busy() const { return page_ != nullptr; }

  void Begin(const decoder::Sheet& sheet);
  void ImageRow(std::uint32_t row, std::span<const std::uint16_t> samples);
  void MatteRow(std::uint32_t row, std::span<const std::uint8_t> bytes);

  /// Draws one of the rows that have come; false when there is none left. This uses idle time: End
  /// and Cut draw all rows that are left.
  bool Draw() { return page_ != nullptr && page_->renderer.HandOnRow(); }

  /// The sheet is whole. It counts as printed once its PNG is written. Only while Busy.
  SheetResult End();

  /// The sheet stays incomplete, and gets a name for incomplete sheets. Only while Busy.
  SheetResult Cut();

 private:
  struct Page {
    Page(const decoder::Sheet& pageSheet, std::uint64_t pageNumber,
         const std::filesystem::path& folder, const decoder::SoftProof* proof, SheetExtras extras);
    void TakeRow(std::span<const std::uint8_t> row);

    decoder::Sheet sheet;
    std::uint64_t number;
    PngWriter writer;
    std::optional<SheetMarks> marks;
    std::optional<Thumbnail> thumbnail;
    std::size_t rows = 0;
    std::vector<std::uint8_t> marked;
    SheetRenderer renderer;
  };

  SheetResult Close(const std::filesystem::path& name);
  std::string WriteThumbnail() const;

  SheetFolder& folder_;
  const decoder::SoftProof* proof_;
  SheetExtras extras_;
  std::unique_ptr<Page> page_;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_SHEET_PRINTER_H
