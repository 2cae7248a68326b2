// SPDX-License-Identifier: Apache-2.0
#include "model/model_text.h"

#include <cstddef>
#include <cstdlib>
#include <functional>
#include <sstream>
#include <vector>

namespace {

using Words = std::vector<std::string>;

/// One quantity of the text: its name, what must follow it, and where that goes. `take` gives
/// false for values that are not as expected.
struct Quantity {
  const char* name;
  const char* expected;
  std::function<bool(const Words&, PrinterModel&)> take;
};

/// A text's words up to a comment.
Words words_of(const std::string& line) {
  std::istringstream stream(line.substr(0, line.find('#')));
  Words words;
  for (std::string word; stream >> word;) {
    words.push_back(word);
  }
  return words;
}

/// A whole word as a decimal number within lowest … highest.
bool take_number(const std::string& word, double lowest, double highest, double& number) {
  if (word.find_first_not_of("0123456789.") != std::string::npos) {
    return false;
  }
  char* end = nullptr;
  number = std::strtod(word.c_str(), &end);
  return *end == '\0' && number >= lowest && number <= highest;
}

template <std::size_t kCount>
bool take_numbers(const Words& words, double lowest, double highest,
                  std::array<double, kCount>& numbers) {
  bool good = words.size() == kCount;
  for (std::size_t i = 0; good && i < kCount; ++i) {
    good = take_number(words[i], lowest, highest, numbers[i]);
  }
  return good;
}

bool take_single(const Words& words, double lowest, double highest, double& number) {
  return words.size() == 1 && take_number(words[0], lowest, highest, number);
}

/// The words with single blanks between them; the profile's texts are plain ASCII.
bool take_text(const Words& words, std::string& text) {
  for (const std::string& word : words) {
    text += text.empty() ? word : " " + word;
  }
  for (const char c : text) {
    if (c < ' ' || c > '~') {
      return false;
    }
  }
  return !text.empty();
}

/// "2025-01-31": four, two and two digits.
bool take_date(const Words& words, ModelDate& date) {
  if (words.size() != 1 || words[0].size() != 10 || words[0][4] != '-' || words[0][7] != '-') {
    return false;
  }
  std::array<double, 3> numbers{};
  const Words parts = {words[0].substr(0, 4), words[0].substr(5, 2), words[0].substr(8, 2)};
  const bool good =
      take_number(parts[0], 1900, 9999, numbers[0]) && take_number(parts[1], 1, 12, numbers[1]) &&
      take_number(parts[2], 1, 31, numbers[2]) && words[0].find('.') == std::string::npos;
  date = {static_cast<int>(numbers[0]), static_cast<int>(numbers[1]), static_cast<int>(numbers[2])};
  return good;
}

const std::vector<Quantity>& quantities() {
  static const char* const kChromaticity = "x y, each from 0.001 to 0.999";
  static const std::vector<Quantity> table = {
      {"description", "a text in ASCII",
       [](const Words& w, PrinterModel& m) { return take_text(w, m.description); }},
      {"copyright", "a text in ASCII",
       [](const Words& w, PrinterModel& m) { return take_text(w, m.copyright); }},
      {"date", "year-month-day, such as 2025-01-31",
       [](const Words& w, PrinterModel& m) { return take_date(w, m.date); }},
      {"white", "X Y Z, each from 0.1 to 1.5",
       [](const Words& w, PrinterModel& m) { return take_numbers(w, 0.1, 1.5, m.white); }},
      {"red", kChromaticity,
       [](const Words& w, PrinterModel& m) { return take_numbers(w, 0.001, 0.999, m.red); }},
      {"green", kChromaticity,
       [](const Words& w, PrinterModel& m) { return take_numbers(w, 0.001, 0.999, m.green); }},
      {"blue", kChromaticity,
       [](const Words& w, PrinterModel& m) { return take_numbers(w, 0.001, 0.999, m.blue); }},
      {"exponent", "a number from 1.2 to 4",
       [](const Words& w, PrinterModel& m) { return take_single(w, 1.2, 4, m.exponent); }},
      {"toe", "a number from 0.01 to 0.15",
       [](const Words& w, PrinterModel& m) { return take_single(w, 0.01, 0.15, m.toe); }},
      {"black", "a density from 0.5 to 4",
       [](const Words& w, PrinterModel& m) { return take_single(w, 0.5, 4, m.blackDensity); }},
  };
  return table;
}

/// The quantity of this name in the table, or its size.
std::size_t index_of(const std::string& name) {
  std::size_t i = 0;
  while (i < quantities().size() && name != quantities()[i].name) {
    ++i;
  }
  return i;
}

/// Reads one line's words. `seen` has the line on which each quantity stood, 0 for none yet.
bool take_line(Words words, std::size_t number, std::vector<std::size_t>& seen, PrinterModel& model,
               std::string& why) {
  const std::string at = "line " + std::to_string(number) + ": ";
  const std::size_t index = index_of(words[0]);
  if (index == quantities().size()) {
    why = at + "'" + words[0] + "' is none of the model's quantities; expected one of:";
    for (const Quantity& quantity : quantities()) {
      why += std::string(" ") + quantity.name;
    }
    return false;
  }
  const Quantity& quantity = quantities()[index];
  if (seen[index] != 0) {
    why = at + quantity.name + ": stands on line " + std::to_string(seen[index]) +
          " already; expected it once";
    return false;
  }
  seen[index] = number;
  words.erase(words.begin());
  if (!quantity.take(words, model)) {
    why = at + quantity.name + ": expected " + quantity.expected;
    return false;
  }
  return true;
}

}  // namespace

bool parse_printer_model(std::string_view text, PrinterModel& model, std::string& why) {
  model = {};
  std::vector<std::size_t> seen(quantities().size(), 0);
  std::istringstream stream{std::string(text)};
  std::size_t number = 0;
  for (std::string line; std::getline(stream, line);) {
    ++number;
    const Words words = words_of(line);
    if (!words.empty() && !take_line(words, number, seen, model, why)) {
      return false;
    }
  }
  for (std::size_t i = 0; i < seen.size(); ++i) {
    if (seen[i] == 0) {
      why = "line " + std::to_string(number) + ": the text ends without '" + quantities()[i].name +
            "'; expected " + quantities()[i].expected;
      return false;
    }
  }
  return true;
}
