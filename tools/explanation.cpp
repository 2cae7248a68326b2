// SPDX-License-Identifier: Apache-2.0
#include "tools/explanation.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <system_error>
#include <vector>

#include "language/messages.h"
#include "status/reason_table.h"
#include "tools/other_words.h"

namespace tools {
namespace {

using language::_;
using language::_n;
using language::filled;

constexpr std::string_view kMaker = "com.corvantiel-";
constexpr std::string_view kError = "error";
constexpr std::size_t kDigits = 4;
constexpr std::uint16_t kCatchAll = 0x0004;  ///< also raised where no row matches

struct Numbers {
  std::uint16_t first;
  std::uint16_t last;
};

// A row stands for one number, or for a run of details in one group.
Numbers numbers_of(const PrinterStateReason& row) {
  constexpr unsigned kByte = 0xFF;
  const unsigned group = row.error_high * 256U;
  if (row.error_low <= kByte) {
    const auto number = static_cast<std::uint16_t>(group + row.error_low);
    return {number, number};
  }
  return {static_cast<std::uint16_t>(group + (row.error_low & kByte)),
          static_cast<std::uint16_t>(group + (row.error_low >> 8U))};
}

const PrinterStateReason* find_row(std::uint16_t number) {
  for (const PrinterStateReason& row : PRINTER_STATE_REASONS) {
    const Numbers numbers = numbers_of(row);
    if (number >= numbers.first && number <= numbers.last) {
      return &row;
    }
  }
  return nullptr;
}

std::string_view keyword_of(const PrinterStateReason& row) {
  return row.reasons[0] != nullptr ? row.reasons[0] : "";
}

// The four digits behind "error" in a keyword of the table; empty for the good printer.
std::string_view class_of(const PrinterStateReason& row) {
  const std::string_view keyword = keyword_of(row);
  const std::size_t before = kMaker.size() + kError.size();
  return keyword.size() < before + kDigits ? std::string_view{} : keyword.substr(before, kDigits);
}

std::vector<std::uint16_t> numbers_of_class(std::string_view errorClass) {
  std::vector<std::uint16_t> numbers;
  for (const PrinterStateReason& row : PRINTER_STATE_REASONS) {
    if (class_of(row) == errorClass) {
      numbers.push_back(numbers_of(row).first);
    }
  }
  return numbers;
}

constexpr std::size_t kListedMost = 8;  // more are counted

// "6001, 6003 and 6011"
std::string list_numbers(const std::vector<std::uint16_t>& numbers) {
  std::string text;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const std::string digits = four_digits(numbers[i]);
    if (i == 0) {
      text = digits;
    } else if (i + 1 == numbers.size()) {
      text = filled(_("%1$s and %2$s"), text.c_str(), digits.c_str());
    } else {
      // TRANSLATORS: a list that grows: the numbers so far, and the next.
      text = filled(_("%1$s, %2$s"), text.c_str(), digits.c_str());
    }
  }
  return text;
}

std::string class_sentence(std::uint16_t number, std::string_view errorClass) {
  const std::string digits = four_digits(number);
  const std::string name(errorClass);
  std::vector<std::uint16_t> numbers = numbers_of_class(errorClass);
  const std::string first = four_digits(numbers.front());
  const std::string last = four_digits(numbers.back());
  numbers.erase(std::remove(numbers.begin(), numbers.end(), number), numbers.end());
  if (numbers.empty()) {
    return filled(_("What %1$s in itself stands for is not known here; its class is %2$s, which it "
                    "has to itself."),
                  digits.c_str(), name.c_str());
  }
  if (numbers.size() <= kListedMost) {
    return filled(_("What %1$s in itself stands for is not known here; its class is %2$s, which it "
                    "shares with %3$s."),
                  digits.c_str(), name.c_str(), list_numbers(numbers).c_str());
  }
  return filled(_n("What %1$s in itself stands for is not known here; its class is %2$s, which it "
                   "shares with %3$zu other number, %4$s to %5$s.",
                   "What %1$s in itself stands for is not known here; its class is %2$s, which it "
                   "shares with %3$zu other numbers, %4$s to %5$s.",
                   numbers.size()),
                digits.c_str(), name.c_str(), numbers.size(), first.c_str(), last.c_str());
}

Explanation explain_good() {
  return {true,
          {},
          std::uint16_t{0},
          {},
          _("The printer is good: it reports no error, and no reason is raised."),
          _("Nothing to do.")};
}

Explanation explain_row(const PrinterStateReason& row, std::uint16_t number) {
  if (keyword_of(row).empty()) {
    return explain_good();
  }
  const std::string digits = four_digits(number);
  Explanation result{true, std::string(keyword_of(row)), number, std::string(class_of(row)), {},
                     {}};
  // TRANSLATORS: the second is a sentence of its own.
  result.meaning = filled(_("The printer reported error %1$s. %2$s"), digits.c_str(),
                          class_sentence(number, class_of(row)).c_str());
  result.remedy = filled(
      _("Read the printer's display, and look up %s in the printer's manual. See to what they ask "
        "for; often that is paper, the ribbon or a cover. The job that stopped is still in the "
        "queue: `tqr7 resume QUEUE` prints it again."),
      digits.c_str());
  if (number == kCatchAll) {
    // TRANSLATORS: the first is a sentence of its own.
    result.meaning = filled(_("%s The same reason is raised when the printer does not answer, and "
                              "when it reports a number that the table does not know."),
                            result.meaning.c_str());
    // TRANSLATORS: the first are sentences of their own.
    result.remedy = filled(
        _("Check first that the printer is on and connected. %1$s The scheduler's log at the level "
          "debug has a line that begins `DEBUG: %2$s` and ends in UNAVAILABLE when the printer did "
          "not answer, and otherwise in the number that it reported."),
        result.remedy.c_str(), result.keyword.c_str());
  }
  return result;
}

Explanation explain_class(std::string_view digits, const std::vector<std::uint16_t>& numbers) {
  const std::string text(digits);
  const std::string meaning =
      numbers.size() <= kListedMost
          ? filled(_("%1$s is not an error number but a class of them: it has %2$s. What the class "
                     "stands for is not known here."),
                   text.c_str(), list_numbers(numbers).c_str())
          : filled(_n("%1$s is not an error number but a class of them: it has %2$zu number, %3$s "
                      "to %4$s. What the class stands for is not known here.",
                      "%1$s is not an error number but a class of them: it has %2$zu numbers, %3$s "
                      "to %4$s. What the class stands for is not known here.",
                      numbers.size()),
                   text.c_str(), numbers.size(), four_digits(numbers.front()).c_str(),
                   four_digits(numbers.back()).c_str());
  return {false, {},      {},
          text,  meaning, _("Ask for one of its numbers, as the printer or the queue shows it.")};
}

std::optional<std::uint16_t> read_digits(std::string_view text) {
  constexpr int kHexadecimal = 16;
  std::uint16_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number, kHexadecimal);
  if (text.size() != kDigits || error != std::errc{} || stop != end) {
    return std::nullopt;
  }
  return number;
}

