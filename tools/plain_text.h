// SPDX-License-Identifier: Apache-2.0
//
// Text from elsewhere made fit for a terminal and for one line.
#ifndef TQR7_TOOLS_PLAIN_TEXT_H
#define TQR7_TOOLS_PLAIN_TEXT_H

#include <cstddef>
#include <string>
#include <string_view>

namespace tools {

inline constexpr std::size_t kPlainTextMost = 200;  ///< bytes, which no honest line comes near

/// The text with a "?" for each control character, each character that turns the direction of
/// writing, and each byte that is not UTF-8; cut after `most` bytes with "…".
std::string plain_text(std::string_view text, std::size_t most = kPlainTextMost);

}  // namespace tools

#endif  // TQR7_TOOLS_PLAIN_TEXT_H
