// SPDX-License-Identifier: Apache-2.0
//
// The print engine's samples: one channel's amount of light, in 14 of 16 bits.
#ifndef TQR7_CONVERSION_ENGINE_SAMPLE_H
#define TQR7_CONVERSION_ENGINE_SAMPLE_H

#include <cstdint>

/// Black is 0. A page has the bytes in the machine's own order.
using EngineSample = std::uint16_t;
inline constexpr EngineSample kEngineWhite = 0x3FFF;

#endif  // TQR7_CONVERSION_ENGINE_SAMPLE_H
