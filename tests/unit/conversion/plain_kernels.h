// SPDX-License-Identifier: Apache-2.0
//
// What the conversion's inner loops must give, worked out one pixel at a time, for holding the
// loops of every kind of processor against.
#ifndef TQR7_TESTS_UNIT_CONVERSION_PLAIN_KERNELS_H
#define TQR7_TESTS_UNIT_CONVERSION_PLAIN_KERNELS_H

#include <array>
#include <cstdint>
#include <vector>

#include "conversion/colour_table.h"

namespace plain {

using Bytes = std::vector<unsigned char>;
using Line = std::vector<std::uint16_t>;
using Planes = std::array<Line, 3>;

Line luma(const Bytes& rgb);

/// 1 4 6 4 1 sixteenths of numbers two before to two behind, rounded.
int weigh(int a, int b, int c, int d, int e);
Line blur_along(const Line& line);

Planes sharpen(const Bytes& rgb, const Line& blurred, int strength);

/// A page of bytes, sharpened whole, without rings of lines.
std::vector<Planes> sharpen_page(const std::vector<Bytes>& page, int strength);

/// One pixel by walking through its cell from black to white along the axes, largest part first.
std::array<std::uint16_t, 3> interpolate(const ColourTable& table,
                                         const std::array<std::uint16_t, 3>& position);

}  // namespace plain

#endif  // TQR7_TESTS_UNIT_CONVERSION_PLAIN_KERNELS_H
