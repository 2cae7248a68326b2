// SPDX-License-Identifier: Apache-2.0
// Reads a catalogue as gettext writes it, for a test to hold against what a program shows.
#pragma once

#include <fstream>
#include <map>
#include <string>

/// A catalogue's translations by their English texts. Of messages with plurals there are none.
using Catalogue = std::map<std::string, std::string>;

/// What stands between the quotes of a line.
inline std::string between_quotes(const std::string& line) {
  const std::size_t first = line.find('"');
  return line.substr(first + 1, line.rfind('"') - first - 1);
}

inline Catalogue read_catalogue(const std::string& path) {
  Catalogue catalogue;
  std::ifstream file(path);
  std::string english;
  std::string translation;
  std::string* text = nullptr;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("msgid \"")) {
      english = between_quotes(line);
      text = &english;
    } else if (line.starts_with("msgstr \"")) {
      translation = between_quotes(line);
      text = &translation;
    } else if (line.starts_with("\"") && text != nullptr) {
      *text += between_quotes(line);
    } else {
      text = nullptr;
    }
    if (!english.empty() && !translation.empty()) {
      catalogue[english] = translation;
    }
    if (line.empty()) {
      english.clear();
      translation.clear();
    }
  }
  return catalogue;
}
