// SPDX-License-Identifier: Apache-2.0
//
// A job's print settings in words, for the test page.
#ifndef TQR7_COMMANDS_SETTING_WORDS_H
#define TQR7_COMMANDS_SETTING_WORDS_H

#include <string>
#include <string_view>
#include <vector>

#include "job/print_setting.h"

/// One line: a label and a value in printable ASCII.
struct SettingLine {
  std::string label;
  std::string value;
};

inline constexpr std::size_t kLongestLabel = 10;  ///< characters
inline constexpr std::size_t kLongestValue = 32;

/// The text in printable ASCII, with "?" for each other byte, cut to the length of a line.
std::string printable(std::string_view text);

/// The name of the paper size with the setting's geometry, such as "10 x 15 cm".
std::string paper_words(const tagPRINTSETTING& settings);

/// All settings, one on each line, and the queue's name with the driver's version.
std::vector<SettingLine> setting_words(const tagPRINTSETTING& settings, std::string_view queue);

#endif  // TQR7_COMMANDS_SETTING_WORDS_H
