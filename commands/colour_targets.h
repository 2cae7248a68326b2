// SPDX-License-Identifier: Apache-2.0
//
// The parts of the test page that show colour and detail: patches, ramps and fine lines.
#ifndef TQR7_COMMANDS_COLOUR_TARGETS_H
#define TQR7_COMMANDS_COLOUR_TARGETS_H

#include "commands/canvas.h"

/// Draws three rows of eight patches over the whole canvas, each with its value in hexadecimal:
/// primaries and secondaries; skin tones, sky and grass; greys.
void draw_patches(const Canvas& canvas);

/// Draws a ramp from black at the left edge to white at the right edge, with a scale in per cent
/// below.
void draw_grey_ramp(const Canvas& canvas);

/// Draws three ramps below each other, from white to the full colour of one panel of the ribbon:
/// cyan, magenta, yellow.
void draw_ribbon_ramps(const Canvas& canvas);

/// Draws vertical and horizontal lines of 1, 2, 3 and 4 dots, with gaps as wide as the lines.
void draw_fine_lines(const Canvas& canvas);

#endif  // TQR7_COMMANDS_COLOUR_TARGETS_H
