// SPDX-License-Identifier: Apache-2.0
//
// The print stream as the printer reads it, composed from the tables of its commands.
#ifndef TQR7_TESTS_FILTER_EXPECTED_STREAM_H
#define TQR7_TESTS_FILTER_EXPECTED_STREAM_H

#include <string>

#include "tests/filter/raster_maker.h"
#include "tests/papers.h"

namespace filter_test {

/// What a job's settings put into the headers.
struct Settings {
  const Paper* paper = &k9x13;
  unsigned char wait = 5;
  unsigned char margin_cut_off = 0;
  unsigned char finish = 0;
  unsigned char mode = 0;
  unsigned char rgb_rate = 33;  ///< what the stand-in conversion reports unless told otherwise
  unsigned char op_rate = 44;

  bool matte() const { return finish == 3; }
  Settings WithRates(unsigned char rgb, unsigned char op) const;
};

inline constexpr unsigned char kMatte = 3;
inline constexpr int kFirstSecond = 7;  ///< the frozen clock reads 05:06:07 on 4 March 2026

std::string StatusRequest();
std::string ReadinessQuery(const Settings& settings);
std::string JobHeader(const Settings& settings);
/// `second`: of the time stamp, whose other fields are the frozen clock's.
std::string ImageHeader(const Settings& settings, int second = kFirstSecond);
/// The stand-in's samples of a page.
std::string ImageData(const Pixels& page);
/// As many pixels of the sheet's own white.
std::string BlankData(int width, int height);
/// The stand-in's matte plane, as written by its call of this number.
std::string MatteData(const Paper& paper, int call = 1);
std::string PrintOut(unsigned char wait = 5);

/// All of one sheet that a ready printer takes: both questions, the headers and the planes.
/// `image` is ImageData; `matte_call` the conversion that made the matte plane, if there is one.
std::string Sheet(const Settings& settings, const std::string& image, int matte_call = 1,
                  int second = kFirstSecond);

}  // namespace filter_test

#endif  // TQR7_TESTS_FILTER_EXPECTED_STREAM_H
