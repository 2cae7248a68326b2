// SPDX-License-Identifier: Apache-2.0
//
// Converts one page from the photo's bytes to the print engine's samples, a line at a time:
// sharpening, tone, colour. It keeps only a few lines and the tables in memory.
#ifndef TQR7_CONVERSION_PAGE_CONVERTER_H
#define TQR7_CONVERSION_PAGE_CONVERTER_H

#include <cstddef>
#include <cstdint>

#include "conversion/band_rows.h"
#include "conversion/colour_kernels.h"
#include "conversion/line_planes.h"
#include "conversion/printer_table.h"
#include "conversion/rates.h"
#include "conversion/sharpening.h"
#include "conversion/tone_tables.h"
#include "image/mv_change_image.h"

class PageConverter {
 public:
  /// Allocates all memory that a page of this width needs, and computes its tables: after that the
  /// conversion cannot fail. False without memory.
  bool prepare(const tagMVChangeParams& params, std::size_t width);

  /// Converts the page, and returns the sum of the samples written. Only once after prepare().
  RateSum convert(const BandRows& source, const BandRows& destination);

 private:
  void take_line(const BandRows& source, std::size_t y);
  std::uint64_t convert_line(const BandRows& source, std::size_t y, unsigned char* samples);

  bool sharpen_ = false;
  bool conversion_ = false;   ///< colours go through the printer's table
  bool neutralTone_ = false;  ///< the tone sliders need no tables
  bool onlyWiden_ = false;    ///< no change is requested: only the scale changes
  LineScale scale_ = LineScale::kPlaces;
  int strength_ = 0;
  LinePlanes line_{};
  LineMemory planes_;
  Sharpener sharpener_;
  ToneTables tones_;
  PrinterTable printer_;
};

#endif  // TQR7_CONVERSION_PAGE_CONVERTER_H
