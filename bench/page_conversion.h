// SPDX-License-Identifier: Apache-2.0
//
// MVChangeImage called as the filter calls it, on a picture.
#ifndef TQR7_BENCH_PAGE_CONVERSION_H
#define TQR7_BENCH_PAGE_CONVERSION_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "bench/picture.h"

namespace bench {

inline constexpr double kFullScale = 16383.0;  ///< the print engine's white
inline constexpr int kSharpnessNone = -1;

/// What a person sets for a print. Sharpness is kSharpnessNone or the library's level 0 … 6.
struct PrintSettings {
  bool colourConversion = true;
  int sharpness = kSharpnessNone;
  std::array<std::int16_t, 9> tone{};  ///< gamma R, G, B, contrast R, G, B, brightness R, G, B
  bool matte = false;
  std::string moduleFolder;  ///< where tqr7.icc is; ends in "/"
};

inline constexpr int kSharpnessNormal = 3;

/// A page with its buffers, so that converting it can be repeated and timed alone.
class PageConversion {
 public:
  /// `picture` has to outlive the conversion.
  PageConversion(const Picture& picture, PrintSettings settings);

  /// Converts the page once; the library's code, 0 for done.
  long run();

  /// Three samples a pixel, as the last run wrote them.
  std::span<const std::uint16_t> samples() const { return samples_; }
  /// As wide as the picture and 12 rows higher; empty without a matte finish.
  std::span<const unsigned char> matte() const { return matte_; }
  unsigned rgb_rate() const { return rgbRate_; }
  unsigned op_rate() const { return opRate_; }

 private:
  const Picture& picture_;
  PrintSettings settings_;
  std::vector<std::uint16_t> samples_;
  std::vector<unsigned char> matte_;
  unsigned char rgbRate_ = 0;
  unsigned char opRate_ = 0;
};

/// The samples of one conversion. Throws std::runtime_error when the library refuses the page.
std::vector<std::uint16_t> converted(const Picture& picture, const PrintSettings& settings);

/// The matte plane of a page of this size; its rows are `width` bytes.
std::vector<unsigned char> matte_plane(std::size_t width, std::size_t height);

}  // namespace bench

#endif  // TQR7_BENCH_PAGE_CONVERSION_H
