// SPDX-License-Identifier: Apache-2.0
//
// The 13 paper sizes as the printer is told of them: dots for the pages, bytes for the headers.
#ifndef TQR7_TESTS_PAPERS_H
#define TQR7_TESTS_PAPERS_H

#include <array>

namespace filter_test {

using Bytes4 = std::array<unsigned char, 4>;

/// One paper size. The byte groups stand in the headers as they stand here.
struct Paper {
  const char* choice;  ///< the PPD's PageSize choice
  int page_width;      ///< dots of a raster page that fills the image area
  int page_height;
  Bytes4 sheet;     ///< job header, offset 6: width and height of the sheet
  Bytes4 two_up;    ///< job header, offset 15: two prints on a sheet
  Bytes4 place;     ///< image header, offset 6: left and top of the image
  Bytes4 image;     ///< image header, offset 10: width and height of the image sent
  Bytes4 matte;     ///< image header, offset 20: width and height of the matte plane
  int matte_width;  ///< the same in dots
  int matte_height;
};

inline constexpr Bytes4 kOnePrint = {0x00, 0x00, 0x00, 0x00};
inline constexpr Bytes4 kTwoPrints = {0x01, 0x02, 0x68, 0x01};
inline constexpr Bytes4 kBorderless = {0x00, 0x00, 0x00, 0x00};
inline constexpr Bytes4 kWhiteBorder = {0x00, 0x54, 0x00, 0x4A};

// clang-format off
inline constexpr Paper kPapers[] = {
    {"RQ_9x13", 1550, 1082,
     {0x06, 0x0E, 0x04, 0x3A}, kOnePrint, kBorderless,
     {0x06, 0x0E, 0x04, 0x3A}, {0x06, 0x0E, 0x04, 0x46}, 1550, 1094},
    {"RQ_10x15", 1852, 1232,
     {0x07, 0x3C, 0x04, 0xD0}, kOnePrint, kBorderless,
     {0x07, 0x3C, 0x04, 0xD0}, {0x07, 0x3C, 0x04, 0xDC}, 1852, 1244},
    {"RQ_13x18", 1550, 2134,
     {0x06, 0x0E, 0x08, 0x56}, kOnePrint, kBorderless,
     {0x06, 0x0E, 0x08, 0x56}, {0x06, 0x0E, 0x08, 0x62}, 1550, 2146},
    {"RQ_15x20", 1852, 2434,
     {0x07, 0x3C, 0x09, 0x82}, kOnePrint, kBorderless,
     {0x07, 0x3C, 0x09, 0x82}, {0x07, 0x3C, 0x09, 0x8E}, 1852, 2446},
    {"RQ_5x15x2_1", 1852, 1232,
     {0x07, 0x3C, 0x04, 0xD0}, kTwoPrints, kBorderless,
     {0x07, 0x3C, 0x04, 0xD0}, {0x07, 0x3C, 0x04, 0xDC}, 1852, 1244},
    {"RQ_5x15x2_2", 1852, 616,
     {0x07, 0x3C, 0x04, 0xD0}, kTwoPrints, kBorderless,
     {0x07, 0x3C, 0x04, 0xD0}, {0x07, 0x3C, 0x04, 0xDC}, 1852, 1244},
    {"RQ_5x15", 1852, 631,
     {0x07, 0x3C, 0x02, 0x77}, kOnePrint, kBorderless,
     {0x07, 0x3C, 0x02, 0x77}, {0x07, 0x3C, 0x02, 0x83}, 1852, 643},
    {"RQ_15x15", 1852, 1833,
     {0x07, 0x3C, 0x07, 0x29}, kOnePrint, kBorderless,
     {0x07, 0x3C, 0x07, 0x29}, {0x07, 0x3C, 0x07, 0x35}, 1852, 1845},
    {"RQ_13x13", 1550, 1533,
     {0x06, 0x0E, 0x05, 0xFD}, kOnePrint, kBorderless,
     {0x06, 0x0E, 0x05, 0xFD}, {0x06, 0x0E, 0x06, 0x09}, 1550, 1545},
    {"RQ_9x13_WB", 1382, 934,
     {0x06, 0x0E, 0x04, 0x3A}, kOnePrint, kWhiteBorder,
     {0x05, 0x66, 0x03, 0xA6}, {0x06, 0x0E, 0x04, 0x46}, 1550, 1094},
    {"RQ_10x15_WB", 1684, 1084,
     {0x07, 0x3C, 0x04, 0xD0}, kOnePrint, kWhiteBorder,
     {0x06, 0x94, 0x04, 0x3C}, {0x07, 0x3C, 0x04, 0xDC}, 1852, 1244},
    {"RQ_13x18_WB", 1382, 1986,
     {0x06, 0x0E, 0x08, 0x56}, kOnePrint, kWhiteBorder,
     {0x05, 0x66, 0x07, 0xC2}, {0x06, 0x0E, 0x08, 0x62}, 1550, 2146},
    {"RQ_15x20_WB", 1684, 2286,
     {0x07, 0x3C, 0x09, 0x82}, kOnePrint, kWhiteBorder,
     {0x06, 0x94, 0x08, 0xEE}, {0x07, 0x3C, 0x09, 0x8E}, 1852, 2446},
};
// clang-format on

inline constexpr const Paper& k9x13 = kPapers[0];
inline constexpr const Paper& k10x15 = kPapers[1];
inline constexpr const Paper& kJoined = kPapers[5];
inline constexpr const Paper& k5x15 = kPapers[6];
inline constexpr const Paper& k9x13WhiteBorder = kPapers[9];

}  // namespace filter_test

#endif  // TQR7_TESTS_PAPERS_H
