// SPDX-License-Identifier: Apache-2.0
//
// The words of one rule, taken one after another, and what was expected where one does not fit.
#ifndef TQR7_SIMULATOR_RULE_WORDS_H
#define TQR7_SIMULATOR_RULE_WORDS_H

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

/// Words are separated by blanks; a colon is a word by itself.
class RuleWords {
 public:
  /// `text` must outlive the words.
  explicit RuleWords(std::string_view text);

  /// The word that comes next, or `ahead` words after it; empty at the end.
  std::string_view Next(std::size_t ahead = 0) const;
  bool AtEnd() const { return taken_ == words_.size(); }

  /// Takes the next word when it is this one.
  bool Take(std::string_view word);

  /// Takes this word; any other is an error.
  bool Require(std::string_view word);

  /// Takes a number, decimal or hexadecimal after 0x; anything else is an error. The message lists
  /// after the number what `otherwise` says could be there.
  std::optional<std::uint64_t> Number(std::uint64_t low, std::uint64_t high,
                                      std::string_view otherwise = {});

  /// Takes a time such as "2.5 s", from one millisecond to a day.
  std::optional<std::chrono::milliseconds> Time();

  /// Takes a byte written as two hexadecimal digits.
  std::optional<std::uint8_t> Byte();

  /// Notes that the next word is not what was expected. Always false, for the caller to return.
  bool Fail(const std::string& expected);

  /// What the first Fail noted: the word's column, the word in quotation marks, what was expected.
  std::size_t ErrorColumn() const { return errorColumn_; }
  const std::string& Came() const { return came_; }
  const std::string& Expected() const { return expected_; }

 private:
  struct Word {
    std::size_t column;
    std::string_view text;
  };
  std::vector<Word> words_;
  std::size_t taken_ = 0;
  std::size_t endColumn_;
  std::size_t errorColumn_ = 0;
  std::string came_;
  std::string expected_;
};

/// The number that a text is, decimal, or hexadecimal after 0x; nothing when the text is no number.
/// A leading zero does not make it octal.
std::optional<std::uint64_t> read_number(std::string_view text);

/// "a number from 1 to 65535", as messages say what was expected.
std::string number_words(std::uint64_t low, std::uint64_t high);

}  // namespace simulator

#endif  // TQR7_SIMULATOR_RULE_WORDS_H
