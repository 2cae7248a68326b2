// SPDX-License-Identifier: Apache-2.0
#include "commands/edge_gauge.h"

#include <string>

#include "commands/bitmap_font.h"

namespace {

constexpr int kSteps = 10;
constexpr int kDotsAStep = 5;
constexpr int kStepWidth = 16;
constexpr int kRulerPlace = 212;  // along the edge, from the gauge's start
constexpr int kRulerTick = 24;
constexpr int kRulerHalfTick = 12;
constexpr int kLineWidth = 2;
constexpr int kHalfMillimetres = 10;
constexpr int kLabelDepth = 66;
constexpr int kLabelScale = 2;
constexpr Colour kSecondStep{150, 150, 150};  // so that neighbouring steps differ

bool is_upright(Edge edge) {
  return edge == Edge::Left || edge == Edge::Right;
}

// Letters are upright at every edge. Their middle is at `along`.
void draw_label(const Canvas& canvas, Edge edge, int along, const std::string& text) {
  const int width = text_width(text, kLabelScale);
  const int height = kCapitalHeight * kLabelScale;
  const Box box = is_upright(edge)
                      ? place_at_edge(canvas, edge, along - height / 2, kLabelDepth, height, width)
                      : place_at_edge(canvas, edge, along - width / 2, kLabelDepth, width, height);
  draw_text(canvas, box.left, box.top, kLabelScale, kBlack, text);
}

void draw_steps(const Canvas& canvas, Edge edge, int start) {
  for (int step = 1; step <= kSteps; ++step) {
    const int along = start + (step - 1) * kStepWidth;
    const int dots = step * kDotsAStep;
    const bool second = step % 2 == 0;
    canvas.fill(place_at_edge(canvas, edge, along, 0, kStepWidth, dots),
                second ? kSecondStep : kBlack);
    if (second) {
      draw_label(canvas, edge, along + kStepWidth / 2, std::to_string(dots));
    }
  }
}

void draw_ruler(const Canvas& canvas, Edge edge, int start) {
  const int end = half_millimetres(kHalfMillimetres) + kLineWidth;
  canvas.fill(place_at_edge(canvas, edge, start, 0, kLineWidth, end), kBlack);
  for (int half = 1; half <= kHalfMillimetres; ++half) {
    const int length = half % 2 == 0 ? kRulerTick : kRulerHalfTick;
    canvas.fill(place_at_edge(canvas, edge, start, half_millimetres(half), length, kLineWidth),
                kBlack);
  }
  const std::string label = std::to_string(kHalfMillimetres / 2) + " mm";
  draw_label(canvas, edge, start + kRulerTick / 2, is_upright(edge) ? label.substr(0, 1) : label);
}

}  // namespace

int half_millimetres(int count) {
  constexpr int kDotsInAnInch = 300;
  constexpr int kTenthsInAnInch = 254;  // of a millimetre
  // count × 0.5 mm × 300 / 25.4 mm, to the nearest dot.
  return (count * kDotsInAnInch * 5 + kTenthsInAnInch / 2) / kTenthsInAnInch;
}

Box place_at_edge(const Canvas& canvas, Edge edge, int along, int depth, int along_size,
                  int depth_size) {
  switch (edge) {
    case Edge::Left:
      return {depth, along, depth_size, along_size};
    case Edge::Right:
      return {canvas.width() - depth - depth_size, along, depth_size, along_size};
    case Edge::Top:
      return {along, depth, along_size, depth_size};
    case Edge::Bottom:
      return {along, canvas.height() - depth - depth_size, along_size, depth_size};
  }
  return {};
}

void draw_edge_gauge(const Canvas& canvas, Edge edge) {
  const int length = is_upright(edge) ? canvas.height() : canvas.width();
  const int start = (length - kGaugeLength) / 2;
  canvas.fill(place_at_edge(canvas, edge, start, 0, kGaugeLength, kGaugeDepth), kWhite);
  draw_steps(canvas, edge, start + kStepWidth);
  draw_ruler(canvas, edge, start + kRulerPlace);
}
