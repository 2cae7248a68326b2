// SPDX-License-Identifier: Apache-2.0
//
// The test page's letters: a bitmap font of printable ASCII, enlarged by whole numbers.
#ifndef TQR7_COMMANDS_BITMAP_FONT_H
#define TQR7_COMMANDS_BITMAP_FONT_H

#include <string_view>

#include "commands/canvas.h"

// A character's cell at scale 1, in dots.
inline constexpr int kGlyphWidth = 5;
inline constexpr int kGlyphHeight = 9;       ///< with the descenders below the line
inline constexpr int kCapitalHeight = 7;     ///< above the line
inline constexpr int kGlyphAdvance = 6;      ///< from one character to the next
inline constexpr int kGlyphLineHeight = 10;  ///< from one line to the next

/// Dots from the first character's left edge to the last one's right edge.
int text_width(std::string_view text, int scale);

/// Draws one line of text. Characters that the font does not have become "?". The text is cut off
/// at the canvas's edge.
void draw_text(const Canvas& canvas, int left, int top, int scale, Colour colour,
               std::string_view text);

#endif  // TQR7_COMMANDS_BITMAP_FONT_H
