// SPDX-License-Identifier: Apache-2.0
#include "simulator/sheet_renderer.h"

#include <algorithm>
#include <utility>

#include "decoder/plane_reader.h"

namespace simulator {
namespace {

constexpr std::size_t kChannels = 3;
constexpr unsigned kByteMaximum = 255;
constexpr std::uint8_t kWhite = 0xFF;
constexpr unsigned kMatteScale = 8 * kByteMaximum;  // an eighth is what a matte byte can take away

}  // namespace

std::uint8_t sample_to_byte(std::uint16_t sample) {
  const unsigned value = std::min<unsigned>(sample, decoder::kSampleMaximum);
  return static_cast<std::uint8_t>((value * kByteMaximum + decoder::kSampleMaximum / 2) /
                                   decoder::kSampleMaximum);
}

std::uint8_t under_matte(std::uint8_t value, std::uint8_t matte) {
  const unsigned share = kMatteScale - kByteMaximum + matte;
  return static_cast<std::uint8_t>((value * share + kMatteScale / 2) / kMatteScale);
}

SheetRenderer::SheetRenderer(const decoder::Sheet& sheet, const decoder::SoftProof* proof,
                             RowSink sink)
    : sheet_(sheet),
      proof_(proof),
      sink_(std::move(sink)),
      pixels_(kChannels * sheet.job.sheetWidth * sheet.job.sheetHeight, kWhite) {}

std::span<std::uint8_t> SheetRenderer::Row(std::size_t row) {
  const std::size_t bytes = kChannels * sheet_.job.sheetWidth;
  return std::span(pixels_).subspan(row * bytes, bytes);
}

void SheetRenderer::ImageRow(std::uint32_t row, std::span<const std::uint16_t> samples) {
  const std::size_t sheetRow = std::size_t{sheet_.image.top} + row;
  const auto place = Row(sheetRow).subspan(kChannels * sheet_.image.left, samples.size());
  if (proof_ != nullptr) {
    proof_->ToScreen(samples, place);
  } else {
    std::transform(samples.begin(), samples.end(), place.begin(),
                   [](std::uint16_t sample) { return sample_to_byte(sample); });
  }
  if (sheet_.image.matteHeight == 0) {
    rowsDone_ = sheetRow + 1;
  }
}

void SheetRenderer::MatteRow(std::uint32_t row, std::span<const std::uint8_t> bytes) {
  if (row >= sheet_.job.sheetHeight) {
    return;
  }
  const auto dots = Row(row);
  for (std::size_t i = 0; i < dots.size(); ++i) {
    dots[i] = under_matte(dots[i], bytes[i / kChannels]);
  }
  rowsDone_ = std::size_t{row} + 1;
}

void SheetRenderer::Finish() {
  rowsDone_ = sheet_.job.sheetHeight;
  while (HandOnRow()) {
  }
}

bool SheetRenderer::HandOnRow() {
  if (rowsOut_ >= rowsDone_) {
    return false;
  }
  sink_(Row(rowsOut_));
  ++rowsOut_;
  return true;
}

}  // namespace simulator
