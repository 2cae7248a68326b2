// SPDX-License-Identifier: Apache-2.0
#include "commands/test_page.h"

#include <algorithm>
#include <string_view>

#include "commands/bitmap_font.h"
#include "commands/colour_targets.h"
#include "commands/edge_gauge.h"

namespace {

enum class Half { None, Upper, Lower };

constexpr std::string_view kTitle = "TQR7 test page";
constexpr std::string_view kCutWords = "Cut edge: blue is the upper print, orange the lower";
constexpr int kMargin = 100;  // for the gauges
constexpr int kGap = 20;
constexpr int kLineCharacters = static_cast<int>(kLongestLabel + 1 + kLongestValue);
constexpr int kFrameDepth = 59;  // 5 mm
constexpr int kFrameWidth = 2;
constexpr int kCutBand = 8;
constexpr int kCutWordsDepth = 70;
constexpr Colour kFrame{0xB0, 0xB0, 0xB0};
constexpr Colour kUpperBand{0x00, 0x60, 0xE0};
constexpr Colour kLowerBand{0xFF, 0x80, 0x00};

// The largest scale at which all lines fit; never so small that the text cannot be read.
int words_scale(const std::vector<SettingLine>& lines, int width, int height, int largest) {
  constexpr int kSmallest = 2;
  const int by_width = width / (kLineCharacters * kGlyphAdvance);
  const int by_height = height / (std::max(static_cast<int>(lines.size()), 1) * kGlyphLineHeight);
  return std::clamp(std::min(by_width, by_height), kSmallest, largest);
}

int words_height(const std::vector<SettingLine>& lines, int scale) {
  return static_cast<int>(lines.size()) * kGlyphLineHeight * scale;
}

void draw_words(const Canvas& canvas, const std::vector<SettingLine>& lines, int scale) {
  constexpr Colour kLabel{0x60, 0x60, 0x60};
  const int value_left = static_cast<int>(kLongestLabel + 1) * kGlyphAdvance * scale;
  int top = 0;
  for (const SettingLine& line : lines) {
    draw_text(canvas, 0, top, scale, kLabel, line.label);
    draw_text(canvas, value_left, top, scale, kBlack, line.value);
    top += kGlyphLineHeight * scale;
  }
}

// The title at the left and the date at the right, on one line.
void draw_title(const Canvas& canvas, int scale, const std::string& date) {
  constexpr int kDateScale = 3;
  draw_text(canvas, 0, 0, scale, kBlack, kTitle);
  draw_text(canvas, canvas.width() - text_width(date, kDateScale),
            kCapitalHeight * (scale - kDateScale), kDateScale, kBlack, date);
}

void draw_frame(const Canvas& canvas) {
  const int width = canvas.width() - 2 * kFrameDepth;
  const int height = canvas.height() - 2 * kFrameDepth;
  canvas.fill({kFrameDepth, kFrameDepth, width, height}, kFrame);
  canvas.fill({kFrameDepth + kFrameWidth, kFrameDepth + kFrameWidth, width - 2 * kFrameWidth,
               height - 2 * kFrameWidth},
              kWhite);
}

// Each half has its own colour along the cut. If the cut is not exact, a strip of the other colour
// shows.
void draw_cut(const Canvas& canvas, Half half) {
  if (half == Half::None) {
    return;
  }
  const Edge edge = half == Half::Upper ? Edge::Bottom : Edge::Top;
  canvas.fill(place_at_edge(canvas, edge, 0, 0, canvas.width(), kCutBand),
              half == Half::Upper ? kUpperBand : kLowerBand);
  constexpr int kScale = 2;
  const Box words = place_at_edge(canvas, edge, kMargin, kCutWordsDepth,
                                  text_width(kCutWords, kScale), kCapitalHeight * kScale);
  draw_text(canvas, words.left, words.top, kScale, kBlack, kCutWords);
}

void draw_edges(const Canvas& canvas, Half half) {
  draw_frame(canvas);
  draw_cut(canvas, half);
  for (const Edge edge : {Edge::Left, Edge::Top, Edge::Right, Edge::Bottom}) {
    draw_edge_gauge(canvas, edge);
  }
}

// Side by side: colours at the left, words at the right.
void draw_strip(const Canvas& canvas, const TestPageText& text) {
  constexpr int kTitleScale = 5;
  constexpr int kTitleHeight = 56;
  constexpr int kRampHeight = 110;
  const int left_width = (canvas.width() - 2 * kGap) / 2;
  const int patches = canvas.height() - kRampHeight - kGap;
  draw_patches(canvas.part({0, 0, left_width, patches}));
  draw_grey_ramp(canvas.part({0, patches + kGap, left_width, kRampHeight}));
  const Canvas right = canvas.part(
      {left_width + 2 * kGap, 0, canvas.width() - left_width - 2 * kGap, canvas.height()});
  draw_title(right, kTitleScale, text.date);
  const int words = right.height() - kTitleHeight;
  draw_words(right.part({0, kTitleHeight, right.width(), words}), text.lines,
             words_scale(text.lines, right.width(), words, 3));
}

// Words at the left, fine lines in the space that is left.
void draw_foot(const Canvas& canvas, const TestPageText& text, int scale) {
  draw_words(canvas, text.lines, scale);
  const int left = kLineCharacters * kGlyphAdvance * scale + kGap;
  draw_fine_lines(canvas.part({left, 0, canvas.width() - left, canvas.height()}));
}

// From top to bottom: title, patches, ramps, words.
void draw_stack(const Canvas& canvas, const TestPageText& text) {
  constexpr int kTitleScale = 6;
  constexpr int kTitleHeight = 72;
  constexpr int kRoomyHeight = 1300;
  const int width = canvas.width();
  const int scale =
      words_scale(text.lines, width, canvas.height() / 2, canvas.height() > kRoomyHeight ? 4 : 3);
  const int words = words_height(text.lines, scale);
  draw_title(canvas, kTitleScale, text.date);
  draw_foot(canvas.part({0, canvas.height() - words, width, words}), text, scale);

  const int colours = canvas.height() - kTitleHeight - words - 3 * kGap;
  const int patches = colours * 11 / 20;
  const int grey = colours * 5 / 20;
  int top = kTitleHeight;
  draw_patches(canvas.part({0, top, width, patches}));
  top += patches + kGap;
  draw_grey_ramp(canvas.part({0, top, width, grey}));
  top += grey + kGap;
  draw_ribbon_ramps(canvas.part({0, top, width, colours - patches - grey}));
}

void draw_print(const Canvas& canvas, Half half, const TestPageText& text) {
  draw_edges(canvas, half);
  const Canvas inside =
      canvas.part({kMargin, kMargin, canvas.width() - 2 * kMargin, canvas.height() - 2 * kMargin});
  if (inside.width() > 3 * inside.height()) {
    draw_strip(inside, text);
  } else {
    draw_stack(inside, text);
  }
}

}  // namespace

int test_pages_of_sheet(const tagPRINTSETTING& settings) {
  return settings.nJoinPages == 1 ? 2 : 1;
}

void draw_test_page(const Canvas& canvas, const tagPRINTSETTING& settings, int number,
                    const TestPageText& text) {
  if (settings.nJoinPages == 1) {
    // The first page of a joined sheet becomes its lower half.
    draw_print(canvas, number == 1 ? Half::Lower : Half::Upper, text);
  } else if (settings.byTwoUpMode != 0) {
    const int split = static_cast<int>(settings.nTwoUpSplit);
    draw_print(canvas.part({0, 0, canvas.width(), split}), Half::Upper, text);
    draw_print(canvas.part({0, split, canvas.width(), canvas.height() - split}), Half::Lower, text);
  } else {
    draw_print(canvas, Half::None, text);
  }
}
