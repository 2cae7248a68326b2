// SPDX-License-Identifier: Apache-2.0
#include "tools/scheduler_words.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace tools {
namespace {

namespace fs = std::filesystem;

// The text between the quotation marks of a catalogue's line.
std::string unquoted(std::string_view line) {
  const std::size_t first = line.find('"');
  const std::size_t last = line.rfind('"');
  std::string text;
  for (std::size_t i = first + 1; first != std::string_view::npos && i < last; ++i) {
    if (line[i] == '\\' && i + 1 < last) {
      ++i;
    }
    text += line[i];
  }
  return text;
}

// Reads a catalogue's entries. Those with plurals are not needed.
class Entries {
 public:
  Entries(std::span<const std::string_view> wanted, std::map<std::string, std::string>& found)
      : wanted_(wanted), found_(found) {}

  void Take(const std::string& line) {
    if (line.starts_with("msgid ")) {
      End();
      english_ = unquoted(line);
      part_ = &english_;
    } else if (line.starts_with("msgstr ")) {
      translation_ = unquoted(line);
      part_ = &translation_;
    } else if (line.starts_with('"') && part_ != nullptr) {
      *part_ += unquoted(line);
    } else {
      part_ = nullptr;
    }
  }

  void End() {
    const bool known = std::find(wanted_.begin(), wanted_.end(), english_) != wanted_.end();
    if (known && !translation_.empty()) {
      found_[translation_] = english_;
    }
    english_.clear();
    translation_.clear();
  }

 private:
  std::span<const std::string_view> wanted_;
  std::map<std::string, std::string>& found_;
  std::string english_;
  std::string translation_;
  std::string* part_ = nullptr;
};

}  // namespace

std::string folder_of_catalogues() {
  const char* const named = std::getenv("LOCALEDIR");
  return named != nullptr ? named : TQR7_CUPS_LOCALE_DIR;
}

std::map<std::string, std::string> read_translations(const std::string& folder,
                                                     std::span<const std::string_view> sentences) {
  std::map<std::string, std::string> found;
  std::error_code error;
  fs::directory_iterator language(folder, error);
  for (; !error && language != fs::directory_iterator(); language.increment(error)) {
    const std::string name = language->path().filename().string();
    std::ifstream file(language->path() / ("cups_" + name + ".po"));
    Entries entries(sentences, found);
    for (std::string line; std::getline(file, line);) {
      entries.Take(line);
    }
    entries.End();
  }
  return found;
}

std::string in_english(const std::string& message,
                       const std::map<std::string, std::string>& translations) {
  const auto whole = translations.find(message);
  if (whole != translations.end()) {
    return whole->second;
  }
  for (std::size_t colon = message.find(':'); colon != std::string::npos;
       colon = message.find(':', colon + 1)) {
    const auto begin = translations.find(message.substr(0, colon));
    if (begin != translations.end()) {
      return begin->second + message.substr(colon);
    }
  }
  return message;
}

}  // namespace tools
