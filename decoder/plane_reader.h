// SPDX-License-Identifier: Apache-2.0
//
// Collects image and matte data into rows, and keeps one row at most.
#ifndef TQR7_DECODER_PLANE_READER_H
#define TQR7_DECODER_PLANE_READER_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace decoder {

inline constexpr std::size_t kBytesPerPixel = 6;         ///< three samples of two bytes
inline constexpr std::uint16_t kSampleMaximum = 0x3FFF;  ///< white, of the conversion library

/// Reads one plane, whose size was checked before, row by row.
class PlaneReader {
 public:
  /// Begins a plane of `rows` rows; either may be 0, for a plane without bytes.
  void Begin(std::size_t rowBytes, std::uint32_t rows);

  /// Takes bytes up to the end of the row, and returns how many. When RowComplete, use the row.
  std::size_t Take(std::span<const std::uint8_t> bytes);

  bool RowComplete() const { return rowBytes_ != 0 && row_.size() == rowBytes_; }

  /// The complete row's bytes; valid until NextRow.
  std::span<const std::uint8_t> Row() const { return row_; }

  /// Goes on to the next row.
  void NextRow();

  /// Number of the current row, from 0.
  std::uint32_t RowNumber() const { return rowNumber_; }

  bool Complete() const { return rowNumber_ == rows_ || rowBytes_ == 0; }

  std::uint64_t BytesExpected() const { return std::uint64_t{rowBytes_} * rows_; }
  std::uint64_t BytesTaken() const { return std::uint64_t{rowBytes_} * rowNumber_ + row_.size(); }

 private:
  std::vector<std::uint8_t> row_;
  std::size_t rowBytes_ = 0;
  std::uint32_t rows_ = 0;
  std::uint32_t rowNumber_ = 0;
};

/// Reads a row's samples, which come low byte first. Uses the memory of `samples` again.
void read_samples(std::span<const std::uint8_t> row, std::vector<std::uint16_t>& samples);

/// How many samples are above 14 bits.
std::uint64_t count_bad_samples(std::span<const std::uint16_t> samples);

}  // namespace decoder

#endif  // TQR7_DECODER_PLANE_READER_H
