// SPDX-License-Identifier: Apache-2.0
#include "image/rect.h"

#include <algorithm>

int IsRectEmpty(const MV_TYPEDEF::tagRECT* rect) {
  return rect == nullptr || rect->bottom <= rect->top || rect->right <= rect->left ? 1 : 0;
}

int SetRect(MV_TYPEDEF::tagRECT* rect, int left, int top, int right, int bottom) {
  if (rect == nullptr) {
    return 0;
  }
  *rect = {left, top, right, bottom};
  return 1;
}

int IntersectRect(MV_TYPEDEF::tagRECT* result, const MV_TYPEDEF::tagRECT* first,
                  const MV_TYPEDEF::tagRECT* second) {
  if (result == nullptr || first == nullptr || second == nullptr) {
    return 0;
  }
  result->left = std::max(first->left, second->left);
  result->right = std::min(first->right, second->right);
  result->top = std::max(first->top, second->top);
  result->bottom = std::min(first->bottom, second->bottom);
  if (result->right > result->left && result->bottom > result->top) {
    return 1;
  }
  *result = {0, 0, 0, 0};
  return 0;
}

namespace {

// An edge that leaves the number range wraps instead of being undefined.
std::int64_t moved(std::int64_t edge, int distance) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(edge) +
                                   static_cast<std::uint64_t>(std::int64_t{distance}));
}

}  // namespace

int OffsetRect(MV_TYPEDEF::tagRECT* rect, int dx, int dy) {
  if (rect == nullptr) {
    return 0;
  }
  *rect = {moved(rect->left, dx), moved(rect->top, dy), moved(rect->right, dx),
           moved(rect->bottom, dy)};
  return 1;
}
