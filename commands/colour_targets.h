// SPDX-License-Identifier: Apache-2.0
//
// What the test page shows of colour and detail: patches, ramps, and fine lines.
#ifndef TQR7_COMMANDS_COLOUR_TARGETS_H
#define TQR7_COMMANDS_COLOUR_TARGETS_H

#include "commands/canvas.h"

/// Three rows of eight patches over the whole canvas, each with its value in hexadecimal: primaries
/// and secondaries, skin tones with sky and grass, greys.
void draw_patches(const Canvas& canvas);

/// A ramp from black at the left edge to white at the right one, with a scale in per cent below.
void draw_grey_ramp(const Canvas& canvas);

/// Three ramps, one above another, from white to what one panel of the ribbon gives: cyan, magenta,
/// yellow.
void draw_ribbon_ramps(const Canvas& canvas);

/// Lines of 1, 2, 3 and 4 dots with as much room between them, upright and lying.
void draw_fine_lines(const Canvas& canvas);

#endif  // TQR7_COMMANDS_COLOUR_TARGETS_H
