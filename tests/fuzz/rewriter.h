// SPDX-License-Identifier: Apache-2.0
//
// Writes a stream that the decoder reads once more, by the filter's writers, from the values alone.
// The writers' stream and clock must be a PrinterStream and this file's localtime().
#ifndef TQR7_TESTS_FUZZ_REWRITER_H
#define TQR7_TESTS_FUZZ_REWRITER_H

#include <cstdint>
#include <span>
#include <vector>

#include "decoder/command_listener.h"
#include "image/band_image.h"
#include "job/print_setting.h"

namespace fuzz {

class Rewriter : public decoder::CommandListener {
 public:
  /// The seed says how the bands lie in memory: line order, and the gap between two lines.
  explicit Rewriter(std::uint64_t seed);

  void OnStatusRequest(std::uint64_t offset) override;
  void OnReadinessQuery(std::uint64_t offset, const decoder::JobHeader& header) override;
  void OnJobHeader(std::uint64_t offset, const decoder::JobHeader& header) override;
  void OnImageHeader(std::uint64_t offset, const decoder::ImageHeader& header) override;
  void OnImageRow(std::uint32_t row, std::span<const std::uint16_t> samples) override;
  void OnMatteRow(std::uint32_t row, std::span<const std::uint8_t> bytes) override;
  void OnSheetEnd(const decoder::SheetEnd& end) override;
  void OnPrintOut(std::uint64_t offset, std::uint8_t waitByte) override;

 private:
  /// A plane in a heap block that ends with its last pixel.
  struct Plane {
    std::vector<unsigned char> bytes;
    std::int64_t stride = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;

    void Make(std::int64_t pixels, std::int64_t rows, std::int64_t depth, std::uint64_t seed);
    unsigned char* Row(std::int64_t row);
    tagMVBandImageParams Band();
  };

  std::uint64_t seed_;
  tagPRINTSETTING settings_{};
  Plane image_;
  Plane matte_;
};

}  // namespace fuzz

#endif  // TQR7_TESTS_FUZZ_REWRITER_H
