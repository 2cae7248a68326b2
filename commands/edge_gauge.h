// SPDX-License-Identifier: Apache-2.0
//
// A gauge at an edge of a print, that tells a person how many dots were cut off there: a staircase
// whose steps reach 5, 10, … 50 dots into the print, and a ruler in millimetres.
#ifndef TQR7_COMMANDS_EDGE_GAUGE_H
#define TQR7_COMMANDS_EDGE_GAUGE_H

#include "commands/canvas.h"

enum class Edge { Left, Top, Right, Bottom };

inline constexpr int kGaugeDepth = 92;    ///< dots from the edge that a gauge takes
inline constexpr int kGaugeLength = 280;  ///< dots along the edge

/// Dots at 300 to the inch from the edge to this many half millimetres.
int half_millimetres(int count);

/// What lies `depth` dots from the edge and `along` it, for edges that are alike but for their
/// side. `along` runs rightwards or downwards.
Box place_at_edge(const Canvas& canvas, Edge edge, int along, int depth, int along_size,
                  int depth_size);

/// Draws the gauge at the middle of the edge, on white.
void draw_edge_gauge(const Canvas& canvas, Edge edge);

#endif  // TQR7_COMMANDS_EDGE_GAUGE_H
