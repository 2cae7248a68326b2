// SPDX-License-Identifier: Apache-2.0
//
// Writes a JSON document, indented, whatever bytes are in it.
#ifndef TQR7_TOOLS_JSON_OUTPUT_H
#define TQR7_TOOLS_JSON_OUTPUT_H

#include <cstdio>
#include <nlohmann/json.hpp>
#include <string>

namespace tools {

/// Writes the document and a newline. Bytes that are not UTF-8, as file names may have them, become
/// U+FFFD.
inline void print_json(std::FILE* out, const nlohmann::ordered_json& document) {
  constexpr int kIndent = 2;
  const std::string text =
      document.dump(kIndent, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
  std::fprintf(out, "%s\n", text.c_str());
}

}  // namespace tools

#endif  // TQR7_TOOLS_JSON_OUTPUT_H
