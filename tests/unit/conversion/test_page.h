// SPDX-License-Identifier: Apache-2.0
//
// Pages for the conversion library's tests: bands with known bytes around and between their lines.
#ifndef TQR7_TESTS_UNIT_CONVERSION_TEST_PAGE_H
#define TQR7_TESTS_UNIT_CONVERSION_TEST_PAGE_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "image/mv_change_image.h"

enum class LineOrder { kTopDown, kBottomUp };

/// How a band lies in memory.
struct BandLayout {
  LineOrder order = LineOrder::kTopDown;
  std::size_t padding = 0;      ///< bytes after each line but the last in memory
  unsigned char canary = 0xA5;  ///< every byte before it is written
  std::int64_t left = 0;        ///< place of its top left pixel
  std::int64_t top = 0;
  std::size_t bytesBefore = 16;  ///< canaries ahead of the first line
};

/// A band in a buffer of its own, which ends with the last line's last pixel.
class TestBand {
 public:
  TestBand(std::size_t width, std::size_t height, std::size_t bytesPerPixel,
           const BandLayout& layout = {});
  TestBand(const TestBand&) = delete;
  TestBand& operator=(const TestBand&) = delete;

  unsigned char* row(std::size_t y);
  const unsigned char* row(std::size_t y) const;
  std::uint16_t sample(std::size_t x, std::size_t y, std::size_t channel) const;
  void setRgb(std::size_t x, std::size_t y, std::array<unsigned char, 3> rgb);

  /// The rows from top to bottom without anything between them.
  std::vector<unsigned char> pixels() const;
  /// Whether each byte that belongs to no pixel still holds the canary.
  bool surroundingsUntouched() const;
  /// Whether every byte, pixels too, still holds the canary.
  bool untouched() const;

  tagMVBandImageParams record{};

 private:
  std::size_t width_;
  std::size_t height_;
  std::size_t bytesPerPixel_;
  BandLayout layout_;
  std::vector<unsigned char> bytes_;
};

/// The settings of a job without any adjustment: conversion off, sharpness None.
tagMVChangeParams plain_params();

/// What one call gave.
struct Converted {
  long code = -1;
  std::vector<std::uint16_t> samples;  ///< three a pixel, rows from top to bottom
  unsigned char rgbRate = 0xA5;
  unsigned char opRate = 0xA5;
};

/// One pixel of a picture at column x and row y.
using Picture = std::function<std::array<unsigned char, 3>(std::size_t x, std::size_t y)>;

/// Converts a picture, top row first, without a matte band.
Converted convert(std::size_t width, std::size_t height, const tagMVChangeParams& params,
                  const Picture& picture);

/// The page of 256 × 1 pixels whose pixel x is grey of value x.
Converted convert_grey_ramp(const tagMVChangeParams& params);

/// Every place of a vector that holds one channel of `samples`.
std::vector<std::uint16_t> channel_of(const std::vector<std::uint16_t>& samples,
                                      std::size_t channel);

/// A picture of differing neighbours in all channels, for comparing whole pages.
std::array<unsigned char, 3> busy_picture(std::size_t x, std::size_t y);

#endif  // TQR7_TESTS_UNIT_CONVERSION_TEST_PAGE_H
