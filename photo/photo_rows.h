// SPDX-License-Identifier: Apache-2.0
//
// A photo read row by row, as its file has it: neither turned nor in other colours. Nothing of the
// file need be right.
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

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

/// More pixels than any camera takes: what claims to have more is not read.
inline constexpr std::size_t kPixelsMost = 250'000'000;
inline constexpr std::size_t kSideMost = 65'500;  ///< pixels; JPEG has no more either

/// Why a photo is not printed that is all right: the machine's fault, not the file's.
inline constexpr char kNoMemory[] = "there is too little memory";

/// What the samples of a row count.
enum class Samples : std::uint8_t {
  Rgb,          ///< red, green, blue
  Grey,         ///< light
  Cmyk,         ///< ink, 255 is full
  CmykInverted  ///< the same, 0 is full
};

/// Bytes of a pixel.
std::size_t bytes_per_pixel(Samples samples);

/// Light of a file that has no profile but says itself what its numbers mean.
struct Primaries {
  double red[2];    ///< x, y of the colour
  double green[2];  ///< the same
  double blue[2];   ///< the same
  double white[2];  ///< the same
};

/// What the file says of its picture.
struct PhotoFacts {
  std::size_t width = 0;   ///< pixels, as they lie in the file
  std::size_t height = 0;  ///< the same
  Samples samples = Samples::Rgb;
  PixelDensity density;
  int orientation = 1;                ///< Exif's, 1 to 8
  std::vector<std::uint8_t> profile;  ///< ICC; empty where there is none
  bool adobeRgb = false;              ///< no profile, but the camera's mark for Adobe RGB
  double gamma = 0;                   ///< exponent from sample to light; 0 where it is not said
  bool hasPrimaries = false;
  Primaries primaries{};
};

/// A file being read: Open, then Begin, then Row until all are read.
class PhotoRows {
 public:
  PhotoRows() = default;
  virtual ~PhotoRows() = default;
  PhotoRows(const PhotoRows&) = delete;
  PhotoRows& operator=(const PhotoRows&) = delete;

  /// Reads what comes before the pixels. Says why not, or nothing.
  virtual std::string Open(PhotoFacts& facts) = 0;

  /// Begins with the pixels. Of a picture that may be read smaller, to save time, at most one of
  /// `reduction` pixels is left out in each direction; `width` and `height` tell what comes.
  virtual std::string Begin(unsigned reduction, std::size_t& width, std::size_t& height) = 0;

  /// The next row.
  virtual std::string Row(std::uint8_t* samples) = 0;
};

/// The reader for the file's first bytes; null for what is neither JPEG nor PNG. The file stays
/// open as long as the reader lives, and is read from its beginning.
std::unique_ptr<PhotoRows> find_reader(std::FILE* file);

std::unique_ptr<PhotoRows> read_jpeg_rows(std::FILE* file);
std::unique_ptr<PhotoRows> read_png_rows(std::FILE* file);

/// Why no picture of this size is read; empty when it is.
std::string refuse_size(std::size_t width, std::size_t height);

}  // namespace photo

#endif  // TQR7_PHOTO_PHOTO_ROWS_H
