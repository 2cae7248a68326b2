// SPDX-License-Identifier: Apache-2.0
//
// Text in UTF-8 on a terminal: a letter may be several bytes long, and a Chinese one is two columns
// wide.
#ifndef TQR7_LANGUAGE_DISPLAY_WIDTH_H
#define TQR7_LANGUAGE_DISPLAY_WIDTH_H

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace language {

/// One character of a text.
struct Character {
  bool valid;  ///< false for a byte that is not UTF-8
  char32_t code;
  std::size_t length;  ///< in bytes, at least 1
};

/// The first character of a text, which must not be empty.
Character first_character(std::string_view text);

/// How many columns of a terminal the text takes.
std::size_t display_width(std::string_view text);

/// The text, filled with blanks to that many columns if it is not as wide.
std::string padded(std::string text, std::size_t columns);

/// Labels at the left, after which the values begin in the same column.
class Labels {
 public:
  /// All labels that can occur, in the person's language.
  Labels(std::initializer_list<const char*> labels);

  /// The label, filled with blanks to the column of the values.
  std::string operator()(const char* label) const;

 private:
  std::size_t columns_ = 0;
};

}  // namespace language

#endif  // TQR7_LANGUAGE_DISPLAY_WIDTH_H
