// SPDX-License-Identifier: Apache-2.0
//
// Black and white: print-color-mode, which print dialogs and phones offer for every colour printer.
#ifndef TQR7_PHOTO_GREY_H
#define TQR7_PHOTO_GREY_H

#include <cups/cups.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace photo {

/// How bright red, green and blue look; their sum is 1.
inline constexpr std::array<double, 3> kLuma = {0.2126, 0.7152, 0.0722};

/// Whether print-color-mode is one of IPP's modes without colours. The printer makes its greys of
/// all its dyes and has no mode of black dots only, so these all ask for the same.
bool asks_for_grey(int count, cups_option_t* options);

/// Gives each pixel of 8-bit RGB the grey that looks as bright. Greys stay as they are.
void turn_grey(std::uint8_t* rgb, std::size_t pixels);

}  // namespace photo

#endif  // TQR7_PHOTO_GREY_H
