// SPDX-License-Identifier: Apache-2.0
//
// What an error number of the printer's or a reason of a queue's means, and what to do about it, in
// sentences for people.
#ifndef TQR7_TOOLS_EXPLANATION_H
#define TQR7_TOOLS_EXPLANATION_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tools {

/// One number or keyword explained.
struct Explanation {
  bool inTable;                         ///< the printer's table of errors has it
  std::string keyword;                  ///< what the queue shows; empty where nothing is raised
  std::optional<std::uint16_t> number;  ///< the printer's error number, where there is one
  std::string errorClass;               ///< four digits, "0008"; empty where there is none
  std::string meaning;
  std::string remedy;
};

/// The printer's error number, as it comes in a status reply.
Explanation explain_number(std::uint16_t number);

/// Every number of the printer's table, in ascending order.
std::vector<Explanation> explain_all();

/// A state reason or a word of the log, in upper or lower case; with or without
/// "com.corvantiel-" and with or without the severity "-error", "-warning" or "-report" behind it.
Explanation explain_keyword(std::string_view keyword);

/// "2665"; error numbers are read and written in four hexadecimal digits.
std::string four_digits(std::uint16_t number);

}  // namespace tools

#endif  // TQR7_TOOLS_EXPLANATION_H
