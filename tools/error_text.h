// SPDX-License-Identifier: Apache-2.0
//
// Reads an error number or a keyword as a person types it.
#ifndef TQR7_TOOLS_ERROR_TEXT_H
#define TQR7_TOOLS_ERROR_TEXT_H

#include <string_view>

#include "tools/explanation.h"

namespace tools {

/// Explains what a person typed, in upper or lower case: a number of one to four hexadecimal
/// digits, with or without "0x"; a class and a number, "0008_2665"; or a keyword, with or without
/// its beginning.
Explanation explain_text(std::string_view text);

}  // namespace tools

#endif  // TQR7_TOOLS_ERROR_TEXT_H
