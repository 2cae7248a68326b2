// SPDX-License-Identifier: Apache-2.0
//
// Translates what the scheduler's own programs say back to English. They speak the language of the
// person who sent the job.
#ifndef TQR7_TOOLS_SCHEDULER_WORDS_H
#define TQR7_TOOLS_SCHEDULER_WORDS_H

#include <map>
#include <span>
#include <string>
#include <string_view>

namespace tools {

/// Reads the translations of these sentences from all catalogues of CUPS on this machine,
/// FOLDER/LANGUAGE/cups_LANGUAGE.po. Returns the English sentence for each translation.
std::map<std::string, std::string> read_translations(const std::string& folder,
                                                     std::span<const std::string_view> sentences);

/// The folder where libcups looks for its catalogues.
std::string folder_of_catalogues();

/// The message in English, if it is a translation or begins with one and a colon; otherwise the
/// message itself.
std::string in_english(const std::string& message,
                       const std::map<std::string, std::string>& translations);

}  // namespace tools

#endif  // TQR7_TOOLS_SCHEDULER_WORDS_H