std::string lower_case(std::string_view text) {
  std::string lower(text);
  for (char& letter : lower) {
    if (letter >= 'A' && letter <= 'Z') {
      letter = static_cast<char>(letter - 'A' + 'a');
    }
  }
  return lower;
}

std::string_view without_severity(std::string_view keyword) {
  for (const std::string_view severity : {"-error", "-warning", "-report"}) {
    if (keyword.size() > severity.size() && keyword.ends_with(severity)) {
      keyword.remove_suffix(severity.size());
      break;
    }
  }
  return keyword;
}

const PrinterStateReason* find_row_of_keyword(std::string_view keyword) {
  for (const PrinterStateReason& row : PRINTER_STATE_REASONS) {
    const std::string_view known = keyword_of(row);
    if (!known.empty() && lower_case(known) == keyword) {
      return &row;
    }
  }
  return nullptr;
}

// What a keyword of the printer's form says that the table does not have: com.corvantiel-error….
Explanation explain_unknown_error(std::string_view keyword) {
  const std::string_view digits = keyword.substr(kMaker.size() + kError.size());
  const std::vector<std::uint16_t> numbers = numbers_of_class(digits);
  if (read_digits(digits) && !numbers.empty()) {
    return explain_class(digits, numbers);
  }
  return {false,
          std::string(keyword),
          {},
          {},
          filled(_("%s has the form of this printer's reasons, but is not in the table of its "
                   "errors."),
                 std::string(keyword).c_str()),
          _("Read the printer's display, and look up the number in the printer's manual. If a "
            "queue of this driver shows the reason, driver and tool are of different versions.")};
}

Explanation explain_unknown_word(std::string_view keyword) {
  return {false,
          std::string(keyword),
          {},
          {},
          _("This is neither in the table of the printer's errors nor a word that is known here."),
          _("Error numbers have four hexadecimal digits, such as 2665; a queue's reasons stand in "
            "`lpstat -l -p QUEUE` and `tqr7 status`. `tqr7 explain --all` lists the table.")};
}

}  // namespace

std::string four_digits(std::uint16_t number) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "%04X", unsigned{number});
  return text.data();
}

Explanation explain_number(std::uint16_t number) {
  if (const PrinterStateReason* const row = find_row(number)) {
    return explain_row(*row, number);
  }
  const std::string digits = four_digits(number);
  const std::vector<std::uint16_t> numbers = numbers_of_class(digits);
  if (!numbers.empty()) {
    Explanation result = explain_class(digits, numbers);
    result.number = number;
    return result;
  }
  const std::string catchAll{keyword_of(*find_row(kCatchAll))};
  return {false,
          catchAll,
          number,
          {},
          filled(_("%1$s is not in the table of the printer's errors. When the printer reports it, "
                   "the queue shows %2$s."),
                 digits.c_str(), catchAll.c_str()),
          filled(_("Read the printer's display, and look up %s in the printer's manual. The job "
                   "that stopped is still in the queue: `tqr7 resume QUEUE` prints it again."),
                 digits.c_str())};
}

Explanation explain_keyword(std::string_view keyword) {
  const std::string lower = lower_case(keyword);
  const std::string_view plain = without_severity(lower);
  for (const OtherWord& known : other_words()) {
    // "protocol-error" is a whole word, though it ends like a severity.
    if (known.word == lower || known.word == plain) {
      return {false, lower, {}, {}, _(known.meaning), _(known.remedy)};
    }
  }
  const std::string whole =
      (plain.starts_with(kMaker) ? "" : std::string(kMaker)) + std::string(plain);
  if (const PrinterStateReason* const row = find_row_of_keyword(whole)) {
    return explain_row(*row, numbers_of(*row).first);
  }
  if (std::string_view(whole).substr(kMaker.size()).starts_with(kError)) {
    return explain_unknown_error(whole);
  }
  return explain_unknown_word(keyword);
}

}  // namespace tools
