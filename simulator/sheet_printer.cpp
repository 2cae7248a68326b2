// SPDX-License-Identifier: Apache-2.0
#include "simulator/sheet_printer.h"

#include "simulator/wording.h"

namespace simulator {

namespace {

Meaning meaning_through(const decoder::SoftProof* proof) {
  return proof != nullptr ? Meaning::ScreenColours : Meaning::DeviceValues;
}

}  // namespace

SheetPrinter::Page::Page(const decoder::Sheet& pageSheet, std::uint64_t pageNumber,
                         const std::filesystem::path& folder, const decoder::SoftProof* proof,
                         SheetExtras extras)
    : sheet(pageSheet),
      number(pageNumber),
      writer(folder, pageSheet.job.sheetWidth, pageSheet.job.sheetHeight, meaning_through(proof)),
      renderer(pageSheet, proof, [this](std::span<const std::uint8_t> row) { TakeRow(row); }) {
  if (extras.marks) {
    marks.emplace(pageSheet);
  }
  if (extras.thumbnails) {
    thumbnail.emplace(pageSheet.job.sheetWidth, pageSheet.job.sheetHeight);
  }
}

void SheetPrinter::Page::TakeRow(std::span<const std::uint8_t> row) {
  if (marks) {
    marked.assign(row.begin(), row.end());
    marks->Draw(rows, marked);
    row = marked;
  }
  if (thumbnail) {
    thumbnail->AddRow(row);
  }
  writer.WriteRow(row);
  ++rows;
}

void SheetPrinter::Begin(const decoder::Sheet& sheet) {
  page_.reset();
  page_ = std::make_unique<Page>(sheet, folder_.TakeNumber(), folder_.Path(), proof_, extras_);
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
  SheetResult result{page_->number, name, {}, {}, {}};
  if (!page_->writer.Finish(name)) {
    result.error = page_->writer.Error();
  }
  return result;
}

std::string SheetPrinter::WriteThumbnail() const {
  if (!page_->thumbnail) {
    return {};
  }
  const Thumbnail& thumbnail = *page_->thumbnail;
  PngWriter writer(folder_.Thumbnails(), static_cast<std::uint32_t>(thumbnail.Width()),
                   static_cast<std::uint32_t>(thumbnail.Height()), meaning_through(proof_));
  for (std::size_t row = 0; row < thumbnail.Height(); ++row) {
    writer.WriteRow(thumbnail.Row(row));
  }
  writer.Finish(folder_.ThumbnailName(page_->number));
  return writer.Error();
}

SheetResult SheetPrinter::End() {
  SheetResult result = Close(folder_.PrintedName(page_->number));
  if (result.error.empty()) {
    result.listError =
        folder_.AddLine(result.path.filename().string() + ": " + printed_sheet_words(page_->sheet));
    result.thumbnailError = WriteThumbnail();
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
