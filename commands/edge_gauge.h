// SPDX-License-Identifier: Apache-2.0
//
// A gauge at an edge of a print, which shows a person how many dots were cut off there. It has a
// staircase whose steps reach 5, 10, … 50 dots into the print, and a ruler in millimetres.
#ifndef TQR7_COMMANDS_EDGE_GAUGE_H
#define TQR7_COMMANDS_EDGE_GAUGE_H

#include "commands/canvas.h"

enum class Edge { Left, Top, Right, Bottom };

inline constexpr int kGaugeDepth = 92;    ///< dots, away from the edge
inline constexpr int kGaugeLength = 280;  ///< dots, along the edge

/// The distance of this many half millimetres, in dots at 300 dpi.
int half_millimetres(int count);

/// A place by its distance from the edge (`depth`) and along the edge (`along`, to the right or
/// down), so that the same code draws at all four edges.
Box place_at_edge(const Canvas& canvas, Edge edge, int along, int depth, int along_size,
                  int depth_size);

/// Draws the gauge on white, at the middle of the edge.
void draw_edge_gauge(const Canvas& canvas, Edge edge);

#endif  // TQR7_COMMANDS_EDGE_GAUGE_H
