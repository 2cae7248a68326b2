// SPDX-License-Identifier: Apache-2.0
#include "tools/explanation.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <iterator>
#include <system_error>
#include <vector>

#include "language/messages.h"
#include "tools/other_words.h"

namespace tools {
namespace {

using language::_;
using language::_n;
using language::filled;
using language::N_;

constexpr std::string_view kMaker = "com.corvantiel-";
constexpr std::string_view kError = "error";
constexpr std::size_t kDigits = 4;

/// What people read about a row.
struct Text {
  const char* meaning;
  const char* remedy;
};

#define REASON_TEXT(name, shown, shown_with_class, meaning, remedy) \
  constexpr Text name{meaning, remedy};
#include "status/reason_list.def"

/// One row of the printer's errors.
struct Reason {
  std::uint16_t number;
  std::string_view error_class;  ///< empty for the good printer
  const char* keyword;           ///< null for the good printer
  const Text* text;
};

constexpr Reason kReasons[] = {
#define REASON(number, error_class, keyword, text) {0x##number, #error_class, keyword, &(text)},
#include "status/reason_list.def"
};

template <typename Condition>
const Reason* find_reason(Condition holds) {
  const auto* const found = std::find_if(std::begin(kReasons), std::end(kReasons), holds);
  return found == std::end(kReasons) ? nullptr : found;
}

std::vector<std::uint16_t> numbers_of_class(std::string_view errorClass) {
  std::vector<std::uint16_t> numbers;
  for (const Reason& reason : kReasons) {
    if (reason.error_class == errorClass) {
      numbers.push_back(reason.number);
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
    return filled(_("What %1$s itself means is not known here; its class is %2$s, which no other "
                    "number has."),
                  digits.c_str(), name.c_str());
  }
  if (numbers.size() <= kListedMost) {
    return filled(_("What %1$s itself means is not known here; its class is %2$s, which it shares "
                    "with %3$s."),
                  digits.c_str(), name.c_str(), list_numbers(numbers).c_str());
  }
  return filled(_n("What %1$s itself means is not known here; its class is %2$s, which it shares "
                   "with %3$zu other number, %4$s to %5$s.",
                   "What %1$s itself means is not known here; its class is %2$s, which it shares "
                   "with %3$zu other numbers, %4$s to %5$s.",
                   numbers.size()),
                digits.c_str(), name.c_str(), numbers.size(), first.c_str(), last.c_str());
}

Explanation explain_reason(const Reason& reason) {
  if (reason.keyword == nullptr) {
    return {true, {}, reason.number, {}, _(reason.text->meaning), _(reason.text->remedy)};
  }
  const bool any_other = reason.text == &kAnyOtherText;
  const Text& text = any_other ? kErrorText : *reason.text;
  const std::string digits = four_digits(reason.number);
  const std::string error_class(reason.error_class);
  Explanation result{true, reason.keyword, reason.number, error_class, {}, {}};
  result.meaning =
      filled(_(text.meaning), digits.c_str(), class_sentence(reason.number, error_class).c_str());
  result.remedy = filled(_(text.remedy), digits.c_str());
  if (any_other) {
    result.meaning = filled(_(reason.text->meaning), result.meaning.c_str());
    result.remedy = filled(_(reason.text->remedy), result.remedy.c_str(), reason.keyword);
  }
  return result;
}

Explanation explain_class(std::string_view digits, const std::vector<std::uint16_t>& numbers) {
  const std::string text(digits);
  const std::string meaning =
      numbers.size() <= kListedMost
          ? filled(_("%1$s is not an error number but a class of them: it has %2$s. What the class "
                     "means is not known here."),
                   text.c_str(), list_numbers(numbers).c_str())
          : filled(_n("%1$s is not an error number but a class of them: it has %2$zu number, %3$s "
                      "to %4$s. What the class means is not known here.",
                      "%1$s is not an error number but a class of them: it has %2$zu numbers, %3$s "
                      "to %4$s. What the class means is not known here.",
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
          _("Error numbers have four hexadecimal digits, such as 2665; `lpstat -l -p QUEUE` and "
            "`tqr7 status` show a queue's reasons. `tqr7 explain --all` lists the table.")};
}

}  // namespace

std::string four_digits(std::uint16_t number) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "%04X", unsigned{number});
  return text.data();
}

Explanation explain_number(std::uint16_t number) {
  if (const Reason* const reason =
          find_reason([number](const Reason& row) { return row.number == number; })) {
    return explain_reason(*reason);
  }
  const std::string digits = four_digits(number);
  const std::vector<std::uint16_t> numbers = numbers_of_class(digits);
  if (!numbers.empty()) {
    Explanation result = explain_class(digits, numbers);
    result.number = number;
    return result;
  }
  const Reason* const any_other =
      find_reason([](const Reason& row) { return row.text == &kAnyOtherText; });
  return {false,
          any_other->keyword,
          number,
          {},
          filled(_("%1$s is not in the table of the printer's errors. When the printer reports it, "
                   "the queue shows %2$s."),
                 digits.c_str(), any_other->keyword),
          filled(_("Read the printer's display, and look up %s in the printer's manual. The job "
                   "that stopped is still in the queue: `tqr7 resume QUEUE` prints it again."),
                 digits.c_str())};
}

std::vector<Explanation> explain_all() {
  std::vector<Explanation> all;
  std::transform(std::begin(kReasons), std::end(kReasons), std::back_inserter(all), explain_reason);
  return all;
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
  const auto raises = [&whole](const Reason& row) {
    return row.keyword != nullptr && lower_case(row.keyword) == whole;
  };
  if (const Reason* const reason = find_reason(raises)) {
    return explain_reason(*reason);
  }
  if (std::string_view(whole).substr(kMaker.size()).starts_with(kError)) {
    return explain_unknown_error(whole);
  }
  return explain_unknown_word(keyword);
}

}  // namespace tools
