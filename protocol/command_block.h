// SPDX-License-Identifier: Apache-2.0
//
// What all commands to the printer share: the 512-byte block and its big-endian numbers.
#ifndef TQR7_PROTOCOL_COMMAND_BLOCK_H
#define TQR7_PROTOCOL_COMMAND_BLOCK_H

#include <cstddef>
#include <cstdint>
#include <cstdio>

#include "job/job_state.h"

inline constexpr std::size_t kCommandBlockSize = 512;  ///< bytes of a long command
inline constexpr std::size_t kCommandCodeSize = 4;     ///< bytes of its code, which comes first

/// Stores the low 16 bits at `offset`, high byte first.
inline void put_big_endian_16(unsigned char* block, std::size_t offset, std::uint32_t value) {
  block[offset] = static_cast<unsigned char>(value >> 8U);
  block[offset + 1] = static_cast<unsigned char>(value);
}

/// Writes a command in one call. The next exchange with the printer notices a write that failed.
inline void write_command(std::FILE* out, const unsigned char* bytes, std::size_t size) {
  const OutputCall call;
  static_cast<void>(std::fwrite(bytes, 1, size, out));
}

#endif  // TQR7_PROTOCOL_COMMAND_BLOCK_H
