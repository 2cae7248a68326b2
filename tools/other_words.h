// SPDX-License-Identifier: Apache-2.0
//
// Words that a queue or its log may show and that are no error of the printer's table: those of
// this driver, of the scheduler and of printing in general.
#ifndef TQR7_TOOLS_OTHER_WORDS_H
#define TQR7_TOOLS_OTHER_WORDS_H

#include <span>

namespace tools {

/// One word, without a severity behind it.
struct OtherWord {
  const char* word;
  const char* meaning;
  const char* remedy;
};

/// All words that are known here, in no order.
std::span<const OtherWord> other_words();

}  // namespace tools

#endif  // TQR7_TOOLS_OTHER_WORDS_H
