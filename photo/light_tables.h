// SPDX-License-Identifier: Apache-2.0
//
// Tables from 8-bit sRGB numbers to 16-bit samples for calculations, and back.
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

/// With `light`, samples are amounts of light; without, they are the numbers times 257. Each number
/// that is converted to a sample and back is unchanged.
LightTables make_light_tables(bool light);

}  // namespace photo

#endif  // TQR7_PHOTO_LIGHT_TABLES_H
