// SPDX-License-Identifier: Apache-2.0
//
// A sheet's PNG file, written row by row under a hidden name and renamed when it is whole, so that
// nobody finds half a file in the folder.
#ifndef TQR7_SIMULATOR_PNG_WRITER_H
#define TQR7_SIMULATOR_PNG_WRITER_H

#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>

#include "image/file_handle.h"

namespace simulator {

/// What the values of a picture mean: colours of a screen, which the file declares as sRGB, or
/// values of the printer, for which it declares nothing.
enum class Meaning : std::uint8_t { ScreenColours, DeviceValues };

/// Writes one file: 8-bit RGB, 300 dpi. After a failure further calls do nothing, and Error says
/// what failed. A file that was not finished is removed.
class PngWriter {
 public:
  /// Begins a file in this folder, under a hidden name.
  PngWriter(const std::filesystem::path& folder, std::uint32_t width, std::uint32_t height,
            Meaning meaning);
  PngWriter(const PngWriter&) = delete;
  PngWriter& operator=(const PngWriter&) = delete;
  ~PngWriter();

  /// Writes the next row, 3 bytes a dot. There must be exactly `height` rows.
  void WriteRow(std::span<const std::uint8_t> row);

  /// Completes the file and gives it its name, replacing a file of that name. False on any failure.
  bool Finish(const std::filesystem::path& finalPath);

  /// Why the file cannot be written; empty while all is well.
  const std::string& Error() const { return error_; }

 private:
  struct Encoder;

  void Fail(const std::string& reason);
  void Remove();

  std::filesystem::path temporaryPath_;
  FileHandle file_;
  std::unique_ptr<Encoder> encoder_;
  std::string error_;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_PNG_WRITER_H
