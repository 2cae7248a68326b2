// SPDX-License-Identifier: Apache-2.0
//
// A PNG file read back for the tests.
#ifndef TQR7_TESTS_UNIT_PNG_FILE_H
#define TQR7_TESTS_UNIT_PNG_FILE_H

#include <array>
#include <cstdint>
#include <filesystem>
#include <vector>

/// An 8-bit RGB picture and what its file says of itself. Width 0: the file could not be read.
struct PngFile {
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  int bitDepth = 0;
  int colorType = 0;
  bool sRgb = false;
  std::uint32_t dotsPerMetre = 0;
  std::vector<std::uint8_t> pixels;

  using Rgb = std::array<int, 3>;
  Rgb At(std::size_t x, std::size_t y) const;
};

PngFile read_png(const std::filesystem::path& path);

#endif  // TQR7_TESTS_UNIT_PNG_FILE_H
