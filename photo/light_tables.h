// SPDX-License-Identifier: Apache-2.0
//
// 8-bit sRGB numbers as 16-bit samples to calculate with, and back.
#ifndef TQR7_PHOTO_LIGHT_TABLES_H
#define TQR7_PHOTO_LIGHT_TABLES_H

#include <array>
#include <cstdint>
#include <vector>

namespace photo {

struct LightTables {
  std::array<std::uint16_t, 256> toSample;
  std::vector<std::uint8_t> toNumber;  ///< for each of the 65536 samples
};

/// Samples are amounts of light when `light`, and the numbers themselves, spread, otherwise. A
/// number comes back as it was.
LightTables make_light_tables(bool light);

}  // namespace photo

#endif  // TQR7_PHOTO_LIGHT_TABLES_H
