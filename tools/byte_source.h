// SPDX-License-Identifier: Apache-2.0
//
// Reads a file or the standard input in pieces, so that a stream can have any length.
#ifndef TQR7_TOOLS_BYTE_SOURCE_H
#define TQR7_TOOLS_BYTE_SOURCE_H

#include <cstdint>
#include <functional>
#include <span>
#include <string>

namespace tools {

/// Hands on all bytes of the file, or of the standard input for "-". Returns why it could not be
/// read to its end, or nothing; what was read until then was handed on.
std::string for_each_piece(const std::string& path,
                           const std::function<void(std::span<const std::uint8_t>)>& take);

}  // namespace tools

#endif  // TQR7_TOOLS_BYTE_SOURCE_H
