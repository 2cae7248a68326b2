// SPDX-License-Identifier: Apache-2.0
//
// Text from elsewhere as plain text: it fits on one line, and does nothing to the terminal.
#ifndef TQR7_TOOLS_PLAIN_TEXT_H
#define TQR7_TOOLS_PLAIN_TEXT_H

#include <cstddef>
#include <string>
#include <string_view>

namespace tools {

inline constexpr std::size_t kPlainTextMost = 200;  ///< bytes; normal lines are much shorter

/// Replaces each control character, each character that changes the direction of writing, and each
/// byte that is not UTF-8 by "?". Cuts the text after `most` bytes, with "…".
std::string plain_text(std::string_view text, std::size_t most = kPlainTextMost);

}  // namespace tools

#endif  // TQR7_TOOLS_PLAIN_TEXT_H
