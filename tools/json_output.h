// SPDX-License-Identifier: Apache-2.0
//
// How the tool writes a JSON document: indented, whatever bytes came in from outside.
#ifndef TQR7_TOOLS_JSON_OUTPUT_H
#define TQR7_TOOLS_JSON_OUTPUT_H

#include <cstdio>
#include <nlohmann/json.hpp>
#include <string>

namespace tools {

/// Writes the document and a newline. Texts that are not UTF-8, as file names may be, get U+FFFD in
/// place of what cannot be read.
inline void print_json(std::FILE* out, const nlohmann::ordered_json& document) {
  constexpr int kIndent = 2;
  const std::string text =
      document.dump(kIndent, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
  std::fprintf(out, "%s\n", text.c_str());
}

}  // namespace tools

#endif  // TQR7_TOOLS_JSON_OUTPUT_H
