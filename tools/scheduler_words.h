// SPDX-License-Identifier: Apache-2.0
//
// What the scheduler's own programs say, whatever language they say it in: they speak that of the
// person who sent the job.
#ifndef TQR7_TOOLS_SCHEDULER_WORDS_H
#define TQR7_TOOLS_SCHEDULER_WORDS_H

#include <map>
#include <span>
#include <string>
#include <string_view>

namespace tools {

/// Translations of sentences, with the English ones, out of all catalogues of CUPS on this machine:
/// FOLDER/LANGUAGE/cups_LANGUAGE.po. None where there are no catalogues.
std::map<std::string, std::string> read_translations(const std::string& folder,
                                                     std::span<const std::string_view> sentences);

/// The folder where libcups looks for its catalogues.
std::string folder_of_catalogues();

/// The message in English, where it is a translation or begins with one and a colon; else the
/// message itself.
std::string in_english(const std::string& message,
                       const std::map<std::string, std::string>& translations);

}  // namespace tools

#endif  // TQR7_TOOLS_SCHEDULER_WORDS_H
