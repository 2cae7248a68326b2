// SPDX-License-Identifier: Apache-2.0
#include "tools/stream_inspector.h"

#include <vector>

#include "decoder/command_blocks.h"
#include "decoder/plane_reader.h"

namespace tools {
namespace {

std::vector<ListedField> fields_of(decoder::Command command, std::span<const std::uint8_t> bytes) {
  std::vector<ListedField> fields;
  for (const decoder::FieldRule& rule : decoder::field_rules(command)) {
    fields.push_back({&rule, decoder::read_field(bytes, rule)});
  }
  return fields;
}

}  // namespace

// After so many errors a stream is garbage, and its commands are of no use to a person either.
bool StreamInspector::ListsStill() const {
  return totals_.errors <= kErrorsListedMost && totals_.commands <= kCommandsListedMost;
}

void StreamInspector::OnCommandBytes(std::uint64_t offset, decoder::Command command,
                                     std::span<const std::uint8_t> bytes) {
  ++totals_.commands;
  if (ListsStill()) {
    listing_.Add(ListedCommand{offset, command, fields_of(command, bytes)});
  } else {
    ++totals_.commandsUnlisted;
  }
}

void StreamInspector::OnImageHeader(std::uint64_t offset, const decoder::ImageHeader& /*header*/) {
  planeOffset_ = offset + decoder::kBlockLength;
}

void StreamInspector::OnSheetBegin(const decoder::Sheet& sheet) {
  image_ = sheet.image;
  const std::uint64_t bytes = decoder::kBytesPerPixel * image_.width * image_.height;
  if (ListsStill()) {
    listing_.Add(
        ListedPlane{planeOffset_, decoder::Command::ImageData, image_.width, image_.height, bytes});
  }
  planeOffset_ += bytes;
}

void StreamInspector::OnImageRow(std::uint32_t row, std::span<const std::uint16_t> /*samples*/) {
  if (row + 1 == image_.height && image_.matteHeight > 0 && ListsStill()) {
    const std::uint64_t bytes = std::uint64_t{image_.matteWidth} * image_.matteHeight;
    listing_.Add(ListedPlane{planeOffset_, decoder::Command::MatteData, image_.matteWidth,
                             image_.matteHeight, bytes});
  }
}

void StreamInspector::OnSheetEnd(const decoder::SheetEnd& end) {
  ++totals_.sheets;
  totals_.badSamples += end.badSamples;
}

void StreamInspector::OnPrintOut(std::uint64_t /*offset*/, std::uint8_t /*waitByte*/) {
  ++totals_.printOuts;
}

void StreamInspector::OnError(const decoder::StreamError& error) {
  ++totals_.errors;
  if (ListsStill()) {
    listing_.Add(error);
  } else {
    ++totals_.errorsUnlisted;
  }
}

void StreamInspector::OnSkipped(std::uint64_t offset, std::uint64_t count) {
  if (ListsStill()) {
    listing_.AddSkipped(offset, count);
  }
}

const StreamTotals& StreamInspector::Finish() {
  parser_.EndOfStream();
  totals_.bytes = parser_.Offset();
  listing_.Finish(totals_);
  return totals_;
}

}  // namespace tools
