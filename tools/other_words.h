// SPDX-License-Identifier: Apache-2.0
//
// Words that a queue or its log may show besides the errors in the printer's table: those of this
// driver, of the scheduler and of printing in general.
#ifndef TQR7_TOOLS_OTHER_WORDS_H
#define TQR7_TOOLS_OTHER_WORDS_H

#include <span>

namespace tools {

/// One word, without a severity after it.
struct OtherWord {
  const char* word;
  const char* meaning;
  const char* remedy;
};

/// All words that are known, in no particular order.
std::span<const OtherWord> other_words();

}  // namespace tools

#endif  // TQR7_TOOLS_OTHER_WORDS_H
