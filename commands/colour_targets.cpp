// SPDX-License-Identifier: Apache-2.0
#include "commands/colour_targets.h"

#include <cstdio>
#include <iterator>
#include <string>

#include "commands/bitmap_font.h"

namespace {

constexpr int kPatchRows = 3;
constexpr int kPatchColumns = 8;
constexpr Colour kPatches[kPatchRows][kPatchColumns] = {
    // Red, green, blue, cyan, magenta, yellow, orange, violet.
    {{0xFF, 0x00, 0x00},
     {0x00, 0xFF, 0x00},
     {0x00, 0x00, 0xFF},
     {0x00, 0xFF, 0xFF},
     {0xFF, 0x00, 0xFF},
     {0xFF, 0xFF, 0x00},
     {0xFF, 0x80, 0x00},
     {0x80, 0x00, 0xFF}},
    // Skin from light to dark, sky, grass.
    {{0xF6, 0xD7, 0xC3},
     {0xE8, 0xB9, 0x99},
     {0xD3, 0x9C, 0x78},
     {0xB4, 0x78, 0x53},
     {0x8C, 0x56, 0x36},
     {0x5A, 0x38, 0x25},
     {0x7F, 0xB2, 0xE5},
     {0x5E, 0x8C, 0x3A}},
    {{0x00, 0x00, 0x00},
     {0x24, 0x24, 0x24},
     {0x49, 0x49, 0x49},
     {0x6D, 0x6D, 0x6D},
     {0x92, 0x92, 0x92},
     {0xB6, 0xB6, 0xB6},
     {0xDB, 0xDB, 0xDB},
     {0xFF, 0xFF, 0xFF}},
};

constexpr int kPatchGap = 6;
constexpr int kPatchPadding = 8;
constexpr int kSmallLabel = 2;
constexpr int kLargeLabel = 3;
constexpr Colour kOutline{0xB0, 0xB0, 0xB0};

constexpr int kScaleHeight = 32;  // below the grey ramp
constexpr int kScaleTick = 8;

constexpr Colour kRibbon[] = {{0x00, 0xFF, 0xFF}, {0xFF, 0x00, 0xFF}, {0xFF, 0xFF, 0x00}};

// How bright the colour looks, 0 … 255.
int brightness(Colour colour) {
  return (colour.red * 299 + colour.green * 587 + colour.blue * 114) / 1000;
}

std::string hexadecimal(Colour colour) {
  char text[8];
  std::snprintf(text, sizeof text, "%02X%02X%02X", colour.red, colour.green, colour.blue);
  return text;
}

void draw_patch(const Canvas& patch, Colour colour) {
  const bool bright = brightness(colour) > 110;
  if (brightness(colour) == 255) {
    patch.fill({0, 0, patch.width(), patch.height()}, kOutline);
    patch.fill({2, 2, patch.width() - 4, patch.height() - 4}, colour);
  } else {
    patch.fill({0, 0, patch.width(), patch.height()}, colour);
  }
  const std::string label = hexadecimal(colour);
  const bool roomy = text_width(label, kLargeLabel) + 2 * kPatchPadding <= patch.width();
  const int scale = roomy ? kLargeLabel : kSmallLabel;
  draw_text(patch, kPatchPadding, patch.height() - kPatchPadding - kCapitalHeight * scale, scale,
            bright ? kBlack : kWhite, label);
}

// Where the n-th of `count` cells begins on a length.
int cell_start(int length, int n, int count) {
  return length * n / count;
}

std::uint8_t level(int x, int width) {
  return static_cast<std::uint8_t>(width < 2 ? 0 : 255 * x / (width - 1));
}

// From white to the colour: the difference from white grows with x.
Colour tint(Colour colour, int x, int width) {
  const int share = level(x, width);
  const auto mix = [share](std::uint8_t channel) {
    return static_cast<std::uint8_t>(255 - (255 - channel) * share / 255);
  };
  return {mix(colour.red), mix(colour.green), mix(colour.blue)};
}

// Stripes of `dots` across the box, with gaps as wide as the stripes.
void draw_stripes(const Canvas& canvas, const Box& box, int dots, bool upright) {
  const Canvas field = canvas.part(box);
  const int length = upright ? field.width() : field.height();
  for (int at = 0; at + dots <= length; at += 2 * dots) {
    field.fill(upright ? Box{at, 0, dots, field.height()} : Box{0, at, field.width(), dots},
               kBlack);
  }
}

}  // namespace

void draw_patches(const Canvas& canvas) {
  for (int row = 0; row < kPatchRows; ++row) {
    const int top = cell_start(canvas.height() + kPatchGap, row, kPatchRows);
    const int bottom = cell_start(canvas.height() + kPatchGap, row + 1, kPatchRows) - kPatchGap;
    for (int column = 0; column < kPatchColumns; ++column) {
      const int left = cell_start(canvas.width() + kPatchGap, column, kPatchColumns);
      const int right =
          cell_start(canvas.width() + kPatchGap, column + 1, kPatchColumns) - kPatchGap;
      draw_patch(canvas.part({left, top, right - left, bottom - top}), kPatches[row][column]);
    }
  }
}

void draw_grey_ramp(const Canvas& canvas) {
  const int height = canvas.height() - kScaleHeight;
  for (int x = 0; x < canvas.width(); ++x) {
    const std::uint8_t grey = level(x, canvas.width());
    canvas.fill({x, 0, 1, height}, {grey, grey, grey});
  }
  // The outline shows where the ramp ends, which is white there.
  canvas.fill({canvas.width() - 2, 0, 2, height}, kOutline);
  constexpr int kMarks = 4;
  for (int mark = 0; mark <= kMarks; ++mark) {
    const std::string label = std::to_string(100 * mark / kMarks) + "%";
    const int x = (canvas.width() - 2) * mark / kMarks;
    const int room = text_width(label, kSmallLabel);
    canvas.fill({x, height + 2, 2, kScaleTick}, kBlack);
    draw_text(canvas, (canvas.width() - room) * mark / kMarks, height + kScaleTick + 6, kSmallLabel,
              kBlack, label);
  }
}

void draw_ribbon_ramps(const Canvas& canvas) {
  constexpr int kRamps = static_cast<int>(std::size(kRibbon));
  for (int ramp = 0; ramp < kRamps; ++ramp) {
    const int top = cell_start(canvas.height(), ramp, kRamps);
    const int bottom = cell_start(canvas.height(), ramp + 1, kRamps);
    for (int x = 0; x < canvas.width(); ++x) {
      canvas.fill({x, top, 1, bottom - top}, tint(kRibbon[ramp], x, canvas.width()));
    }
  }
}

void draw_fine_lines(const Canvas& canvas) {
  constexpr int kWidths = 4;
  constexpr int kFieldGap = 16;
  constexpr int kLabelRoom = 2 * kGlyphAdvance * kSmallLabel;
  const int width = (canvas.width() - kLabelRoom - kFieldGap) / 2;
  for (int row = 0; row < kWidths; ++row) {
    const int dots = row + 1;
    const int top = cell_start(canvas.height() + kFieldGap, row, kWidths);
    const int bottom = cell_start(canvas.height() + kFieldGap, row + 1, kWidths) - kFieldGap;
    draw_text(canvas, 0, (top + bottom) / 2 - kCapitalHeight, kSmallLabel, kBlack,
              std::to_string(dots));
    draw_stripes(canvas, {kLabelRoom, top, width, bottom - top}, dots, true);
    draw_stripes(canvas, {kLabelRoom + width + kFieldGap, top, width, bottom - top}, dots, false);
  }
}
