// SPDX-License-Identifier: Apache-2.0
//
// ICC profiles for the tests, made with Little CMS, and its own word on what they show.
#ifndef TQR7_TESTS_UNIT_TEST_PROFILES_H
#define TQR7_TESTS_UNIT_TEST_PROFILES_H

#include <cstdint>
#include <span>
#include <vector>

namespace profiles {

using Profile = std::vector<std::uint8_t>;

/// A display whose values are sRGB.
Profile srgb();

/// The primaries of sRGB; values are amounts of light.
Profile linear();

/// As `linear`, but the device's black still reflects a hundredth of its white.
Profile grey_black();

/// The red and blue of sRGB, and the green of Adobe RGB (1998), which no sRGB screen can show.
Profile wide_green();

/// A printer of table kind, 9 points a side, PCS Lab: a gamma of 1.8, primaries of its own, a black
/// that still reflects, and yellowish paper.
Profile table_printer();

/// As `table_printer`, but matrix and curves.
Profile matrix_printer();

/// Profiles that are no printer's.
Profile grey_display();
Profile link_of_two();
Profile rgb_scanner();

/// A press whose black alone is seen, from white paper to black.
Profile black_only_press();

/// What Little CMS itself says of these colours, in double precision: device values of 14 bits to
/// sRGB as 0 … 255, neither clipped nor rounded.
std::vector<double> on_screen(const Profile& profile, std::span<const std::uint16_t> samples);

}  // namespace profiles

#endif  // TQR7_TESTS_UNIT_TEST_PROFILES_H
