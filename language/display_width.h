// SPDX-License-Identifier: Apache-2.0
//
// Columns of text on a terminal: a letter may be several bytes long, and a Chinese one is two
// columns wide.
#ifndef TQR7_LANGUAGE_DISPLAY_WIDTH_H
#define TQR7_LANGUAGE_DISPLAY_WIDTH_H

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace language {

/// How many columns of a terminal a text in UTF-8 takes.
std::size_t display_width(std::string_view text);

/// The text with blanks behind it to that many columns; as it is where it is wider.
std::string padded(std::string text, std::size_t columns);

/// Labels at the left, with the values below each other behind them.
class Labels {
 public:
  /// All labels that may come, in the person's language.
  Labels(std::initializer_list<const char*> labels);

  /// A label with the blanks behind it that bring the value into its column.
  std::string operator()(const char* label) const;

 private:
  std::size_t columns_ = 0;
};

}  // namespace language

#endif  // TQR7_LANGUAGE_DISPLAY_WIDTH_H
