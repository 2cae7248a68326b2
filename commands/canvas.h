// SPDX-License-Identifier: Apache-2.0
//
// A rectangle of 24-bit RGB pixels to draw on. Nothing is drawn outside of it.
#ifndef TQR7_COMMANDS_CANVAS_H
#define TQR7_COMMANDS_CANVAS_H

#include <cstddef>
#include <cstdint>

struct Colour {
  std::uint8_t red;
  std::uint8_t green;
  std::uint8_t blue;
};

inline constexpr Colour kBlack{0, 0, 0};
inline constexpr Colour kWhite{255, 255, 255};

/// In dots, from the canvas's top left corner.
struct Box {
  int left;
  int top;
  int width;
  int height;
};

/// Draws into pixels that the caller owns: `width` × `height` pixels of 3 bytes, top row first,
/// without a gap between rows. A canvas is a view and cheap to copy.
class Canvas {
 public:
  Canvas(unsigned char* pixels, int width, int height);

  int width() const { return width_; }
  int height() const { return height_; }

  /// A canvas on a part of this one, cut to this canvas.
  Canvas part(const Box& box) const;

  /// Fills the part of the box that is on the canvas.
  void fill(const Box& box, Colour colour) const;

 private:
  Box clip(const Box& box) const;

  unsigned char* pixels_;
  int width_;
  int height_;
  std::ptrdiff_t stride_;  ///< bytes from row to row
};

#endif  // TQR7_COMMANDS_CANVAS_H
