// SPDX-License-Identifier: Apache-2.0
//
// What the print engine takes: one channel's amount of light, 14 bits of 16.
#ifndef TQR7_CONVERSION_ENGINE_SAMPLE_H
#define TQR7_CONVERSION_ENGINE_SAMPLE_H

#include <cstdint>

/// Black is 0; in a page the bytes are in the machine's own order.
using EngineSample = std::uint16_t;
inline constexpr EngineSample kEngineWhite = 0x3FFF;

#endif  // TQR7_CONVERSION_ENGINE_SAMPLE_H
