// SPDX-License-Identifier: Apache-2.0
//
// The printer's answers to the two questions of the stream, byte by byte.
#ifndef TQR7_SIMULATOR_PRINTER_ANSWERS_H
#define TQR7_SIMULATOR_PRINTER_ANSWERS_H

#include <cstddef>
#include <cstdint>
#include <vector>

namespace simulator {

inline constexpr std::uint16_t kStatusGood = 0x0000;   ///< the error number of a good printer
inline constexpr std::uint16_t kEnableReady = 0x0000;  ///< the enable code that lets a sheet pass
inline constexpr std::uint16_t kEnableBusy = 0x0100;   ///< ask again

// Clients wait for at least so many bytes. No more are sent: bytes that the client does not take
// with this answer would be taken for the beginning of the next one.
inline constexpr std::size_t kStatusAnswerLength = 15;
inline constexpr std::size_t kReadinessAnswerLength = 6;

/// 15 bytes: the number in bytes 4 and 5, high byte first; the others are zero.
std::vector<std::uint8_t> status_answer(std::uint16_t number);

/// 6 bytes: the code in bytes 4 and 5, high byte first; the others are zero.
std::vector<std::uint8_t> readiness_answer(std::uint16_t code);

}  // namespace simulator

#endif  // TQR7_SIMULATOR_PRINTER_ANSWERS_H
