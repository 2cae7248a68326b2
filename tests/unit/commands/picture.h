// SPDX-License-Identifier: Apache-2.0
//
// A white picture to draw on, with guard bytes around it, and ways to look at it.
#ifndef TQR7_TESTS_UNIT_COMMANDS_PICTURE_H
#define TQR7_TESTS_UNIT_COMMANDS_PICTURE_H

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

#include "commands/canvas.h"

class Picture {
 public:
  Picture(int width, int height)
      : width_(width),
        height_(height),
        bytes_(2 * kGuard + static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3,
               0xFF) {
    std::fill_n(bytes_.begin(), kGuard, kGuardByte);
    std::fill_n(bytes_.rbegin(), kGuard, kGuardByte);
  }

  Canvas canvas() { return {bytes_.data() + kGuard, width_, height_}; }

  /// The dot's colour as RRGGBB.
  std::string Dot(int x, int y) const {
    const unsigned char* dot = bytes_.data() + kGuard +
                               (static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                                static_cast<std::size_t>(x)) *
                                   3;
    char text[8];
    std::snprintf(text, sizeof text, "%02X%02X%02X", dot[0], dot[1], dot[2]);
    return text;
  }

  /// A part of the picture: "." for white, "#" for black, "+" for any other colour.
  std::vector<std::string> Art(const Box& box) const {
    std::vector<std::string> rows;
    for (int y = box.top; y < box.top + box.height; ++y) {
      std::string row;
      for (int x = box.left; x < box.left + box.width; ++x) {
        const std::string dot = Dot(x, y);
        row += dot == "FFFFFF" ? '.' : dot == "000000" ? '#' : '+';
      }
      rows.push_back(row);
    }
    return rows;
  }

  bool GuardsStand() const {
    const auto stands = [](unsigned char byte) { return byte == kGuardByte; };
    return std::all_of(bytes_.begin(), bytes_.begin() + kGuard, stands) &&
           std::all_of(bytes_.rbegin(), bytes_.rbegin() + kGuard, stands);
  }

  bool IsWhite() const {
    return std::all_of(bytes_.begin() + kGuard, bytes_.end() - kGuard,
                       [](unsigned char byte) { return byte == 0xFF; });
  }

 private:
  static constexpr std::ptrdiff_t kGuard = 8192;  // more than a row of the widest sheet
  static constexpr unsigned char kGuardByte = 0x5A;

  int width_;
  int height_;
  std::vector<unsigned char> bytes_;
};

#endif  // TQR7_TESTS_UNIT_COMMANDS_PICTURE_H
