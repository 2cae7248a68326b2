// SPDX-License-Identifier: Apache-2.0
//
// phototopage and rastertopage as the scheduler runs them.
#ifndef TQR7_TESTS_UNIT_PHOTO_FILTER_RUN_H
#define TQR7_TESTS_UNIT_PHOTO_FILTER_RUN_H

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "tests/unit/tool_process.h"

/// Runs the program for a job; `arguments` begin with the copies. FILTER_TEST_WRAPPER is a program
/// to run it in, such as a memory checker.
inline ToolRun run_filter(const std::string& program, const std::vector<std::string>& arguments,
                          const std::string& input = {}) {
  std::vector<std::string> words = {"env", "PPD=" TQR7_PPD, "LC_ALL=C"};
  const char* const wrapper = std::getenv("FILTER_TEST_WRAPPER");
  std::istringstream wrapping(wrapper != nullptr ? wrapper : "");
  for (std::string word; wrapping >> word;) {
    words.push_back(word);
  }
  words.insert(words.end(), {program, "7", "anna", "Beach"});
  words.insert(words.end(), arguments.begin(), arguments.end());
  return run_program(words, input);
}

#endif  // TQR7_TESTS_UNIT_PHOTO_FILTER_RUN_H
