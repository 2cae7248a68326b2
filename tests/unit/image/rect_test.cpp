// SPDX-License-Identifier: Apache-2.0
//
// Rectangles: emptiness, storing, intersecting, moving.
#include "image/rect.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <ostream>

#include "tests/unit/bytes.h"

using MV_TYPEDEF::tagRECT;

namespace MV_TYPEDEF {

static bool operator==(const tagRECT& a, const tagRECT& b) {
  return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

static std::ostream& operator<<(std::ostream& out, const tagRECT& rect) {
  return out << "{" << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom
             << "}";
}

}  // namespace MV_TYPEDEF

TEST(Rect, IsFourSigned64BitEdgesInTheirOrder) {
  ASSERT_EQ(sizeof(tagRECT), 32U);
  tagRECT rect{};
  std::memcpy(&rect,
              Bytes({0x01, 0,    0,    0,    0,    0,    0,    0,      // left
                     0x02, 0,    0,    0,    0,    0,    0,    0x80,   // top
                     0x03, 0,    0,    0,    0x01, 0,    0,    0,      // right
                     0xFC, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF})  // bottom
                  .data(),
              32);
  EXPECT_EQ(rect.left, 1);
  EXPECT_EQ(rect.top, INT64_MIN + 2);
  EXPECT_EQ(rect.right, 0x100000003);
  EXPECT_EQ(rect.bottom, -4);
}

TEST(IsRectEmpty, WithoutWidthOrHeightItIs) {
  const tagRECT no_width = {0, 0, 0, 5};
  const tagRECT no_height = {0, 5, 5, 5};
  EXPECT_EQ(IsRectEmpty(&no_width), 1);
  EXPECT_EQ(IsRectEmpty(&no_height), 1);
}

TEST(IsRectEmpty, OfOnePixelItIsNot) {
  const tagRECT pixel = {0, 0, 1, 1};
  const tagRECT elsewhere = {-8, -9, -7, -8};
  EXPECT_EQ(IsRectEmpty(&pixel), 0);
  EXPECT_EQ(IsRectEmpty(&elsewhere), 0);
}

TEST(IsRectEmpty, InvertedItIs) {
  const tagRECT mirrored = {5, 0, 0, 5};
  const tagRECT upside_down = {0, 5, 5, 0};
  EXPECT_EQ(IsRectEmpty(&mirrored), 1);
  EXPECT_EQ(IsRectEmpty(&upside_down), 1);
}

TEST(IsRectEmpty, WithoutARectangleItIs) {
  EXPECT_EQ(IsRectEmpty(nullptr), 1);
}

TEST(IsRectEmpty, EdgesCountInAll64Bits) {
  const tagRECT wide = {0, 0, 0x100000000, 1};
  const tagRECT tall = {0, 0, 1, 0x100000000};
  EXPECT_EQ(IsRectEmpty(&wide), 0);
  EXPECT_EQ(IsRectEmpty(&tall), 0);
}

TEST(SetRect, StoresTheEdges) {
  tagRECT rect = {9, 9, 9, 9};
  EXPECT_EQ(SetRect(&rect, 1, 2, 3, 4), 1);
  EXPECT_EQ(rect, (tagRECT{1, 2, 3, 4}));
}

TEST(SetRect, KeepsTheSign) {
  tagRECT rect = {9, 9, 9, 9};
  EXPECT_EQ(SetRect(&rect, -1, -2, -3, -2147483647 - 1), 1);
  EXPECT_EQ(rect, (tagRECT{-1, -2, -3, INT64_C(-2147483648)}));
}

TEST(SetRect, StoresInvertedEdgesAsGiven) {
  tagRECT rect = {9, 9, 9, 9};
  EXPECT_EQ(SetRect(&rect, 10, 20, 5, 6), 1);
  EXPECT_EQ(rect, (tagRECT{10, 20, 5, 6}));
}

TEST(SetRect, WithoutARectangleFails) {
  EXPECT_EQ(SetRect(nullptr, 1, 2, 3, 4), 0);
}

TEST(IntersectRect, GivesTheSharedArea) {
  const tagRECT first = {0, 0, 10, 10};
  const tagRECT second = {5, 5, 20, 20};
  tagRECT result = {9, 9, 9, 9};
  EXPECT_EQ(IntersectRect(&result, &first, &second), 1);
  EXPECT_EQ(result, (tagRECT{5, 5, 10, 10}));
}

TEST(IntersectRect, TakesEachEdgeFromEitherSource) {
  const tagRECT first = {0, 5, 10, 20};
  const tagRECT second = {3, 0, 8, 30};
  tagRECT result = {9, 9, 9, 9};
  EXPECT_EQ(IntersectRect(&result, &first, &second), 1);
  EXPECT_EQ(result, (tagRECT{3, 5, 8, 20}));
  EXPECT_EQ(IntersectRect(&result, &second, &first), 1);
  EXPECT_EQ(result, (tagRECT{3, 5, 8, 20}));
}

TEST(IntersectRect, RectanglesThatOnlyTouchShareNothing) {
  const tagRECT first = {0, 0, 10, 10};
  const tagRECT right_of_it = {10, 0, 20, 10};
  const tagRECT below_it = {0, 10, 10, 20};
  tagRECT result = {9, 9, 9, 9};
  EXPECT_EQ(IntersectRect(&result, &first, &right_of_it), 0);
  EXPECT_EQ(result, (tagRECT{0, 0, 0, 0}));
  result = {9, 9, 9, 9};
  EXPECT_EQ(IntersectRect(&result, &first, &below_it), 0);
  EXPECT_EQ(result, (tagRECT{0, 0, 0, 0}));
}

TEST(IntersectRect, RectanglesApartShareNothing) {
  const tagRECT first = {0, 0, 10, 10};
  const tagRECT second = {50, 60, 70, 80};
  tagRECT result = {9, 9, 9, 9};
  EXPECT_EQ(IntersectRect(&result, &first, &second), 0);
  EXPECT_EQ(result, (tagRECT{0, 0, 0, 0}));
}

TEST(IntersectRect, TheResultMayBeTheFirstSource) {
  tagRECT first = {0, 0, 10, 10};
  const tagRECT second = {5, 5, 20, 20};
  EXPECT_EQ(IntersectRect(&first, &first, &second), 1);
  EXPECT_EQ(first, (tagRECT{5, 5, 10, 10}));
}

TEST(IntersectRect, TheResultMayBeTheSecondSource) {
  const tagRECT first = {0, 0, 10, 10};
  tagRECT second = {5, 5, 20, 20};
  EXPECT_EQ(IntersectRect(&second, &first, &second), 1);
  EXPECT_EQ(second, (tagRECT{5, 5, 10, 10}));
}

TEST(IntersectRect, WithoutASourceTheResultStays) {
  const tagRECT source = {0, 0, 10, 10};
  tagRECT result = {9, 8, 7, 6};
  EXPECT_EQ(IntersectRect(&result, nullptr, &source), 0);
  EXPECT_EQ(IntersectRect(&result, &source, nullptr), 0);
  EXPECT_EQ(result, (tagRECT{9, 8, 7, 6}));
}

TEST(IntersectRect, WithoutAResultFails) {
  const tagRECT source = {0, 0, 10, 10};
  EXPECT_EQ(IntersectRect(nullptr, &source, &source), 0);
}

TEST(OffsetRect, MovesDown) {
  tagRECT rect = {0, 0, 10, 5};
  EXPECT_EQ(OffsetRect(&rect, 0, 7), 1);
  EXPECT_EQ(rect, (tagRECT{0, 7, 10, 12}));
}

TEST(OffsetRect, MovesLeft) {
  tagRECT rect = {0, 0, 10, 5};
  EXPECT_EQ(OffsetRect(&rect, -3, 0), 1);
  EXPECT_EQ(rect, (tagRECT{-3, 0, 7, 5}));
}

TEST(OffsetRect, WithoutARectangleFails) {
  EXPECT_EQ(OffsetRect(nullptr, 1, 1), 0);
}
