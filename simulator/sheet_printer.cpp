// SPDX-License-Identifier: Apache-2.0
#include "simulator/sheet_printer.h"

#include "simulator/wording.h"

namespace simulator {

SheetPrinter::Page::Page(const decoder::Sheet& pageSheet, std::uint64_t pageNumber,
                         const std::filesystem::path& folder, const decoder::SoftProof* proof)
    : sheet(pageSheet),
      number(pageNumber),
      writer(folder, pageSheet.job.sheetWidth, pageSheet.job.sheetHeight,
             proof != nullptr ? Meaning::ScreenColours : Meaning::DeviceValues),
      renderer(pageSheet, proof,
               [this](std::span<const std::uint8_t> row) { writer.WriteRow(row); }) {}

void SheetPrinter::Begin(const decoder::Sheet& sheet) {
  page_.reset();
  page_ = std::make_unique<Page>(sheet, folder_.TakeNumber(), folder_.Path(), proof_);
}

void SheetPrinter::ImageRow(std::uint32_t row, std::span<const std::uint16_t> samples) {
  if (page_) {
    page_->renderer.ImageRow(row, samples);
  }
}

void SheetPrinter::MatteRow(std::uint32_t row, std::span<const std::uint8_t> bytes) {
  if (page_) {
    page_->renderer.MatteRow(row, bytes);
  }
}

SheetResult SheetPrinter::Close(const std::filesystem::path& name) {
  page_->renderer.Finish();
  SheetResult result{page_->number, name, {}, {}};
  if (!page_->writer.Finish(name)) {
    result.error = page_->writer.Error();
  }
  return result;
}

SheetResult SheetPrinter::End() {
  SheetResult result = Close(folder_.PrintedName(page_->number));
  if (result.error.empty()) {
    result.listError =
        folder_.AddLine(result.path.filename().string() + ": " + printed_sheet_words(page_->sheet));
  }
  page_.reset();
  return result;
}

SheetResult SheetPrinter::Cut() {
  SheetResult result = Close(folder_.IncompleteName(page_->number));
  page_.reset();
  return result;
}

}  // namespace simulator
