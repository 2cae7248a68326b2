// SPDX-License-Identifier: Apache-2.0
//
// Reads a photo row by row, as it is in its file: not yet turned, and in the file's own colours.
// The file may be broken anywhere.
#ifndef TQR7_PHOTO_PHOTO_ROWS_H
#define TQR7_PHOTO_PHOTO_ROWS_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "photo/exif.h"

namespace photo {

/// No camera takes more pixels: a file that claims to have more is not read.
inline constexpr std::size_t kPixelsMost = 250'000'000;
inline constexpr std::size_t kSideMost = 65'500;  ///< pixels; the most that JPEG can have

/// The one reason that is not the photo's fault.
inline constexpr char kNoMemory[] = "there is too little memory";

/// What the samples of a row are amounts of.
enum class Samples : std::uint8_t {
  Rgb,          ///< red, green, blue
  Grey,         ///< light
  Cmyk,         ///< ink, 255 is full
  CmykInverted  ///< the same, 0 is full
};

std::size_t bytes_per_pixel(Samples samples);

/// The colours of a file that says in numbers, not by a profile, what its samples mean.
struct Primaries {
  double red[2];    ///< x, y
  double green[2];  ///< the same
  double blue[2];   ///< the same
  double white[2];  ///< the same
};

/// What the file says about its picture.
struct PhotoFacts {
  std::size_t width = 0;   ///< pixels, before the picture is turned
  std::size_t height = 0;  ///< the same
  Samples samples = Samples::Rgb;
  PixelDensity density;
  int orientation = 1;                ///< Exif's, 1 to 8
  std::vector<std::uint8_t> profile;  ///< ICC; empty where there is none
  bool adobeRgb = false;              ///< the camera has marked it as Adobe RGB
  double gamma = 0;                   ///< exponent from sample to light; 0 where it is unknown
  bool hasPrimaries = false;
  Primaries primaries{};
};

/// A file that is being read: call Open, then Begin, then Row for each row.
class PhotoRows {
 public:
  PhotoRows() = default;
  virtual ~PhotoRows() = default;
  PhotoRows(const PhotoRows&) = delete;
  PhotoRows& operator=(const PhotoRows&) = delete;

  /// Reads what comes before the pixels. Returns why it cannot, or nothing; so do the others.
  virtual std::string Open(PhotoFacts& facts) = 0;

  /// Begins with the pixels. To save time, a JPEG is read at a fraction of its size: `reduction` is
  /// 1, 2, 4 or 8, and one pixel stands for that many in each direction. PNG ignores it. `width`
  /// and `height` are the size in which the rows come.
  virtual std::string Begin(unsigned reduction, std::size_t& width, std::size_t& height) = 0;

  /// Reads the next row.
  virtual std::string Row(std::uint8_t* samples) = 0;
};

/// Returns a reader for the file's format, or null when it is neither JPEG nor PNG. It reads from
/// the file's beginning; the file must stay open as long as the reader lives.
std::unique_ptr<PhotoRows> find_reader(std::FILE* file);

std::unique_ptr<PhotoRows> read_jpeg_rows(std::FILE* file);
std::unique_ptr<PhotoRows> read_png_rows(std::FILE* file);

/// Returns why a picture of this size is not read, or nothing.
std::string refuse_size(std::size_t width, std::size_t height);

}  // namespace photo

#endif  // TQR7_PHOTO_PHOTO_ROWS_H
