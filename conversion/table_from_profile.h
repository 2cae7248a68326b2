// SPDX-License-Identifier: Apache-2.0
//
// From a printer's ICC profile to the colour table.
#ifndef TQR7_CONVERSION_TABLE_FROM_PROFILE_H
#define TQR7_CONVERSION_TABLE_FROM_PROFILE_H

#include <cstddef>
#include <span>

#include "conversion/colour_table.h"

/// The most memory that reading a profile uses beside the profile's bytes and the table: 10 MiB.
/// Together with the largest file that is read (conversion/profile_file.h), a copy of the table and
/// the lines of a page's conversion this is less than 16 MiB.
inline constexpr std::size_t kProfileWorkingMemory = std::size_t{10} << 20;

/// Makes the table through Little CMS, from sRGB to the profile's device values: relative
/// colorimetric with black-point compensation (docs/printer-profile.md says why). Takes any bytes;
/// the profile is one of a printer, a screen or a colour space, RGB, of version 2 or 4, matrix or
/// table kind. Returns null when the table is made, else why not, in a few words; the table's
/// content is then undefined. Writes no message; any thread may call it.
const char* make_colour_table(std::span<const unsigned char> profile, ColourTable& table,
                              std::size_t workingMemory = kProfileWorkingMemory);

#endif  // TQR7_CONVERSION_TABLE_FROM_PROFILE_H
