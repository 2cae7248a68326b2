// SPDX-License-Identifier: Apache-2.0
#include "diag/csv_values.h"

#include <cstdlib>
#include <cstring>

namespace {

// Part of the interface as these bytes: blank, comma, C2 A5, 't', C2 A5, 'n'. Tab and newline do
// not delimit.
constexpr char kDelimiters[] = "\x20\x2C\xC2\xA5\x74\xC2\xA5\x6E";

int to_number(const char* token, int /*of_type*/) {
  return static_cast<int>(std::strtol(token, nullptr, 10));
}

double to_number(const char* token, double /*of_type*/) {
  return std::strtod(token, nullptr);
}

template <typename Number>
int read_values(char* text, int count, Number* values) {
  for (int i = 0; i < count; ++i) {
    const char* token = std::strtok(i == 0 ? text : nullptr, kDelimiters);
    if (token == nullptr) {
      return 0;
    }
    values[i] = to_number(token, Number{});
  }
  return 1;
}

}  // namespace

int AnalyzeCSV(char* text, int count, int* values) {
  return read_values(text, count, values);
}

int AnalyzeCSV_dbl(char* text, int count, double* values) {
  return read_values(text, count, values);
}

int int2WORD(const int* value, unsigned short* word) {
  if (*value > 65535) {
    *word = 65535;
    return 0;
  }
  if (*value < 0) {
    *word = 0;
    return 0;
  }
  *word = static_cast<unsigned short>(*value);
  return 1;
}
