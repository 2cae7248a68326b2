// SPDX-License-Identifier: Apache-2.0
//
// A file or the standard input read in pieces, so that a stream of any length passes through.
#ifndef TQR7_TOOLS_BYTE_SOURCE_H
#define TQR7_TOOLS_BYTE_SOURCE_H

#include <cstdint>
#include <functional>
#include <span>
#include <string>

namespace tools {

/// Hands on all bytes of the file, or of the standard input for "-". Returns why it could not be
/// read to its end, or nothing; the pieces until then have been handed on.
std::string for_each_piece(const std::string& path,
                           const std::function<void(std::span<const std::uint8_t>)>& take);

}  // namespace tools

#endif  // TQR7_TOOLS_BYTE_SOURCE_H
