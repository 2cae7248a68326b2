// SPDX-License-Identifier: Apache-2.0
//
// Reads the rules of faults from text: a single one on the command line, or a script with one on
// each line.
//
//   RULE   = [MOMENT ":"] FAULT [EXTENT]
//   MOMENT = "job" N | "sheet" N
//   FAULT  = "status" NUMBER | "enable" CODE | "busy" K
//          | ("status" | "enable") ("late" T "s" | "pieces" A… | "short" N | "stray" HH… |
//          "silent") | "drop" "at" "byte" N | "read" N "bytes/s" | ("paper" | "ribbon") N "then"
//          NUMBER | "cover" NUMBER
//   EXTENT = "for" T "s" | K "times" | "once"
#ifndef TQR7_SIMULATOR_FAULT_SCRIPT_H
#define TQR7_SIMULATOR_FAULT_SCRIPT_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/fault_rule.h"

namespace simulator {

/// The place where a text is no longer a rule. Lines and columns count from 1, columns in bytes.
struct ScriptError {
  std::size_t line;
  std::size_t column;
  std::string came;      ///< a word in quotation marks, or "the end of the rule"
  std::string expected;  ///< what could have stood there
};

/// `came "x", expected a number`
std::string to_string(const ScriptError& error);

/// A text's rules, or the first thing that is wrong with it.
struct Script {
  std::vector<FaultRule> rules;
  std::vector<ScriptError> errors;  ///< none or one
};

/// Reads one rule, which must not be empty. An error gets `line` as its line.
Script read_rule(std::string_view text, std::size_t line);

/// Reads a script: one rule on each line; `#` begins a comment; empty lines are allowed.
Script read_script(std::string_view text);

}  // namespace simulator

#endif  // TQR7_SIMULATOR_FAULT_SCRIPT_H
