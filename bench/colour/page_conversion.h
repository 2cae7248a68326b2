// SPDX-License-Identifier: Apache-2.0
//
// MVChangeImage called as the filter calls it, on a picture.
#ifndef TQR7_BENCH_COLOUR_PAGE_CONVERSION_H
#define TQR7_BENCH_COLOUR_PAGE_CONVERSION_H

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "bench/colour/picture.h"

namespace bench {

inline constexpr double kFullScale = 16383.0;  ///< the print engine's white
inline constexpr int kSharpnessNone = -1;
inline constexpr int kSharpnessNormal = 3;

/// What a person sets for a print. Sharpness is kSharpnessNone or the library's level 0 … 6.
struct PrintSettings {
  bool colour_conversion = true;
  int sharpness = kSharpnessNone;
  std::array<std::int16_t, 9> tone{};  ///< gamma R, G, B, contrast R, G, B, brightness R, G, B
  bool matte = false;
  std::string module_folder = {};  ///< where tqr7.icc is; ends in "/"
};

/// A page with its buffers, so that converting it can be repeated and timed alone.
class PageConversion {
 public:
  PageConversion(Picture picture, PrintSettings settings);

  /// Converts the page once. Throws std::runtime_error when the library refuses it.
  void run();

  /// Three samples a pixel, as the last run wrote them.
  const std::vector<std::uint16_t>& samples() const { return samples_; }

 private:
  Picture picture_;
  PrintSettings settings_;
  std::vector<std::uint16_t> samples_;
  std::vector<unsigned char> matte_;
};

/// The samples of one conversion. Throws std::runtime_error when the library refuses the page.
std::vector<std::uint16_t> converted(const Picture& picture, const PrintSettings& settings);

}  // namespace bench

#endif  // TQR7_BENCH_COLOUR_PAGE_CONVERSION_H
