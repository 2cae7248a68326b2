// SPDX-License-Identifier: Apache-2.0
#include "tools/explanation.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <system_error>
#include <vector>

#include "status/reason_table.h"
#include "tools/other_words.h"

namespace tools {
namespace {

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

// "6001, 6003 and 6011"; many are counted: "42 other numbers, 2600 to 2690" or, when `others` is
// empty, "43 numbers, 2600 to 2690".
std::string list_numbers(const std::vector<std::uint16_t>& numbers, const char* others,
                         const Numbers& range) {
  constexpr std::size_t kListedMost = 8;
  if (numbers.size() > kListedMost) {
    return std::to_string(numbers.size()) + " " + others + "numbers, " + four_digits(range.first) +
           " to " + four_digits(range.last);
  }
  std::string text;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const bool last = i + 1 == numbers.size();
    text += i == 0 ? "" : (last ? " and " : ", ");
    text += four_digits(numbers[i]);
  }
  return text;
}

std::string class_sentence(std::uint16_t number, std::string_view errorClass) {
  const std::string text = "What " + four_digits(number) +
                           " in itself stands for is not known here; its class is " +
                           std::string(errorClass) + ", which it ";
  std::vector<std::uint16_t> numbers = numbers_of_class(errorClass);
  const Numbers range{numbers.front(), numbers.back()};
  numbers.erase(std::remove(numbers.begin(), numbers.end(), number), numbers.end());
  if (numbers.empty()) {
    return text + "has to itself.";
  }
  return text + "shares with " + list_numbers(numbers, "other ", range) + ".";
}

Explanation explain_good() {
  return {true,
          {},
          std::uint16_t{0},
          {},
          "The printer is good: it reports no error, and no reason is raised.",
          "Nothing to do."};
}

Explanation explain_row(const PrinterStateReason& row, std::uint16_t number) {
  if (keyword_of(row).empty()) {
    return explain_good();
  }
  const std::string digits = four_digits(number);
  Explanation result{true, std::string(keyword_of(row)), number, std::string(class_of(row)), {},
                     {}};
  result.meaning =
      "The printer reported error " + digits + ". " + class_sentence(number, class_of(row));
  result.remedy =
      "Read the printer's display, and look up " + digits +
      " in the printer's manual. See to what they ask for; often that is paper, the ribbon or a "
      "cover. The job that stopped is still in the queue: `tqr7 resume QUEUE` prints it again.";
  if (number == kCatchAll) {
    result.meaning +=
        " The same reason is raised when the printer does not answer, and when it reports a number "
        "that the table does not know.";
    result.remedy =
        "Check first that the printer is on and connected. " + result.remedy +
        " The scheduler's log at the level debug has a line that begins `DEBUG: " + result.keyword +
        "` and ends in UNAVAILABLE when the printer did not answer, and otherwise in the number "
        "that it reported.";
  }
  return result;
}

Explanation explain_class(std::string_view digits, const std::vector<std::uint16_t>& numbers) {
  const std::string text(digits);
  return {false,
          {},
          {},
          text,
          text + " is not an error number but a class of them: it has " +
              list_numbers(numbers, "", {numbers.front(), numbers.back()}) +
              ". What the class stands for is not known here.",
          "Ask for one of its numbers, as the printer or the queue shows it."};
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
          std::string(keyword) +
              " has the form of this printer's reasons, but is not in the table of its errors.",
          "Read the printer's display, and look up the number in the printer's manual. If a queue "
          "of this driver shows the reason, driver and tool are of different versions."};
}

Explanation explain_unknown_word(std::string_view keyword) {
  return {false,
          std::string(keyword),
          {},
          {},
          "This is neither in the table of the printer's errors nor a word that is known here.",
          "Error numbers have four hexadecimal digits, such as 2665; a queue's reasons stand in "
          "`lpstat -l -p QUEUE` and `tqr7 status`. `tqr7 explain --all` lists the table."};
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
          digits +
              " is not in the table of the printer's errors. When the printer reports it, the "
              "queue shows " +
              catchAll + ".",
          "Read the printer's display, and look up " + digits +
              " in the printer's manual. The job that stopped is still in the queue: `tqr7 resume "
              "QUEUE` prints it again."};
}

Explanation explain_keyword(std::string_view keyword) {
  const std::string lower = lower_case(keyword);
  const std::string_view plain = without_severity(lower);
  for (const OtherWord& known : other_words()) {
    // "protocol-error" is a whole word, though it ends like a severity.
    if (known.word == lower || known.word == plain) {
      return {false, lower, {}, {}, known.meaning, known.remedy};
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
