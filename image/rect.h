// SPDX-License-Identifier: Apache-2.0
//
// Rectangles in pixels, with exclusive right and bottom edges, and the arithmetic that places one
// band image inside another.
#ifndef TQR7_IMAGE_RECT_H
#define TQR7_IMAGE_RECT_H

#include <cstdint>

namespace MV_TYPEDEF {

/// Columns left … right − 1 and rows top … bottom − 1, in the coordinates of a page or sheet.
struct tagRECT {
  std::int64_t left;
  std::int64_t top;
  std::int64_t right;
  std::int64_t bottom;
};

}  // namespace MV_TYPEDEF

/// The distance from one edge to another. Edges may come from outside: a distance outside the
/// number range wraps instead of being undefined.
inline std::int64_t edge_distance(std::int64_t from, std::int64_t to) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(to) -
                                   static_cast<std::uint64_t>(from));
}

/// Columns of a rectangle in pixels; negative for an inverted one.
inline std::int64_t rect_width(const MV_TYPEDEF::tagRECT& rect) {
  return edge_distance(rect.left, rect.right);
}

/// Rows of a rectangle in pixels; negative for an inverted one.
inline std::int64_t rect_height(const MV_TYPEDEF::tagRECT& rect) {
  return edge_distance(rect.top, rect.bottom);
}

/// 1 when the rectangle covers no pixel (inverted ones included) or is null, else 0.
int IsRectEmpty(const MV_TYPEDEF::tagRECT* rect);

/// Stores the four edges as given, in order or not. 0 for a null rectangle, else 1.
int SetRect(MV_TYPEDEF::tagRECT* rect, int left, int top, int right, int bottom);

/// Stores the area that both sources cover and returns 1; stores {0, 0, 0, 0} and returns 0 where
/// they share none. The result may be one of the sources. A null argument gives 0 and stores
/// nothing.
int IntersectRect(MV_TYPEDEF::tagRECT* result, const MV_TYPEDEF::tagRECT* first,
                  const MV_TYPEDEF::tagRECT* second);

/// Moves the rectangle by dx columns and dy rows. 0 for a null rectangle, else 1.
int OffsetRect(MV_TYPEDEF::tagRECT* rect, int dx, int dy);

#endif  // TQR7_IMAGE_RECT_H
