// SPDX-License-Identifier: Apache-2.0
//
// The conversion library as a test scripts it: takes the place of MVChangeImage, paints each page
// in one value and keeps what it was given.
#ifndef TQR7_TESTS_UNIT_SCRIPTED_CONVERSION_H
#define TQR7_TESTS_UNIT_SCRIPTED_CONVERSION_H

#include <deque>
#include <string>
#include <vector>

#include "image/band_image.h"
#include "image/mv_change_image.h"

/// What the library does with one page.
struct Conversion {
  long result = 0;
  unsigned char rgb_rate = 0;
  unsigned char op_rate = 0;
  char paint = 'x';        ///< every byte of the converted image
  char matte_paint = 'm';  ///< every byte of the matte plane, where there is one
};

/// What the library was given for one page.
struct ConversionCall {
  tagMVBandImageParams source;
  tagMVChangeParams params;
  tagMVBandImageParams destination;
  tagMVBandImageParams matte;  ///< zero where none was given
  const tagMVBandImageParams* matte_record;
  unsigned char rgb_rate_before;
  unsigned char op_rate_before;
  std::string module_path;
  std::string first_source_line;
  bool destination_was_white;  ///< every byte 0xFF
};

/// The next pages are converted so; pages beyond the last one by Conversion().
std::deque<Conversion>& NextConversions();
const std::vector<ConversionCall>& ConversionCalls();
void ResetConversions();

#endif  // TQR7_TESTS_UNIT_SCRIPTED_CONVERSION_H
