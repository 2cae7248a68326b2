// SPDX-License-Identifier: Apache-2.0
//
// The commands of the printer's stream: their names, codes and lengths.
#ifndef TQR7_DECODER_COMMAND_H
#define TQR7_DECODER_COMMAND_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace decoder {

/// What a byte of the stream belongs to. Image and matte data have no code of their own.
enum class Command : std::uint8_t {
  None,  ///< to no command, or it is not known to which
  StatusRequest,
  ReadinessQuery,
  JobHeader,
  ImageHeader,
  ImageData,
  MatteData,
  PrintOut,
};

/// The name in messages: "status request", "job header", …
const char* to_string(Command command);

inline constexpr std::size_t kCodeLength = 4;     ///< ESC, two letters, variant
inline constexpr std::size_t kBlockLength = 512;  ///< a long command, its code included

/// A command and its code.
struct CommandCode {
  Command command;
  std::array<std::uint8_t, kCodeLength> bytes;
  std::size_t fixedBytes;  ///< how many of `bytes` are the code; the rest is a field
  std::size_t length;      ///< of the command, its code included
};

/// The five codes of the stream.
std::span<const CommandCode> command_codes();

/// The command that these first four bytes begin, or null.
const CommandCode* find_code(std::span<const std::uint8_t> fourBytes);

/// Whether some command begins with these one to four bytes.
bool is_code_prefix(std::span<const std::uint8_t> bytes);

}  // namespace decoder

#endif  // TQR7_DECODER_COMMAND_H
