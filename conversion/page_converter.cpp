// SPDX-License-Identifier: Apache-2.0
#include "conversion/page_converter.h"

#include <cstdint>

#include "conversion/colour_kernels.h"
#include "conversion/engine_sample.h"
#include "conversion/photo_kernels.h"
#include "conversion/sample_kernels.h"

namespace {

constexpr std::uint16_t kByteWhite = 255;

}  // namespace

bool PageConverter::prepare(const tagMVChangeParams& params, std::size_t width) {
  sharpen_ = (params.dwFlags & kChangeFlagSharpness) != 0;
  conversion_ = (params.dwFlags & kChangeFlagColorConversion) != 0;
  const bool neutral = tone_is_neutral(params);
  neutralTone_ = conversion_ && neutral;
  onlyWiden_ = !conversion_ && !sharpen_ && neutral;
  if (neutralTone_) {
    scale_ = sharpen_ ? LineScale::kFine : LineScale::kBytes;
  }
  strength_ = sharpening_strength(params.nSharpness);
  if (!planes_.reserve(line_.size(), width) || (sharpen_ && !sharpener_.reserve(width))) {
    return false;
  }
  for (std::size_t channel = 0; channel < line_.size(); ++channel) {
    line_[channel] = planes_.line(channel);
  }
  if (conversion_) {
    printer_.load(params.pszModulePath);
  }
  return neutralTone_ || onlyWiden_ ||
         tones_.make(params, sharpen_ ? kFineWhite : kByteWhite,
                     conversion_ ? kPositionWhite : kEngineWhite);
}

void PageConverter::take_line(const BandRows& source, std::size_t y) {
  if (sharpen_) {
    sharpener_.sharpen(source, y, strength_, line_);
  } else {
    split_line(source.row(y), source.width, line_);
  }
}

std::uint64_t PageConverter::convert_line(const BandRows& source, std::size_t y,
                                          unsigned char* samples) {
  if (onlyWiden_) {
    return samples_of_bytes(source.row(y), source.width, samples);
  }
  take_line(source, y);
  if (!neutralTone_) {
    tones_.apply(line_, source.width);
  }
  return conversion_ ? interpolate_line(printer_.table(), line_, scale_, source.width, samples)
                     : join_line(line_, source.width, samples);
}

RateSum PageConverter::convert(const BandRows& source, const BandRows& destination) {
  RateSum sum{0, 3 * std::uint64_t{source.width} * source.height};
  for (std::size_t y = 0; y < source.height; ++y) {
    sum.total += convert_line(source, y, destination.row(y));
  }
  return sum;
}
